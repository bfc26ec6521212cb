#include "calendar/persian_calendar.h"

#include <limits>

namespace Lw::HNodeClock {

namespace {

constexpr int kAnchorYear = 1372;
constexpr qint64 kAnchorJulianDay = 2449068; // 21 March 1993

// The rule repeats exactly: 128 years, 31 of them leap.
constexpr int kCycleYears = 128;
constexpr qint64 kCycleDays = 128 * 365 + 31;
// Cycles whose years all have a number; QDate reaches a little further.
constexpr qint64 kCycles = (std::numeric_limits<int>::max() - kAnchorYear) / kCycleYears;

constexpr int kLongMonths = 6; // of 31 days; the others have 30, the last one 29 in common years
constexpr int kLongMonthsDays = kLongMonths * 31;

// The fraction of value / 128, with the sign of value. The division is exact in double precision
// and its fraction, a multiple of 1/128, exact in single precision.
constexpr float FractionOfCycle(qint64 value)
{
    const double cycles = static_cast<double>(value) * 0.0078125;
    return static_cast<float>(cycles - static_cast<double>(static_cast<qint64>(cycles)));
}

// With the leap days of all years added up in 128ths of a day, a year is leap where less than 31 of
// them are left over. 0.31 lies a little above 31/128; the years before and after tell apart what
// falls between the two.
constexpr bool IsLeap(int year)
{
    constexpr double kLeapFraction = 0.31;
    const qint64 total = (static_cast<qint64>(year) + 38) * 31;
    if (FractionOfCycle(total) >= kLeapFraction)
        return false;
    if (FractionOfCycle(total - 31) >= kLeapFraction)
        return true;
    return FractionOfCycle(total + 31) < kLeapFraction;
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
