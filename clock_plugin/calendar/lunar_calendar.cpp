// The host's C interface to the lunar calendar: thin wrappers with global state around lunar_date,
// Gregorian date arithmetic, and the texts of cycles and days in GB2312.
#include "calendar/lunar_calendar.h"

#include "calendar/lunar_date.h"
#include "calendar/time_units.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>

// clang-format off
// Written as bytes because the slots have room for GB2312 only.
constexpr char Gan[10][3] = {
    "\xBC\xD7", "\xD2\xD2", "\xB1\xFB", "\xB6\xA1", "\xCE\xEC", "\xBC\xBA",
    "\xB8\xFD", "\xD0\xC1", "\xC8\xC9", "\xB9\xEF",
};
constexpr char Zhi[12][3] = {
    "\xD7\xD3", "\xB3\xF3", "\xD2\xFA", "\xC3\xAE", "\xB3\xBD", "\xCB\xC8",
    "\xCE\xE7", "\xCE\xB4", "\xC9\xEA", "\xD3\xCF", "\xD0\xE7", "\xBA\xA5",
};
constexpr char Animals[12][3] = {
    "\xCA\xF3", "\xC5\xA3", "\xBB\xA2", "\xCD\xC3", "\xC1\xFA", "\xC9\xDF",
    "\xC2\xED", "\xD1\xF2", "\xBA\xEF", "\xBC\xA6", "\xB9\xB7", "\xD6\xED",
};
constexpr char chinese_month[12][5] = {
    "\xD5\xFD", "\xB6\xFE", "\xC8\xFD", "\xCB\xC4", "\xCE\xE5", "\xC1\xF9",
    "\xC6\xDF", "\xB0\xCB", "\xBE\xC5", "\xCA\xAE", "\xB6\xAC", "\xC0\xB0",
};
constexpr char chinese_day[30][5] = {
    "01", "02", "03", "04", "05", "06", "07", "08", "09", "10",
    "11", "12", "13", "14", "15", "16", "17", "18", "19", "20",
    "21", "22", "23", "24", "25", "26", "27", "28", "29", "30",
};
// clang-format on

int s_year = 0;
int s_month = 0;
int s_day = 0;
char returnstr[20] = "";

namespace {

using namespace Lw::HNodeClock;

// Positions in the cycles: the lunar month that begins on 31 January 1900 is number 14, ten days of
// the day cycle had passed on 1 January 1900, and the year with number 0 is 1864.
constexpr int kFirstYear = 1900;
constexpr int kFirstMonthCycle = 14;
constexpr int kFirstDayCycle = 10;
constexpr int kFirstCycleYear = 1864;

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

// Days from 1 January of the year 1 to 1 January of another year.
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

char *LunarCalendarSetup(int year, int month, int day)
{
    s_year = year;
    s_month = month;
    sub_menue(day);
    return returnstr;
}

void sub_menue(int wanted)
{
    const bool isKnownMonth = InLunarRange(s_year, s_month, 1);
    if (isKnownMonth && (wanted < 1 || wanted > day(s_month)))
        return;
    const LunarDate date = isKnownMonth ? LunarDateOf(QDate(s_year, s_month, wanted)) : LunarDate();
    if (date.IsValid())
        std::snprintf(returnstr, sizeof returnstr, "%d$%s", date.month, chinese_day[date.day - 1]);
    else
        returnstr[0] = '\0';
}

void get_lunar_info(int year, int month, Lunar_info *info, Chinese_era *era)
{
    *info = {};
    *era = {};
    const LunarDate date = LunarDateOf(QDate(year, month, 1));
    if (!date.IsValid())
        return;
    *info = {date.year,
             date.month,
             date.day,
             date.monthDays,
             get_leap_month(date.year),
             date.isLeapMonth ? 1 : 0};
    *era = {date.year - kFirstCycleYear,
            kFirstMonthCycle + 12 * (date.year - kFirstYear) + date.month - 1,
            get_solar_total(year, month) + kFirstDayCycle};
}

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

void get_chinese_era(int cycle, char *out)
{
    std::memcpy(out, Gan[FloorModulo(cycle, 10)], 2);
    std::memcpy(out + 2, Zhi[FloorModulo(cycle, 12)], sizeof Zhi[0]);
}

void out_chinese(Lunar_info *info, char *out)
{
    const bool known = info->day >= 1 && info->day <= 30;
    std::strcpy(out, known ? chinese_day[info->day - 1] : "");
}

namespace Lw::HNodeClock {

bool InLunarRange(int year, int month, int day)
{
    return LunarDateOf(QDate(year, month, day)).IsValid();
}

} // namespace Lw::HNodeClock
