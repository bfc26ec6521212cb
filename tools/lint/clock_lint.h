// Checks one clock of a program against what the clock reads.
#pragma once

#include "finding.h"

#include "carried_files.h"

#include <QDomElement>

#include <optional>

namespace ClockTool {

/// Warns of every word and value that the clock does not read, or not as it was meant, of carried
/// files that are missing or differ, and of settings that are wrong together.
void LintClock(const QDomElement &clock, ClockProgram::CarriedFiles &files, Findings &findings);

/// The identity that a program gives a clock, where it gives one.
std::optional<int> GivenId(const QDomElement &clock);

} // namespace ClockTool
