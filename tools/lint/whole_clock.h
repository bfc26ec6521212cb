// lint/: checks the settings of a clock in combination.
#pragma once

#include "finding.h"

#include <QDomElement>

namespace Lw::HNodeClock {
class HClockNode;
}

namespace ClockTool {

/// Warns about settings that are valid individually but wrong together. The node has been set from
/// the element and its "attribute" children.
void LintWhole(const QDomElement &clock, Lw::HNodeClock::HClockNode &node, Findings &findings);

} // namespace ClockTool
