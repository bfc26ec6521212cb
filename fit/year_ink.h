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

/// The ink that two parts have in common on a day.
struct CommonInk
{
    int pixels = 0;
    qint64 day = 0; ///< its beginning, UTC milliseconds
};

/// The first day from an instant on with ink in common. Days begin and end at midnight in each
/// clock's own zone; those that are together for a part of them count, too.
CommonInk FirstCommon(const PartInk &one, const PartInk &other, qint64 begin);

/// The parts in screen pixels; topLeft is that of the area. Hands are represented by the disc that
/// they sweep over, stored as SecondHand. A picture clock has one part, stored as HourMarks.
std::vector<PartInk> YearInkOf(Lw::HNodeClock::HClockNode &node,
                               const Lw::HNodeClock::GlyphSource &source, const Year &year,
                               const QPoint &topLeft);

} // namespace ClockFit
