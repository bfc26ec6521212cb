// program/: errors as values, for player, tools and studio: a message for the user, and the exit
// code of a program that ends with it.
#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace ClockProgram {

/// The codes are documented in --help.
enum class ExitCode : int {
    Success = 0,
    RuntimeFailure = 1, ///< anything else that failed, such as a plugin, the display or writing
    UsageError = 2,     ///< the command line
    ProgramError = 3,   ///< the program file or another input
};

struct Failure
{
    ExitCode code;
    QString text; ///< without the program's name and without a newline
};

using MaybeFailure = std::optional<Failure>;

/// A value, or why there is none:
///
///     const Result<Program> program = ReadProgram(path);
///     if (!program)
///         return program.Error();
///     Play(*program);
template<typename T>
class Result
{
public:
    Result(const T &value) : m_either(value) { }
    Result(T &&value) : m_either(std::move(value)) { }
    Result(const Failure &failure) : m_either(failure) { }

    explicit operator bool() const { return std::holds_alternative<T>(m_either); }

    // Only where there is a value.
    const T &operator*() const { return *std::get_if<T>(&m_either); }
    T &operator*() { return *std::get_if<T>(&m_either); }
    const T *operator->() const { return std::get_if<T>(&m_either); }
    T *operator->() { return std::get_if<T>(&m_either); }

    /// Only where there is none.
    const Failure &Error() const { return *std::get_if<Failure>(&m_either); }

private:
    std::variant<T, Failure> m_either;
};

} // namespace ClockProgram
