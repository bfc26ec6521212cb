// player/: the temporary directory for glyph files, removed when the process ends.
#pragma once

#include "failure.h"

#include <QString>

namespace ClockPlayer {

/// Creates the directory and returns its path. It is removed when the process calls exit().
/// Also removes directories left behind by killed players of the same user. Call it once.
ClockProgram::Result<QString> MakeWorkDirectory();

/// For exits that bypass exit(). Does nothing without a directory.
void RemoveWorkDirectory();

} // namespace ClockPlayer
