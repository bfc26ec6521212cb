// player/: the temporary directory of this process.
#pragma once

#include "failure.h"

#include <QString>

namespace ClockPlayer {

/// Creates the directory and returns its path. It is removed when the process calls exit(). What
/// players of the same user left behind when they were killed is removed now. Call it once.
ClockProgram::Result<QString> MakeWorkDirectory();

/// For ends that do not call exit(). Does nothing without a directory.
void RemoveWorkDirectory();

} // namespace ClockPlayer
