// fit/: the checks of one clock in a year: parts that are cut off at the edges of the visible area,
// and parts that are drawn over others.
#pragma once

#include "clock_year.h"
#include "fit.h"

namespace ClockFit {

// Moment::text is left empty; the caller fills it in.

/// `visible` is in pixels from the area's top left.
QVector<Cut> CutsOf(ClockYear &clock, const QRect &visible);

QVector<Overlap> OverlapsOf(ClockYear &clock);

} // namespace ClockFit
