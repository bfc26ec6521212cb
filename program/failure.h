// How the player ends when something is wrong: a sentence for the person at the shell, and the
// exit code that scripts test.
#pragma once

#include <QString>

#include <optional>
#include <variant>

namespace ClockProgram {

/// The numbers are what --help promises.
enum class ExitCode : int {
    Success = 0,
    RuntimeFailure = 1, ///< a plugin, the display, the frames or the glyph files
    UsageError = 2,     ///< the command line
    ProgramError = 3,   ///< the program file
};

struct Failure
{
    ExitCode code;
    QString text; ///< without the program's name and without a newline
};

using MaybeFailure = std::optional<Failure>;

template<typename T>
using Result = std::variant<T, Failure>;

} // namespace ClockProgram
