// Which ink of a clock is beyond the edges of its own glyph images and of what is made of them.
#pragma once

#include "clock_year.h"

namespace ClockFit {

QVector<Clipped> ClippedOf(ClockYear &clock, Lw::HNodeClock::HClockNode &node, GlyphImages &images);

} // namespace ClockFit
