// calendar/: the Chinese lunar calendar of the years 1900 to 2050, looked up in a table of month
// lengths. Pure.
//
// The table is fixed and differs from the calendar in three years (calendar_deviations): in 1933
// and 1996 some dates are one day ahead; 2033 has a leap month 7 instead of a leap month 11.
#pragma once

#include <QDate>

namespace Lw::HNodeClock {

struct LunarDate
{
    int year = 0;
    int month = 0;            ///< 1 to 12; a leap month has the number of the month that it repeats
    int day = 0;              ///< 1 to 30
    int monthDays = 0;        ///< length of this month: 29 or 30
    bool isLeapMonth = false; ///< whether this is the year's leap month

    bool IsValid() const { return month > 0; }
};

/// The lunar date of a Gregorian day from 1 February 1900 to 10 February 2051, the last day of the
/// lunar year 2050; invalid for every other day.
LunarDate LunarDateOf(const QDate &date);

} // namespace Lw::HNodeClock
