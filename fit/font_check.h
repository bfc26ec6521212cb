// Whether the families of a clock have the characters that it shows, and whether its texts can be
// drawn at all.
#pragma once

#include "clock_year.h"
#include "families.h"

namespace ClockFit {

/// What the families lack of the characters that the clock shows in the year.
QVector<MissingCharacters> MissingOf(ClockYear &clock, Lw::HNodeClock::HClockNode &node,
                                     const GlyphImages &images);

/// The texts whose images would be too large.
QVector<Undrawn> UndrawnOf(Lw::HNodeClock::HClockNode &node, GlyphImages &images);

} // namespace ClockFit
