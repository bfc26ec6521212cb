// The Gregorian side of the lunar calendar: lengths of months and years, days since 1900.
#include "calendar/lunar_calendar.h"
#include "calendar/time_units.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

using Lw::HNodeClock::FloorDivide;
using Lw::HNodeClock::FloorModulo;

constexpr bool IsLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

constexpr int SolarMonthDays(int year, int month)
{
    constexpr int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12)
        return 28;
    return kDays[month - 1] + (month == 2 && IsLeapYear(year) ? 1 : 0);
}

// Days from 1 January of the year 1 to that of another.
constexpr std::int64_t DaysBeforeYear(std::int64_t year)
{
    const std::int64_t past = year - 1;
    return past * 365 + FloorDivide(past, 4) - FloorDivide(past, 100) + FloorDivide(past, 400);
}

constexpr std::int64_t SolarTotal(int year, int month)
{
    std::int64_t days = DaysBeforeYear(year) - DaysBeforeYear(1900);
    for (int m = 1; m < std::clamp(month, 1, 12); ++m)
        days += SolarMonthDays(year, m);
    return days;
}

static_assert(SolarTotal(1900, 1) == 0 && SolarTotal(2000, 3) == 36524 + 60);

} // namespace

int leap(int year)
{
    return IsLeapYear(year) ? 366 : 365;
}

int day(int month)
{
    return SolarMonthDays(s_year, month);
}

int get_solar_total(int year, int month)
{
    constexpr std::int64_t kLowest = std::numeric_limits<int>::min();
    constexpr std::int64_t kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(SolarTotal(year, month), kLowest, kHighest));
}

int get_week(int year, int month)
{
    const int week = (static_cast<int>(FloorModulo(SolarTotal(year, month), 7)) + 2) % 7;
    return week == 0 ? 7 : week;
}
