// fit/: the ink of a clock per part and day over a year.
#pragma once

#include "clock_year.h"

#include <vector>

namespace ClockFit {

/// The union of what one part shows during a day.
struct DayInk
{
    qint64 begin = 0; ///< UTC milliseconds
    qint64 end = 0;
    InkMask mask;
};

struct PartInk
{
    Part part = Part::TopText;
    InkMask year;             ///< of all days
    std::vector<DayInk> days; ///< empty for parts that are the same every day
};

/// The parts in screen pixels; topLeft is that of the area. Hands are represented by the disc that
/// they sweep over. A picture clock has one part, stored as HourMarks.
std::vector<PartInk> YearInkOf(Lw::HNodeClock::HClockNode &node,
                               const Lw::HNodeClock::GlyphSource &source, const Year &year,
                               const QPoint &topLeft);

} // namespace ClockFit
