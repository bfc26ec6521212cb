// studio/findings: runs lint on the program's text, and makes the edits that fix its findings.
#pragma once

#include "text/parsed_program.h"

#include "lint/finding.h"

#include <optional>

namespace ClockStudio {

// The path is the program's, beside which the glyph files that it names are; empty for one that was
// never saved.

/// What lint finds in a program at an instant (UTC milliseconds) but for the checks of its glyph
/// images and of a year, without duplicates, in text order.
QVector<ClockTool::Finding> FindingsIn(const ParsedProgram &parsed, qint64 instant,
                                       const QString &path = {});

/// The element that a finding is about; -1 if it is about the whole file.
int ElementOf(const ParsedProgram &parsed, const ClockTool::Finding &finding);

/// The key of the attribute that a finding is about; empty where there is none.
QString KeyOf(const ClockTool::Finding &finding, int clockType);

/// The edit that applies a finding's suggestion, if the finding then disappears. None if the
/// suggested text size is too small to read.
std::optional<TextEdit> FixOf(const ParsedProgram &parsed, const ClockTool::Finding &finding,
                              qint64 instant, const QString &path = {});

} // namespace ClockStudio
