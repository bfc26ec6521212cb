#include "calendar/persian_calendar.h"

#include <limits>

namespace Lw::HNodeClock {

namespace {

constexpr int kAnchorYear = 1372;
constexpr qint64 kAnchorJulianDay = 2449068; // 21 March 1993

constexpr int kCycleYears = 128;
constexpr int kLeapYears = 31;
constexpr qint64 kCycleDays = kCycleYears * 365 + kLeapYears;
// The number of cycles whose years fit an int; QDate's range is slightly larger.
constexpr qint64 kCycles = (std::numeric_limits<int>::max() - kAnchorYear) / kCycleYears;

constexpr int kLongMonths = 6; // of 31 days; the others have 30, the last one 29 in common years
constexpr int kLongMonthsDays = kLongMonths * 31;

// Each year adds 31/128 of a day to 365 whole ones; a year is leap when the sum passes a whole day.
// 31/128 is a convergent of the fraction of the mean tropical year, 365.2422 days (after 1/4, 7/29
// and 8/33); an offset of 38 years aligns the cycle so that 1375 is leap, as in Iran. Years up to
// -38 are all leap: the rule's remainder keeps the sign of the dividend, and a negative one is
// below 31.
constexpr bool IsLeap(int year)
{
    constexpr int kPhase = 38;
    return year <= -kPhase || (qint64(year) + kPhase) * kLeapYears % kCycleYears < kLeapYears;
}

constexpr int YearLength(int year)
{
    return IsLeap(year) ? 366 : 365;
}

static_assert(IsLeap(1375) && IsLeap(1404) && !IsLeap(1372) && !IsLeap(1403));

PersianDate FromDayOfYear(int year, int dayOfYear)
{
    if (dayOfYear <= kLongMonthsDays)
        return {year, (dayOfYear - 1) / 31 + 1, (dayOfYear - 1) % 31 + 1};
    const int rest = dayOfYear - kLongMonthsDays - 1;
    return {year, kLongMonths + rest / 30 + 1, rest % 30 + 1};
}

} // namespace

bool IsPersianLeapYear(int year)
{
    return IsLeap(year);
}

PersianDate ToPersianDate(const QDate &date)
{
    if (!date.isValid() || date.toJulianDay() < kAnchorJulianDay)
        return {};
    const qint64 days = date.toJulianDay() - kAnchorJulianDay;
    if (days >= kCycles * kCycleDays)
        return {};
    int year = kAnchorYear + static_cast<int>(days / kCycleDays) * kCycleYears;
    int dayOfYear = static_cast<int>(days % kCycleDays) + 1;
    for (int length = YearLength(year); dayOfYear > length; length = YearLength(year)) {
        ++year;
        dayOfYear -= length;
    }
    return FromDayOfYear(year, dayOfYear);
}

} // namespace Lw::HNodeClock
