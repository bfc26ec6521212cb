// The Persian (Solar Hijri) calendar, counted from one fixed anchor. Pure.
#pragma once

#include <QDate>

namespace Lw::HNodeClock {

struct PersianDate
{
    int year = 1372;
    int month = -1; ///< 1 to 12; -1 with a day of -1 for a date that cannot be converted
    int day = -1;   ///< 1 to 31
};

/// Whether a Persian year has 366 days.
bool IsPersianLeapYear(int year);

/// The Persian date of a Gregorian one from 21 March 1993 on. Dates before it, invalid ones and
/// those beyond the counted range have month and day -1.
PersianDate ToPersianDate(const QDate &date);

} // namespace Lw::HNodeClock
