// tools/lint/: reports kinds of clocks that cannot be read, or that contradict each other.
#pragma once

#include "finding.h"

namespace ClockTool {

/// The kind that a misspelt type was probably meant to name, by which the children are checked; -1
/// where it is near none.
int MeantKind(const QDomElement &clock);

/// Reports a kind that does not exist.
void LintUnreadKind(const QDomElement &clock, Findings &findings);

/// The kind by which an element is read, and that which its "attribute" children leave the clock
/// with.
void LintKinds(const QDomElement &clock, int readKind, int shownKind, Findings &findings);

} // namespace ClockTool
