// fit/: checks the contrast of a clock's parts against their background, and whether a dial is
// large enough for its marks.
#pragma once

#include "dial_ink.h"
#include "fit.h"

namespace ClockFit {

/// The contrast ratio of two colours as WCAG 2.1 defines it: from 1 to 21, in either order.
double ContrastOf(QRgb one, QRgb other);

/// Parts with a lower contrast are reported.
inline constexpr double kFaintContrast = 3;

QVector<Faint> FaintParts(Lw::HNodeClock::HClockNode &node, QRgb background);
QVector<SameHands> SameHandsOf(Lw::HNodeClock::HClockNode &node);
QVector<LostMarks> LostMarksOf(Lw::HNodeClock::HClockNode &node);

} // namespace ClockFit
