// studio/properties: the text sizes at which a clock fills its area.
#pragma once

#include "editing/value_edits.h"

#include <QRect>

namespace ClockStudio {

// Sizes of the shown texts that differ from the clock's, with which nothing is cut on any day of
// the year to come; none if no sizes were found. The visible part of the area is in pixels from its
// top left.

/// As large as they can be: scaled by one factor, unless that makes a text too small to read; then
/// only what is cut gets smaller.
QVector<StoredValue> FittingSizes(Lw::HNodeClock::HClockNode &clock, const QRect &visible);

/// No larger than the clock's; none if nothing is cut.
QVector<StoredValue> UncutSizes(Lw::HNodeClock::HClockNode &clock, const QRect &visible);

} // namespace ClockStudio
