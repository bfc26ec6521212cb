// fit/: finds the parts of a clock that are drawn over other parts of the same clock.
#pragma once

#include "clock_year.h"

namespace ClockFit {

/// Moment::text is left empty; the caller fills it in.
QVector<Overlap> OverlapsOf(ClockYear &clock);

} // namespace ClockFit
