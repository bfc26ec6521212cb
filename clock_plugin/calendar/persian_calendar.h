// calendar/: the Persian (Solar Hijri) calendar, computed from a fixed anchor date. Pure.
//
// Leap years follow an arithmetic rule (31 in 128 years), not the equinox, which differs from it in
// two years from 1993 to 2060 (calendar_deviations).
#pragma once

#include <QDate>

namespace Lw::HNodeClock {

struct PersianDate
{
    int year = 1372;
    int month = -1; ///< 1 to 12; -1 with a day of -1 for a date that cannot be converted
    int day = -1;   ///< 1 to 31
};

/// Whether a Persian year has 366 days, for every int.
bool IsPersianLeapYear(int year);

/// The Persian date of a Gregorian date on or after 21 March 1993 (1 Farvardin 1372). Dates
/// before it, invalid ones and those of Persian years beyond the range of int give the year 1372
/// with month and day -1.
PersianDate ToPersianDate(const QDate &date);

} // namespace Lw::HNodeClock
