#include "calendar/lunar_calendar.h"

#include <QDate>

#include <algorithm>
#include <array>
#include <cstdio>
#include <tuple>

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

int s_year = 0;
int s_month = 0;
int s_day = 0;
char returnstr[20] = "";

namespace {

constexpr int kFirstYear = 1900;
constexpr int kYears = 151;

constexpr int kLunarEpoch = 30; // from 1 January 1900 to 31 January 1900, the first lunar new year

// Numbers of the cycles at the start: 31 January 1900 lies in the month of number 14, and ten days
// of the day cycle had passed on 1 January 1900. The year of number 0 is 1864.
constexpr int kFirstMonthCycle = 14;
constexpr int kFirstDayCycle = 10;
constexpr int kFirstCycleYear = 1864;

// The lunar year 1900 + index; one without leap month and 30-day months outside the table.
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

// The Gregorian months that hold a first day with an answer, February 1900 to February 2051.
constexpr bool MonthInRange(int year, int month)
{
    return month >= 1 && month <= 12 && std::tuple(year, month) >= std::tuple(1900, 2)
        && std::tuple(year, month) <= std::tuple(2051, 2);
}

static_assert(kLunarEpoch + kNewYears[kYears] == 55193,
              "the table ends on 10 February 2051, 55192 days after 1 January 1900");

// Where the walk through the months of a lunar year stands.
struct MonthWalk
{
    int month = 1;
    int isLeap = 0;
    int offset = 0; // days still to go; negative when the last month went past the day
    int cycle = 0;
};

// Steps over whole months until the day is reached or passed.
int WalkMonths(int year, MonthWalk &walk)
{
    const int leapMonth = LeapMonth(year);
    int length = 0;
    for (; walk.month <= 12 && walk.offset > 0; ++walk.month) {
        if (leapMonth > 0 && walk.month == leapMonth + 1 && walk.isLeap == 0) {
            --walk.month;
            walk.isLeap = 1;
            length = LeapMonthDays(year);
        } else {
            length = MonthDays(year, walk.month);
        }
        if (walk.isLeap == 1 && walk.month == leapMonth + 1)
            walk.isLeap = 0;
        walk.offset -= length;
        if (walk.isLeap == 0)
            ++walk.cycle;
    }
    return length;
}

// Settles on the month that holds the day, a leap month included.
void SettleMonth(int leapMonth, int lastLength, MonthWalk &walk)
{
    if (walk.offset == 0 && leapMonth > 0 && walk.month == leapMonth + 1) {
        walk.isLeap = 1 - walk.isLeap;
        if (walk.isLeap == 1) {
            --walk.month;
            --walk.cycle;
        }
    }
    if (walk.offset < 0) {
        walk.offset += lastLength;
        --walk.month;
        --walk.cycle;
    }
}

// One day on. The leap month is that of the year the walk began in, also past the new year.
void Advance(Lunar_info &date)
{
    if (date.day < date.monthDays) {
        ++date.day;
        return;
    }
    date.day = 1;
    if (date.month == date.leapMonth && date.isLeap == 0) {
        date.isLeap = 1;
        date.monthDays = LeapMonthDays(date.year);
        return;
    }
    date.isLeap = 0;
    date.year += date.month == 12 ? 1 : 0;
    date.month = date.month % 12 + 1;
    date.monthDays = MonthDays(date.year, date.month);
}

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
    if (!MonthInRange(s_year, s_month)) {
        returnstr[0] = '\0';
        return;
    }
    if (wanted < 1 || wanted > day(s_month))
        return;
    if (!Lw::HNodeClock::InLunarRange(s_year, s_month, wanted)) {
        returnstr[0] = '\0';
        return;
    }
    Lunar_info date;
    Chinese_era era;
    get_lunar_info(s_year, s_month, &date, &era);
    for (int d = 1; d < wanted; ++d)
        Advance(date);
    char dayText[sizeof chinese_day[0]];
    out_chinese(&date, dayText);
    std::snprintf(returnstr, sizeof returnstr, "%d$%s", date.month, dayText);
}

void get_lunar_info(int year, int month, Lunar_info *info, Chinese_era *era)
{
    *info = {};
    *era = {};
    if (!MonthInRange(year, month))
        return;
    const int total = get_solar_total(year, month);
    const int sinceEpoch = total - kLunarEpoch;
    const auto next = std::upper_bound(kNewYears.begin(), kNewYears.end(), sinceEpoch);
    const int index = static_cast<int>(next - kNewYears.begin()) - 1;
    info->year = kFirstYear + index;
    info->leapMonth = LeapMonth(info->year);

    MonthWalk walk;
    walk.offset = sinceEpoch - *(next - 1);
    walk.cycle = kFirstMonthCycle + 12 * index;
    const int lastLength = WalkMonths(info->year, walk);
    SettleMonth(info->leapMonth, lastLength, walk);

    info->month = walk.month;
    info->day = walk.offset + 1;
    info->isLeap = walk.isLeap;
    info->monthDays =
        walk.isLeap == 1 ? LeapMonthDays(info->year) : MonthDays(info->year, walk.month);
    *era = {info->year - kFirstCycleYear, walk.cycle, total + kFirstDayCycle};
}

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

bool InLunarRange(int year, int month, int day)
{
    return MonthInRange(year, month) && QDate::isValid(year, month, day)
        && std::tuple(year, month, day) <= std::tuple(2051, 2, 10);
}

} // namespace Lw::HNodeClock
