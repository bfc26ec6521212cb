// fit/: checks one clock for parts that are cut off at the edges of its visible area or of their
// images, drawn over other parts, hard to see, or left out of a small dial.
#pragma once

#include "clock_year.h"
#include "fit.h"

namespace ClockFit {

// Over a year: cut_check.cpp, clip_check.cpp and overlap_check.cpp. Of cuts and overlaps,
// Moment::text is left empty; the caller fills it in.

/// `visible` is in pixels from the area's top left.
QVector<Cut> CutsOf(ClockYear &clock, const QRect &visible);

/// Ink beyond the edges of the clock's own images.
QVector<Clipped> ClippedOf(ClockYear &clock, Lw::HNodeClock::HClockNode &node, GlyphImages &images);

QVector<Overlap> OverlapsOf(ClockYear &clock);

// On any day: visibility.cpp.

/// The contrast ratio of two colours as WCAG 2.1 defines it: from 1 to 21, in either order.
double ContrastOf(QRgb one, QRgb other);

/// Parts with a contrast below 3.
QVector<Faint> FaintParts(Lw::HNodeClock::HClockNode &node, QRgb background);
QVector<SameHands> SameHandsOf(Lw::HNodeClock::HClockNode &node);
QVector<LostMarks> LostMarksOf(Lw::HNodeClock::HClockNode &node);

} // namespace ClockFit
