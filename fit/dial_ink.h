// fit/: the ink of an analog clock's dial, painted by the clock's own code on a canvas larger than
// the area, so that ink beyond the area is found.
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
    InkMask morning;                   ///< the AM badge
    InkMask afternoon;                 ///< the PM badge
    Lw::HNodeClock::GlyphStrip digits; ///< of the numerals; null if there are none
    Lw::HNodeClock::GlyphStrip morningBadge;
    Lw::HNodeClock::GlyphStrip afternoonBadge;
    int coveredNumerals = 0; ///< pixels of numerals that other numerals cover
    bool isDrawn = true;     ///< false if the canvas would be larger than a frame may be

    /// All ink under the texts, with the AM or the PM badge.
    InkMask Under(bool isMorning) const;
};

/// Empty for a clock that is not analog.
DialInk DialInkOf(Lw::HNodeClock::HClockNode &node, const Lw::HNodeClock::GlyphSource &source);

} // namespace ClockFit
