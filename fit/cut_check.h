// fit/: finds the parts of a clock that are cut off at the edges of the visible area.
#pragma once

#include "clock_year.h"

namespace ClockFit {

/// `visible` is in pixels from the area's top left. Moment::text is left empty; the caller fills it
/// in.
QVector<Cut> CutsOf(ClockYear &clock, const QRect &visible);

} // namespace ClockFit
