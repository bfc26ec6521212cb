// calendar/: the host's C interface to the Chinese lunar calendar, a wrapper around the pure
// lunar_date. The functions outside the namespace keep their arguments and result in globals, so
// they are not thread-safe.
#pragma once

#include "clock_export.h"

/// The lunar date of one day.
struct Lunar_info
{
    int year;
    int month;     ///< 1 to 12; a leap month carries the number of the month it repeats
    int day;       ///< 1 to 30
    int monthDays; ///< length of this lunar month, 29 or 30
    int leapMonth; ///< the year's leap month, 0 for none
    int isLeap;    ///< 1 if this month is the leap month
};

/// Positions in the sexagenary cycles.
struct Chinese_era
{
    int year;
    int month;
    int day;
};

// Entry i of lunar_info describes the lunar year 1900 + i: bits 0-3 the leap month; bit 16 - m set
// when month m has 30 days; bit 16 set when the leap month has 30 days.
extern CLOCK_EXPORT const unsigned int lunar_info[151];

// Texts in GB2312, each in a slot of fixed width with its terminating zero.
extern CLOCK_EXPORT const char Gan[10][3];
extern CLOCK_EXPORT const char Zhi[12][3];
extern CLOCK_EXPORT const char Animals[12][3];
extern CLOCK_EXPORT const char chinese_month[12][5];
extern CLOCK_EXPORT const char chinese_day[30][5];

// The Gregorian year and month of the current query; s_day, which is never set here; and the last
// result.
extern CLOCK_EXPORT int s_year;
extern CLOCK_EXPORT int s_month;
extern CLOCK_EXPORT int s_day;
extern CLOCK_EXPORT char returnstr[20];

/// The lunar date as "month$day", the day with two digits ("3$05", "12$29"), in returnstr, which
/// the next call overwrites. Empty before 1 February 1900 and after 10 February 2051. A day outside
/// its month leaves the previous result.
CLOCK_EXPORT char *LunarCalendarSetup(int year, int month, int day);
/// Writes the result for a day of s_year and s_month into returnstr.
CLOCK_EXPORT void sub_menue(int day);
/// The lunar date of the first day of a Gregorian month; all zero for a month outside February 1900
/// to February 2051.
CLOCK_EXPORT void get_lunar_info(int year, int month, Lunar_info *info, Chinese_era *era);

/// 366 for a Gregorian leap year, else 365.
CLOCK_EXPORT int leap(int year);
/// Days of a Gregorian month of s_year; 28 for a month outside 1 to 12.
CLOCK_EXPORT int day(int month);
/// Days from 1 January 1900 to the first of a Gregorian month, negative before it. The month is
/// clamped to 1 to 12, the result to the range of int.
CLOCK_EXPORT int get_solar_total(int year, int month);
/// The weekday of the first of a Gregorian month: 1 Sunday to 7 Saturday.
CLOCK_EXPORT int get_week(int year, int month);

// Years outside the table have no leap month, and all their months have 29 days. So does any month
// outside 1 to 12.

/// The leap month of a lunar year, 0 for none.
CLOCK_EXPORT int get_leap_month(int year);
/// Days of the leap month: 29 or 30, 0 for none.
CLOCK_EXPORT int get_leap_month_day(int year);
/// Days of an ordinary lunar month: 29 or 30.
CLOCK_EXPORT int get_lunar_month_total(int year, int month);
/// Days of a lunar year, the leap month included.
CLOCK_EXPORT int get_lunar_year_total(int year);

/// The stem and branch of a sexagenary number in GB2312: four bytes and a terminating zero.
CLOCK_EXPORT void get_chinese_era(int cycle, char *out);
/// The day of a lunar date as two digits and a terminating zero; empty for a day outside 1 to 30.
CLOCK_EXPORT void out_chinese(Lunar_info *info, char *out);

namespace Lw::HNodeClock {

/// Whether a Gregorian day has a lunar date; false for a day that its month does not have.
bool InLunarRange(int year, int month, int day);

} // namespace Lw::HNodeClock
