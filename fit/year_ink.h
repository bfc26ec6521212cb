// All the ink that a clock has in a year, part by part, and day by day.
#pragma once

#include "clock_year.h"

#include <vector>

namespace ClockFit {

/// What one part can show in the course of a day.
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
    std::vector<DayInk> days; ///< none for parts that are the same on all days
};

/// The parts in pixels of a screen where the area's top left is at a point. Hands are the disc that
/// they pass over. A picture clock has one part, called as the hour marks are.
std::vector<PartInk> YearInkOf(Lw::HNodeClock::HClockNode &node,
                               const Lw::HNodeClock::GlyphSource &source, const Year &year,
                               const QPoint &topLeft);

} // namespace ClockFit
