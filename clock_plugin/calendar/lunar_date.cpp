#include "calendar/lunar_date.h"

#include "calendar/lunar_calendar.h"

#include <algorithm>
#include <array>

// clang-format off
constexpr unsigned int lunar_info[151] = {
    0x04BD8, 0x04AE0, 0x0A570, 0x054D5, 0x0D260, 0x0D950, 0x16554, 0x056A0, 0x09AD0, 0x055D2, // 1900
    0x04AE0, 0x0A5B6, 0x0A4D0, 0x0D250, 0x1D255, 0x0B540, 0x0D6A0, 0x0ADA2, 0x095B0, 0x14977, // 1910
    0x04970, 0x0A4B0, 0x0B4B5, 0x06A50, 0x06D40, 0x1AB54, 0x02B60, 0x09570, 0x052F2, 0x04970, // 1920
    0x06566, 0x0D4A0, 0x0EA50, 0x06E95, 0x05AD0, 0x02B60, 0x186E3, 0x092E0, 0x1C8D7, 0x0C950, // 1930
    0x0D4A0, 0x1D8A6, 0x0B550, 0x056A0, 0x1A5B4, 0x025D0, 0x092D0, 0x0D2B2, 0x0A950, 0x0B557, // 1940
    0x06CA0, 0x0B550, 0x15355, 0x04DA0, 0x0A5B0, 0x14573, 0x052B0, 0x0A9A8, 0x0E950, 0x06AA0, // 1950
    0x0AEA6, 0x0AB50, 0x04B60, 0x0AAE4, 0x0A570, 0x05260, 0x0F263, 0x0D950, 0x05B57, 0x056A0, // 1960
    0x096D0, 0x04DD5, 0x04AD0, 0x0A4D0, 0x0D4D4, 0x0D250, 0x0D558, 0x0B540, 0x0B6A0, 0x195A6, // 1970
    0x095B0, 0x049B0, 0x0A974, 0x0A4B0, 0x0B27A, 0x06A50, 0x06D40, 0x0AF46, 0x0AB60, 0x09570, // 1980
    0x04AF5, 0x04970, 0x064B0, 0x074A3, 0x0EA50, 0x06B58, 0x055C0, 0x0AB60, 0x096D5, 0x092E0, // 1990
    0x0C960, 0x0D954, 0x0D4A0, 0x0DA50, 0x07552, 0x056A0, 0x0ABB7, 0x025D0, 0x092D0, 0x0CAB5, // 2000
    0x0A950, 0x0B4A0, 0x0BAA4, 0x0AD50, 0x055D9, 0x04BA0, 0x0A5B0, 0x15176, 0x052B0, 0x0A930, // 2010
    0x07954, 0x06AA0, 0x0AD50, 0x05B52, 0x04B60, 0x0A6E6, 0x0A4E0, 0x0D260, 0x0EA65, 0x0D530, // 2020
    0x05AA0, 0x076A3, 0x096D0, 0x04BD7, 0x04AD0, 0x0A4D0, 0x1D0B6, 0x0D250, 0x0D520, 0x0DD45, // 2030
    0x0B5A0, 0x056D0, 0x055B2, 0x049B0, 0x0A577, 0x0A4B0, 0x0AA50, 0x1B255, 0x06D20, 0x0ADA0, // 2040
    0x14B63, // 2050
};
// clang-format on

namespace {

constexpr int kFirstYear = 1900;
constexpr int kYears = 151;

constexpr qint64 kFirstNewYear = 2415051; // Julian day of 31 January 1900, lunar new year

// 0 outside the table: no leap month, and every month has 29 days.
constexpr unsigned int Entry(int year)
{
    return year >= kFirstYear && year < kFirstYear + kYears ? lunar_info[year - kFirstYear] : 0;
}

constexpr int LeapMonth(int year)
{
    return static_cast<int>(Entry(year) & 0xF);
}

constexpr int LeapMonthDays(int year)
{
    if (LeapMonth(year) == 0)
        return 0;
    return (Entry(year) & 0x10000) != 0 ? 30 : 29;
}

constexpr int MonthDays(int year, int month)
{
    if (month < 1 || month > 12)
        return 29;
    return (Entry(year) >> (16 - month) & 1) != 0 ? 30 : 29;
}

constexpr int YearDays(int year)
{
    int days = LeapMonthDays(year);
    for (int month = 1; month <= 12; ++month)
        days += MonthDays(year, month);
    return days;
}

// Days from the first lunar new year of the table to each later one.
constexpr std::array<int, kYears + 1> kNewYears = [] {
    std::array<int, kYears + 1> days {};
    for (int i = 0; i < kYears; ++i)
        days[static_cast<std::size_t>(i) + 1] =
            days[static_cast<std::size_t>(i)] + YearDays(kFirstYear + i);
    return days;
}();

static_assert(kNewYears[kYears] == 55163, "the table ends on 10 February 2051");

} // namespace

int get_leap_month(int year)
{
    return LeapMonth(year);
}

int get_leap_month_day(int year)
{
    return LeapMonthDays(year);
}

int get_lunar_month_total(int year, int month)
{
    return MonthDays(year, month);
}

int get_lunar_year_total(int year)
{
    return YearDays(year);
}

namespace Lw::HNodeClock {

namespace {

LunarDate MonthAfter(const LunarDate &date)
{
    if (date.month == LeapMonth(date.year) && !date.isLeapMonth)
        return {date.year, date.month, 0, LeapMonthDays(date.year), true};
    return {date.year, date.month + 1, 0, MonthDays(date.year, date.month + 1), false};
}

LunarDate DateInYear(int year, int daysSinceNewYear)
{
    LunarDate date {year, 1, 0, MonthDays(year, 1), false};
    for (; daysSinceNewYear >= date.monthDays; date = MonthAfter(date))
        daysSinceNewYear -= date.monthDays;
    date.day = daysSinceNewYear + 1;
    return date;
}

} // namespace

LunarDate LunarDateOf(const QDate &date)
{
    // 31 January 1900 is in the table but gets no lunar date: the C functions answer only for
    // Gregorian months whose first day is in the table.
    if (!date.isValid() || date.toJulianDay() <= kFirstNewYear
        || date.toJulianDay() >= kFirstNewYear + kNewYears.back())
        return {};
    const int day = static_cast<int>(date.toJulianDay() - kFirstNewYear);
    const auto newYear = std::upper_bound(kNewYears.begin(), kNewYears.end(), day) - 1;
    return DateInYear(kFirstYear + static_cast<int>(newYear - kNewYears.begin()), day - *newYear);
}

} // namespace Lw::HNodeClock
