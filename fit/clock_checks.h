// fit/: checks one clock over a year for parts that are cut off at the edges of its visible area or
// of their images, or drawn over other parts.
#pragma once

#include "clock_year.h"
#include "fit.h"

namespace ClockFit {

// Of cuts and overlaps, Moment::text is left empty; the caller fills it in.

/// `visible` is in pixels from the area's top left.
QVector<Cut> CutsOf(ClockYear &clock, const QRect &visible);

/// Ink beyond the edges of the clock's own images.
QVector<Clipped> ClippedOf(ClockYear &clock, Lw::HNodeClock::HClockNode &node, GlyphImages &images);

QVector<Overlap> OverlapsOf(ClockYear &clock);

} // namespace ClockFit
