// Checks one clock of a program against what the clock reads.
#pragma once

#include "finding.h"

#include <QDomElement>

#include <optional>

namespace ClockTool {

/// Warns of every word and value that the clock does not read, or not as it was meant.
void LintClock(const QDomElement &clock, Findings &findings);

/// The identity that a program gives a clock, where it gives one.
std::optional<int> GivenId(const QDomElement &clock);

} // namespace ClockTool
