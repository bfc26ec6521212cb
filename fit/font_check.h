// fit/: checks whether a clock's fonts have the characters it shows, and whether its texts can be
// drawn at all.
#pragma once

#include "clock_year.h"
#include "families.h"

namespace ClockFit {

/// The characters that the clock shows in the year and its families lack.
QVector<MissingCharacters> MissingOf(ClockYear &clock, Lw::HNodeClock::HClockNode &node,
                                     const GlyphImages &images);

/// The texts whose images would be too large.
QVector<Undrawn> UndrawnOf(Lw::HNodeClock::HClockNode &node, GlyphImages &images);

} // namespace ClockFit
