// studio/findings: what is wrong with a program, found as it arises.
// Checks of a program's text, and the edits that mend what they find.
#pragma once

#include "text/program_reading.h"

#include "lint/finding.h"

#include <optional>

namespace ClockStudio {

/// What lint finds in a program; each once, in the order of the text.
QVector<ClockTool::Finding> FindingsIn(const ProgramReading &reading);

/// The element that a finding is about; -1 where it is about the file.
int ElementOf(const ProgramReading &reading, const ClockTool::Finding &finding);

/// The key of the attribute that a finding is about; empty where there is none.
QString KeyOf(const ClockTool::Finding &finding, int clockType);

/// The edit that writes what a finding suggests, where lint then has no such finding any more.
std::optional<TextEdit> MendOf(const ProgramReading &reading, const ClockTool::Finding &finding);

} // namespace ClockStudio
