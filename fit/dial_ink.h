// The ink of an analog clock's dial, painted by the clock's own code on a canvas larger than its
// area.
#pragma once

#include "ink_mask.h"

#include "clock_node.h"
#include "compose/clock_glyphs.h"

namespace ClockFit {

struct DialInk
{
    InkMask hourMarks;
    InkMask minuteMarks;
    InkMask numerals;
    InkMask morning; ///< the badge
    InkMask afternoon;
    int coveredNumerals = 0; ///< pixels of numerals that later ones cover
    bool isDrawn = true;     ///< false where the canvas would be beyond the bounds of frames

    /// Everything that texts are drawn over, at one half of the day.
    InkMask Under(bool isMorning) const;
};

/// Of a clock that is not analog nothing.
DialInk DialInkOf(Lw::HNodeClock::HClockNode &node, const Lw::HNodeClock::GlyphSource &source);

} // namespace ClockFit
