#!/usr/bin/python3
"""Makes tests/calendar/reference/lunar_months.csv: every month of the Chinese calendar, 1900 to 2050.

Run by hand (Debian: python3-ephem); neither the build nor the tests run it:

    /usr/bin/python3 scripts/make_lunar_table.py > tests/calendar/reference/lunar_months.csv

The months are computed astronomically, not taken from a table. A month begins on the day of a
new moon, counted in China: by the mean time of Beijing, 116 degrees 25 minutes east, up to 1928,
and by UTC+8 from 1929 on, as the official calendar did. Month 11 contains the winter
solstice. If thirteen months begin from one month 11 to the next, the first of them without a major
solar term (the sun's longitude a multiple of 30 degrees) is the leap month and repeats the number
before it.

Columns: first day, lunar year, month, leap (1 or 0), length in days.
"""

import datetime
import math

import ephem

FIRST_YEAR, LAST_YEAR = 1900, 2050
BEIJING = datetime.timedelta(hours=7, minutes=45, seconds=40)
CHINA = datetime.timedelta(hours=8)


def china_day(instant):
    """The calendar day in China of an instant that ephem gives in UTC."""
    utc = ephem.Date(instant).datetime()
    return (utc + (CHINA if utc.year >= 1929 else BEIJING)).date()


def new_moon_days(first_year, last_year):
    days = []
    instant = ephem.Date((first_year, 1, 1))
    while instant < ephem.Date((last_year + 1, 1, 1)):
        instant = ephem.next_new_moon(instant)
        days.append(china_day(instant))
        instant = ephem.Date(instant + 1)
    return days


def sun_longitude(instant):
    """The sun's apparent longitude of date, in degrees."""
    sun = ephem.Sun(instant)
    apparent = ephem.Equatorial(sun.g_ra, sun.g_dec, epoch=instant)
    return math.degrees(ephem.Ecliptic(apparent, epoch=instant).lon)


def major_terms(first_year, last_year):
    """The days on which the sun reaches a multiple of 30 degrees of longitude, and the multiples."""
    terms = []
    instant = ephem.Date((first_year, 1, 1))
    while instant < ephem.Date((last_year + 1, 1, 1)):
        target = math.floor(sun_longitude(instant) / 30 + 1) * 30
        for _ in range(12):
            behind = (target - sun_longitude(instant) + 180) % 360 - 180
            instant = ephem.Date(instant + behind * 365.2422 / 360)
        terms.append((china_day(instant), int(target) % 360))
        instant = ephem.Date(instant + 1)
    return terms


def index_of_month(moons, day):
    """The index of the month that contains the day."""
    return max(i for i, first in enumerate(moons) if first <= day)


def months_of_solstice_year(moons, terms, begin, end, year):
    """The months from one with a winter solstice up to, but not including, the next such month."""
    numbers = [11, 12, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10]
    leap_is_due = end - begin == 13
    position = -1
    for i in range(begin, end):
        has_term = any(moons[i] <= day < moons[i + 1] for day, _ in terms)
        is_leap = leap_is_due and not has_term
        leap_is_due = leap_is_due and not is_leap
        position += 0 if is_leap else 1
        number = numbers[position]
        yield moons[i], year + (position >= 2), number, int(is_leap), (moons[i + 1] - moons[i]).days


def main():
    moons = new_moon_days(FIRST_YEAR - 2, LAST_YEAR + 2)
    terms = major_terms(FIRST_YEAR - 2, LAST_YEAR + 2)
    solstices = {day.year: day for day, longitude in terms if longitude == 270}
    print("first_day,year,month,leap,days")
    for year in range(FIRST_YEAR - 1, LAST_YEAR + 1):
        begin = index_of_month(moons, solstices[year])
        end = index_of_month(moons, solstices[year + 1])
        around = [t for t in terms if abs(t[0].year - year) <= 1]
        for month in months_of_solstice_year(moons, around, begin, end, year):
            if FIRST_YEAR <= month[1] <= LAST_YEAR:
                print(*month, sep=",")


if __name__ == "__main__":
    main()
