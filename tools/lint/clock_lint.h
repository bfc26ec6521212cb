// lint/: checks one clock of a program against what the clock actually imports.
#pragma once

#include "finding.h"

#include "carried_files.h"

#include <QDomElement>

#include <optional>

namespace ClockTool {

/// Warns about every word and value that the clock ignores or misreads, about carried
/// files that are missing or differ, and about settings that conflict.
void LintClock(const QDomElement &clock, ClockProgram::CarriedFiles &files, Findings &findings);

/// The Id that the program gives the clock, if any.
std::optional<int> GivenId(const QDomElement &clock);

} // namespace ClockTool
