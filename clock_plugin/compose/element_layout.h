// compose/: composes dates, times and lunar dates from glyph pieces. Pure functions of the images
// and the numbers shown.
#pragma once

#include "clock_attribute_row.h" // for the date formats
#include "compose/clock_glyphs.h"
#include "compose/element.h"

namespace Lw::HNodeClock {

/// The time formats. Codes above the list show hours, the hour label, minutes and seconds; negative
/// codes show a separator instead of the label.
enum TimeType {
    TimeToSecond = 0,
    TimeToMinute = 1,
    TimeLabelled = 2,
    TimeLabelledToMinute = 3,
    TimeShortHour = 4,
};

/// An empty element for a format outside the list. The canvas is as high as the label image, even
/// for formats that show no label.
Element DateElement(const ClockGlyphs &glyphs, int dateType, int year, int month, int day);

/// The time followed by the AM/PM mark, which may be null; empty if the time itself has no
/// width.
Element TimeElement(const ClockGlyphs &glyphs, int timeType, int hour, int minute, int second,
                    const GlyphStrip &mark);

/// The lunar date in Chinese numerals; empty for a month outside 1 to 12 or a day outside 1 to 30.
Element LunarElement(const GlyphStrip &strip, int month, int day);

} // namespace Lw::HNodeClock
