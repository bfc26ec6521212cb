// player/: the temporary directory for glyph files, removed when the process ends.
#pragma once

#include "failure.h"

#include <QString>

namespace ClockPlayer {

/// Creates the directory and returns its path. It is removed when the process calls exit().
/// Directories that killed players of the same user left behind are removed too. Call it once.
ClockProgram::Result<QString> MakeWorkDirectory();

/// For exits that bypass exit(). Does nothing without a directory.
void RemoveWorkDirectory();

} // namespace ClockPlayer
