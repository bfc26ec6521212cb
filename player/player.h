// player/: plays a program on the display or into frames, as the options say.
#pragma once

#include "command_line.h"
#include "failure.h"
#include "program_file.h"
#include "program_watch.h"

namespace ClockPlayer {

/// Sets the environment variables for Qt's font resolution and update delay. Call before the
/// application is constructed.
void PrepareEnvironment();

/// Plays on the display until the window is closed or a signal asks the process to quit; or writes
/// the frames. Only a kiosk accepts a program that could not be read. The signature is that of the
/// program file before reading it. Needs a QGuiApplication.
ClockProgram::MaybeFailure Play(const Options &options,
                                const ClockProgram::Result<ClockProgram::Program> &program,
                                const FileSignature &signature, const Warn &warn);

} // namespace ClockPlayer
