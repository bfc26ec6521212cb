// A year as one clock shows it, in stretches within which only the time of day changes.
#pragma once

#include "clock_node.h"

#include <QVector>

namespace ClockFit {

/// Instants in milliseconds since 1970-01-01 UTC; the end is not part of it.
struct Year
{
    qint64 begin = 0;
    qint64 end = 0;
};

/// From an instant to the same in the next year of the calendar, UTC. Instants beyond the years
/// 1 to 9999 have the nearest year within.
Year YearFrom(qint64 utcMilliseconds);

/// A stretch of one displayed date and one lunar date, without a change of the clock's offset.
struct Stretch
{
    qint64 begin = 0; ///< UTC milliseconds
    qint64 end = 0;
    int firstSecond = 0; ///< of the displayed day, at the begin

    /// The first second of the displayed day that is no longer in it.
    int EndSecond() const { return firstSecond + static_cast<int>(LengthUntil(end)); }
    /// Seconds of the clock that have begun from the begin to before an instant.
    qint64 LengthUntil(qint64 utc) const;
    /// The instant of a second of the day, which must be in it.
    qint64 At(int second) const;
};

/// Without gaps, in order, from the year's first instant to its end.
QVector<Stretch> StretchesOf(Lw::HNodeClock::HClockNode &node, const Year &year);

/// The instant of a midnight on the clock after which a day passes without a change of its offset.
qint64 MidnightOf(const QVector<Stretch> &stretches);

} // namespace ClockFit
