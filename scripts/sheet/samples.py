"""The samples on the contact sheet."""
import pathlib
import re

from wall import AMBER, BLUE, CHINESE, GREEN, LATIN, WHITE
from wall import Wall, analog, digital, picture, points

# At this time the hands do not cover the texts, and the hour differs in the 12-hour form.
INSTANT = "2024-03-05T14:50:07Z"

STYLE_HEADER = pathlib.Path(__file__).parents[2] / "clock_plugin/display/style_pictures.h"


def kinds(wall):
    wall.heading("Clocks", 18)
    wall.samples(
        ("analog", 128, 128, analog(Analog_TopTexy_d=1, Analog_Date_d=1, Analog_Week_d=1,
                                    HourScaleType=0, MinuteScaleType=2)),
        ("digital", 192, 96, station()),
        ("picture", 128, 128, picture(1)),
    )


def station(**settings):
    return digital(**{
        "Digital_TopTexy_d": 1, "Digital_Date_d": 1, "Digital_Week_d": 1, "Digital_Time_d": 1,
        "DigitalTopText": "Central Station", "DigitalDateType": 8, "DigitalSpace": 3,
        **points("DigitalTopText", LATIN, 11, WHITE),
        **points("DigitalTime", LATIN, 22, AMBER),
        **settings})


def marks(wall):
    names = ("0 lines", "1 dots", "2 squares", "3 twelve digits", "4 four digits", "5 nothing")
    for side, size in ((72, 6), (96, 8)):
        wall.heading(f"Hour marks, {side} pixels")
        wall.samples(*((name, side, side, analog(HourScaleType=code, HourScaleFSize=size))
                       for code, name in enumerate(names)))
    wall.heading("Minute marks, 128 pixels")
    names = ("0 dots", "1 squares", "2 lines", "3 nothing")
    wall.samples(*((name, 128, 128, analog(HourScaleType=0, MinuteScaleType=code))
                   for code, name in enumerate(names)))
    wall.heading("Hour and minute marks, 202 pixels")
    large = ((0, 0, "lines, dots"), (1, 1, "dots, squares"), (2, 2, "squares, lines"),
             (3, 0, "twelve numerals"))
    wall.samples(*((name, 202, 202,
                    analog(HourScaleType=hours, MinuteScaleType=minutes, HourScaleFSize=14))
                   for hours, minutes, name in large))


def hands(wall):
    wall.heading("Hands: hour, minute and second as bar (0) or arrow (1)")
    shapes = [(hour, minute, second)
              for hour in (0, 1) for minute in (0, 1) for second in (0, 1)]
    wall.samples(*(("{} {} {}".format(*shape), 90, 90,
                    analog(HourScaleType=1, HourRectType=shape[0], MinuteRectType=shape[1],
                           SecondRectType=shape[2])) for shape in shapes))
    wall.samples(*(("202 px: {} {} {}".format(*shape), 202, 202,
                    analog(HourScaleType=1, HourRectType=shape[0], MinuteRectType=shape[1],
                           SecondRectType=shape[2]))
                   for shape in ((0, 0, 0), (0, 0, 1), (1, 1, 0), (1, 1, 1))))


def dial_texts(wall):
    wall.heading("Texts of a dial")
    date, week, lunar = {"Analog_Date_d": 1}, {"Analog_Week_d": 1}, {"Analog_Lunar_d": 1}
    top, badge, swapped = {"Analog_TopTexy_d": 1}, {"Analog_AMPM_d": 1}, {"AnalogSwapArea": 1}
    gap = {"AnalogSpace": 5}
    rows = (
        ("top text, badge", {**top, **badge}),
        ("date", date),
        ("day of the week", week),
        ("lunar date", lunar),
        ("date, weekday", {**date, **week}),
        ("swapped, gap 5", {**date, **week, **swapped, **gap}),
        ("lunar, weekday", {**lunar, **week}),
        ("lunar, date, gap 5", {**lunar, **date, **gap}),
        ("three rows", {**lunar, **date, **week}),
        ("three rows, swapped", {**lunar, **date, **week, **swapped, "AnalogDateFSize": 6}),
        ("everything", {**top, **badge, **lunar, **date, **week}),
        ("numerals, weekday", {**week, "AnalogWeekType": 2, "HourScaleType": 3}),
    )
    wall.samples(*((name, 128, 128, analog(**{"HourScaleType": 0, **settings}))
                   for name, settings in rows))
    wall.heading("Sizes and shapes of dials")
    sides = (16, 24, 32, 48, 64, 80, 82)
    wall.samples(*((f"{side} px", side, side, analog()) for side in sides))
    wall.samples(*((f"{width} x {height}", width, height, analog(Analog_Week_d=1))
                   for width, height in ((128, 64), (96, 128), (192, 128))))


def style_count():
    return int(re.search(r"kStyleCount = ([0-9]+)", STYLE_HEADER.read_text("utf-8"))[1])


def styles(wall):
    wall.heading("Styles of the picture clock")
    numbers = range(1, style_count() + 1)
    wall.samples(*((str(style), 150, 150, picture(style)) for style in numbers))
    wall.samples(*((f"{style}: 64 px", 64, 64, picture(style)) for style in numbers))
    wall.samples(("32 px", 32, 32, picture(1)), ("96 x 64", 96, 64, picture(3)),
                 ("64 x 96", 64, 96, picture(6)),
                 ("no picture of this style", 128, 96, picture(99)))


def digital_formats(wall):
    wall.heading("Dates")
    orders = ("year/month/day", "month/day/year", "day/month/year", "month by name, day",
              "day, month by name", "with labels", "without year", "Persian", "year-month-day")
    wall.samples(*((f"{code} {name}", 128, 24,
                    digital(Digital_Date_d=1, DigitalDateType=code,
                            **points("DigitalDate", CHINESE if code in (5, 6) else LATIN, 12,
                                     BLUE)))
                   for code, name in enumerate(orders)))
    wall.heading("Times")
    forms = ("h:m:s", "h:m", "with labels", "labels, h:m", "h:m, no zero")
    for mode, suffix in (({}, ""), ({"DigitalMode": 1}, ", 12 hours"),
                         ({"DigitalMode": 1, "DigitalDispAMPM": 0}, ", no mark")):
        wall.samples(*((f"{code} {name}{suffix}", 150, 28,
                        digital(Digital_Time_d=1, DigitalTimeType=code, **mode,
                                **points("DigitalTime", CHINESE if code in (2, 3) else LATIN, 14,
                                         AMBER)))
                       for code, name in enumerate(forms)))
    wall.heading("Days of the week")
    families = ("0 translated", "1 English", "2 short English", "3 Persian")
    wall.samples(*((name, 120, 24,
                    digital(Digital_Week_d=1, DigitalWeekType=code,
                            **points("DigitalWeek", CHINESE if code == 0 else LATIN, 12, GREEN)))
                   for code, name in enumerate(families)))


def digital_rows(wall):
    wall.heading("Rows of a digital clock")
    top, date, week = {"Digital_TopTexy_d": 1}, {"Digital_Date_d": 1}, {"Digital_Week_d": 1}
    time, lunar, swapped = {"Digital_Time_d": 1}, {"Digital_Lunar_d": 1}, {"DigitalSwapArea": 1}
    rows = (
        ("top text, time", {**top, **time}),
        ("date, weekday", {**date, **week}),
        ("swapped", {**date, **week, **swapped}),
        ("gap 9", {**date, **week, "DigitalSpace": 9}),
        ("three rows", {**week, **date, **time}),
        ("swapped", {**week, **date, **time, **swapped}),
        ("four rows", {**week, **date, **time, **lunar}),
        ("swapped", {**week, **date, **time, **lunar, **swapped}),
        ("five rows", {**top, **week, **date, **time, **lunar}),
        ("swapped", {**top, **week, **date, **time, **lunar, **swapped}),
        ("gap 4", {**top, **week, **date, **time, **lunar, "DigitalSpace": 4}),
        ("gap -4", {**top, **week, **date, **time, **lunar, "DigitalSpace": -4}),
    )
    wall.samples(*((name, 128, 100, digital(**settings)) for name, settings in rows))
    wall.heading("One line")
    everything = {**top, **week, **date, **time, **lunar, "DigitalDisplayMode": 1}
    wall.samples(
        ("gap 8", 410, 24, digital(**everything, DigitalSpace=8)),
        ("swapped, gap 8", 410, 24, digital(**everything, DigitalSpace=8, **swapped)),
        ("twelve hours, gap 8", 410, 24, digital(**everything, DigitalSpace=8, DigitalMode=1)),
        ("wider than its area", 192, 24, digital(**everything)),
    )
    wall.heading("Sizes of LED panels")
    small = points("DigitalTime", LATIN, 7, AMBER)
    wall.samples(
        ("64 x 16", 64, 16, digital(**time, **small)),
        ("64 x 32", 64, 32, digital(**time, **date, **small,
                                    **points("DigitalDate", LATIN, 7, BLUE))),
        ("96 x 32", 96, 32, digital(**time, **points("DigitalTime", LATIN, 14, AMBER))),
        ("128 x 32", 128, 32, digital(**time, **points("DigitalTime", LATIN, 20, AMBER))),
        ("64 x 64", 64, 64, digital(**time, **date, **week, DigitalTimeType=1, DigitalWeekType=2,
                                    **points("DigitalTime", LATIN, 16, AMBER),
                                    **points("DigitalDate", LATIN, 7, BLUE))),
    )


def languages():
    for language, name in (("en", "English"), ("zh", "Chinese"), ("fa", "Persian")):
        wall = Wall(language, INSTANT)
        if language == "en":
            wall.heading("Languages of the wording")
        family = LATIN if language == "fa" else CHINESE
        wall.samples(
            (f"{name}: weekday 0", 150, 24, digital(
                Digital_Week_d=1, DigitalWeekType=0, **points("DigitalWeek", family, 12, GREEN))),
            (f"{name}: date 5", 150, 24, digital(
                Digital_Date_d=1, DigitalDateType=5, **points("DigitalDate", CHINESE, 11, BLUE))),
            (f"{name}: time 2", 150, 24, digital(
                Digital_Time_d=1, DigitalTimeType=2, **points("DigitalTime", CHINESE, 12, AMBER))),
        )
        yield wall


def calendars():
    days = (
        ("2024-03-19", "last day of a Persian year"),
        ("2024-03-20", "first day of a Persian year"),
        ("2023-03-22", "a leap month begins"),
        ("2024-02-10", "lunar new year"),
        ("2024-01-10", "29th of the eleventh lunar month"),
    )
    for number, (day, name) in enumerate(days):
        wall = Wall("zh", f"{day}T14:50:07Z")
        if number == 0:
            wall.heading("Calendars")
        wall.samples(
            (name, 192, 24, digital(Digital_Date_d=1, DigitalDateType=8)),
            ("Persian", 150, 24, digital(Digital_Date_d=1, DigitalDateType=7)),
            ("lunar", 150, 24, digital(Digital_Lunar_d=1)),
            ("day of the week", 150, 24, digital(Digital_Week_d=1, DigitalWeekType=3)),
        )
        yield wall


def walls():
    wall = Wall("zh", INSTANT)
    for section in (kinds, marks, hands, dial_texts, styles, digital_formats, digital_rows):
        section(wall)
    yield wall
    yield from languages()
    yield from calendars()
