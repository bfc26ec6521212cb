// Reports kinds of clocks that cannot be read, or that contradict each other.
#pragma once

#include "finding.h"

namespace ClockTool {

/// The kind that the word of an element was to name, so that its children are judged by it; -1
/// where it is near none.
int MeantKind(const QDomElement &clock);

/// For a kind that no clock has.
void LintUnreadKind(const QDomElement &clock, Findings &findings);

/// The kind by which an element is read, and that which its "attribute" children leave the clock
/// with.
void LintKinds(const QDomElement &clock, int readKind, int shownKind, Findings &findings);

} // namespace ClockTool
