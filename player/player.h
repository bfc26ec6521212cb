// Plays a program from its beginning to its end.
#pragma once

#include "command_line.h"
#include "failure.h"
#include "program_file.h"

#include <functional>

namespace ClockPlayer {

/// Called with each sentence that the person at the shell should read.
using Warn = std::function<void(const QString &)>;

/// Plays on the display until the window is closed or the process is asked to end; or writes the
/// frames. Needs a QGuiApplication.
ClockProgram::MaybeFailure Play(const Options &options, const ClockProgram::Program &program,
                                const Warn &warn);

} // namespace ClockPlayer
