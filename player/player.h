// Plays a program from its beginning to its end.
#pragma once

#include "command_line.h"
#include "failure.h"
#include "program_file.h"
#include "program_watch.h"

namespace ClockPlayer {

/// How Qt measures fonts and presents windows. To be called before the application is constructed.
void PrepareEnvironment();

/// Plays on the display until the window is closed or the process is asked to end; or writes the
/// frames. Only a kiosk takes a program that could not be read. The signature is the program file's
/// before it was read. Needs a QGuiApplication.
ClockProgram::MaybeFailure Play(const Options &options,
                                const ClockProgram::Result<ClockProgram::Program> &program,
                                const FileSignature &signature, const Warn &warn);

} // namespace ClockPlayer
