// What the settings of a clock make together.
#pragma once

#include "finding.h"

#include <QDomElement>

namespace Lw::HNodeClock {
class HClockNode;
}

namespace ClockTool {

/// Warns of settings that are sound one by one and wrong together. The node has all that the
/// element and its "attribute" children say.
void LintWhole(const QDomElement &clock, Lw::HNodeClock::HClockNode &node, Findings &findings);

} // namespace ClockTool
