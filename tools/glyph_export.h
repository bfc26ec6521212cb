// tools/: writes a program with its glyph files to a self-contained directory.
#pragma once

#include "clock_nodes.h"

#include <functional>

namespace ClockTool {

/// Called before each clock; clocks are numbered from 1.
using ExportProgress = std::function<void(int clock)>;

/// Generates the glyph images, moves them into the directory under their digests' names,
/// and writes the list of files and, last, the program. What an earlier export left there is
/// replaced only once everything is on disk, so after a failure it is still complete.
MaybeFailure ExportProgram(const ProgramClocks &clocks, const QString &directory,
                           const ExportProgress &progress);

} // namespace ClockTool
