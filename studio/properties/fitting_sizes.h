// studio/properties: the text sizes at which a clock fills its area.
#pragma once

#include "editing/value_edits.h"

#include <QRect>

namespace ClockStudio {

/// The sizes of the shown texts, scaled by one factor so that nothing is cut on any day of the year
/// to come. Empty if no sizes were found. The visible part of the area is in pixels from its top
/// left.
QVector<StoredValue> FittingSizes(Lw::HNodeClock::HClockNode &clock, const QRect &visible);

} // namespace ClockStudio
