#!/usr/bin/python3
"""Makes tests/calendar/reference/nowruz.csv: the Gregorian day that begins each Persian year.

Run by hand (Debian: python3-ephem); neither the build nor the tests run it:

    /usr/bin/python3 scripts/make_nowruz_table.py > tests/calendar/reference/nowruz.csv

The year begins on the day of the March equinox if that is before noon at UTC+3:30, otherwise on the
next day.
"""

import datetime

import ephem

FIRST_YEAR, LAST_YEAR = 1993, 2061
IRAN = datetime.timedelta(hours=3, minutes=30)


def main():
    print("persian_year,first_day")
    for year in range(FIRST_YEAR, LAST_YEAR + 1):
        equinox = ephem.next_vernal_equinox(str(year)).datetime() + IRAN
        late = datetime.timedelta(days=1 if equinox.hour >= 12 else 0)
        print(year - 621, equinox.date() + late, sep=",")


if __name__ == "__main__":
    main()
