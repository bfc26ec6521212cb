// fit/: divides a year of one clock into stretches within which only the time of day changes.
#pragma once

#include "clock_node.h"

#include <QVector>

namespace ClockFit {

/// UTC milliseconds; the end is exclusive.
struct Year
{
    qint64 begin = 0;
    qint64 end = 0;
};

/// The year from an instant to the same date and time a calendar year later, UTC. It is moved to
/// begin between 0001-01-02 and 9998-12-01.
Year YearFrom(qint64 utcMilliseconds);

/// A stretch of one displayed date and one lunar date, without a change of the clock's offset.
struct Stretch
{
    qint64 begin = 0; ///< UTC milliseconds
    qint64 end = 0;
    int firstSecond = 0; ///< second of the displayed day at `begin`

    /// The first second of the displayed day after the stretch.
    int EndSecond() const { return firstSecond + static_cast<int>(LengthUntil(end)); }
    /// How many of the clock's seconds begin between `begin` and an instant.
    qint64 LengthUntil(qint64 utc) const;
    /// The instant of a second of the displayed day, which must be in the stretch.
    qint64 At(int second) const;
};

/// Without gaps, in order, from the year's first instant to its end.
QVector<Stretch> StretchesOf(Lw::HNodeClock::HClockNode &node, const Year &year);

/// A midnight of the clock that is followed by a full day without a change of its offset; the
/// beginning of the year if there is none.
qint64 MidnightOf(const QVector<Stretch> &stretches);

} // namespace ClockFit
