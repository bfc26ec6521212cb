#!/usr/bin/python3
"""Makes tools/self_test/calendar_digests.h, the expected calendars of clock_tool self-test.

Run by hand from the top of the tree; neither the build nor the tests run it:

    scripts/make_self_test_digests.py > tools/self_test/calendar_digests.h

The dates come from tests/calendar/lunar_months.csv and nowruz.csv, which are computed
astronomically. The days on which the clock differs (docs/calendars.md) are corrected by hand below,
without using the clock's output.
"""

import csv
import datetime
import hashlib

DAY = datetime.timedelta(days=1)

# First day, number of days, lunar month and day of the first: the days on which the clock differs.
LUNAR_EXCEPTIONS = [
    ("1906-04-23", 1, 3, 30),
    ("1906-04-24", 29, 4, 1),
    ("1933-07-22", 30, 6, 1),
    ("1996-07-15", 30, 6, 1),
    ("1996-09-12", 30, 8, 1),
    ("2033-08-25", 29, 7, 1),
    ("2033-09-23", 30, 8, 1),
    ("2033-10-23", 30, 9, 1),
    ("2033-11-22", 30, 10, 1),
    ("2033-12-22", 29, 11, 1),
]
# Years that begin a day earlier on the clock.
PERSIAN_EXCEPTIONS = {1404, 1437}


def read(name):
    with open(f"tests/calendar/{name}", encoding="ascii") as file:
        return list(csv.DictReader(file))


def days(first, last):
    while first <= last:
        yield first
        first += DAY


def lunar_lines():
    dates = {}

    def put(first, length, month, day):
        for i in range(length):
            dates[first + i * DAY] = (month, day + i)

    for row in read("lunar_months.csv"):
        put(datetime.date.fromisoformat(row["first_day"]), int(row["days"]), int(row["month"]), 1)
    for first, length, month, day in LUNAR_EXCEPTIONS:
        put(datetime.date.fromisoformat(first), length, month, day)
    for date in days(datetime.date(1900, 2, 1), datetime.date(2051, 2, 10)):
        month, day = dates[date]
        yield f"{date} {month}${day:02}\n"


def new_years():
    firsts = {}
    for row in read("nowruz.csv"):
        year = int(row["persian_year"])
        first = datetime.date.fromisoformat(row["first_day"])
        firsts[year] = first - DAY if year in PERSIAN_EXCEPTIONS else first
    return firsts


def persian_lines(firsts):
    for year, first in firsts.items():
        if year + 1 not in firsts:
            return
        for i in range((firsts[year + 1] - first).days):
            month, day = (i // 31, i % 31) if i < 186 else (6 + (i - 186) // 30, (i - 186) % 30)
            yield f"{first + i * DAY} {year}-{month + 1}-{day + 1}\n"


def leap_lines(firsts):
    for year, first in firsts.items():
        if year + 1 in firsts and (firsts[year + 1] - first).days == 366:
            yield f"{year}\n"


def digest(name, lines):
    text = "".join(lines).encode("ascii")
    print(f'inline constexpr char {name}[] =\n    "{hashlib.sha256(text).hexdigest()}";')


def main():
    firsts = new_years()
    last = max(firsts)
    print("// SHA-256 of the calendars' texts. Made by scripts/make_self_test_digests.py.")
    print("#pragma once\n\nnamespace ClockTool {\n")
    print('/// "1900-02-01 1$02" and a newline for every day that has a lunar date.')
    digest("kLunarDigest", lunar_lines())
    print('\n/// "1993-03-21 1372-1-1" and a newline for every day up to the year below.')
    digest("kPersianDigest", persian_lines(firsts))
    print("\n/// The leap years within the same years, one per line.")
    digest("kPersianLeapDigest", leap_lines(firsts))
    print("\n/// One past the last year in the texts.")
    print(f"inline constexpr int kPersianEnd = {last};")
    print("\n} // namespace ClockTool")


if __name__ == "__main__":
    main()
