// The displayed reading of one clock: device time, zone, adjustment, daylight saving, and the
// Persian date where the clock shows one.
#pragma once

#include "calendar/clock_time.h"
#include "clock_node.h"

#include <QDate>
#include <QDateTime>

namespace Lw::HNodeClock {

class ClockReading
{
public:
    /// Takes zone and adjustment from the node; they hold until the next set-up.
    void SetUp(HClockNode &node);
    /// Reads the time and the attributes that are read live. Without a node there is no daylight
    /// saving and no Persian date.
    void Update(HClockNode *node);

    /// The Gregorian date in the clock's zone without daylight saving, now.
    QDate StandardDate() const;

    QDateTime DateTime() const; ///< tagged UTC

    int year = 0; ///< Gregorian, or Persian for a clock that shows the Persian date
    int month = 0;
    int day = 0;
    int hour = 0; ///< 0 to 23
    int minute = 0;
    int second = 0;
    int dayOfWeek = 0; ///< 1 Monday to 7 Sunday, of the Gregorian calendar

private:
    qint64 StandardMilliseconds() const;
    void TakeDate(const QDate &date, bool persian);

    qint64 m_offset = 0;       ///< milliseconds to add to UTC, daylight saving apart
    qint64 m_milliseconds = 0; ///< of the reading, as if it were UTC
    DaylightSaving m_daylightSaving;
    QDate m_date; ///< whose year, month and day are kept
    bool m_persian = false;
};

} // namespace Lw::HNodeClock
