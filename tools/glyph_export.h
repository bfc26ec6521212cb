// Brings a program with its glyph files into a directory that can be carried away.
#pragma once

#include "clock_nodes.h"

#include <functional>

namespace ClockTool {

// What stands in the directory.
const QString kExportedProgram = QStringLiteral("program.xml");
const QString kExportedList = QStringLiteral("files.tsv");
const QString kExportedFiles = QStringLiteral("files");

/// Told before each clock, which counts from 1.
using ExportProgress = std::function<void(int clock)>;

/// Makes the glyph images of the clocks, moves them under their digests' names into the directory,
/// and writes the program and the list of files. The program comes last but one and the list last,
/// so a directory with a list is whole.
MaybeFailure ExportProgram(const ProgramClocks &clocks, const QString &directory,
                           const ExportProgress &progress);

} // namespace ClockTool
