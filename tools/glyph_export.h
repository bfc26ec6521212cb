// Brings a program with its glyph files into a directory that can be carried away.
#pragma once

#include "clock_nodes.h"

#include <functional>

namespace ClockTool {

/// Told before each clock, which counts from 1.
using ExportProgress = std::function<void(int clock)>;

/// Makes the glyph images of the clocks, moves them under their digests' names into the directory,
/// and writes the list of files and, last, the program. What an earlier export left there is
/// replaced only when all of it is on the disk, so after a failure it is still whole.
MaybeFailure ExportProgram(const ProgramClocks &clocks, const QString &directory,
                           const ExportProgress &progress);

} // namespace ClockTool
