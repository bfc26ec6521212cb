// calendar/: the days on which a clock's lunar or Persian date is not that of the calendar. Pure.
#pragma once

#include <QDate>
#include <QVector>

namespace Lw::HNodeClock {

/// Consecutive days in the Gregorian calendar.
struct DeviatingDays
{
    QDate first;
    QDate last; ///< included; invalid if there is no last day
};

/// The days, in order, whose lunar date is wrong, or missing because the table has ended.
QVector<DeviatingDays> LunarDeviations();

/// The days, in order, whose Persian date is a day ahead of the calendar of Iran. The two were
/// compared up to 2060.
QVector<DeviatingDays> PersianDeviations();

} // namespace Lw::HNodeClock
