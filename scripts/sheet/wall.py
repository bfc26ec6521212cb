"""A content program laid out like a page: headings, and rows of samples with labels.

Headings and labels are clocks that show only their top text.
"""
import xml.etree.ElementTree as ElementTree

ANALOG, DIGITAL, PICTURE = 0, 1, 2
LATIN = "DejaVu Sans"
CHINESE = "WenQuanYi Micro Hei"

WIDTH = 880
MARGIN = 12
GAP = 12
LABEL_HEIGHT = 13
HEADING_HEIGHT = 34

WHITE, GREY = "#ffffff", "#a8a8a8"
AMBER, BLUE, GREEN, RED, GOLD = "#ffb000", "#60c0ff", "#60ff60", "#ff4040", "#ffd040"


def colour(name):
    """#rrggbb as clocks store it, with red in the lowest byte."""
    red, green, blue = (int(name[i : i + 2], 16) for i in (1, 3, 5))
    return red | green << 8 | blue << 16


def points(name, family, size, ink):
    """The font of an element, whose three keys begin with its name."""
    return {f"{name}FName": family, f"{name}FSize": size, f"{name}Color": colour(ink)}


def analog(**settings):
    """A dial without texts, changed by the attributes."""
    return {
        "ClockType": ANALOG,
        "HourHandColor": colour(AMBER),
        "MinuteHandColor": colour(GREEN),
        "SecondHandColor": colour(RED),
        "HourScaleColor": colour(WHITE),
        "MinuteScaleColor": colour(BLUE),
        "HourScaleFName": LATIN,
        "HourScaleFSize": 8,
        "Analog_TopTexy_d": 0,
        "Analog_Date_d": 0,
        "Analog_Week_d": 0,
        "Analog_AMPM_d": 0,
        "AnalogTopText": "LED",
        "AnalogWeekType": 2,
        **points("AnalogTopText", LATIN, 8, WHITE),
        **points("AnalogDate", LATIN, 8, BLUE),
        **points("AnalogWeek", LATIN, 8, GREEN),
        **points("AnalogLunar", CHINESE, 8, GOLD),
        **points("AnalogAMPM", LATIN, 8, RED),
        **settings,
    }


def digital(**settings):
    """A digital clock that shows only what the attributes switch on."""
    return {
        "ClockType": DIGITAL,
        "Digital_TopTexy_d": 0,
        "Digital_Date_d": 0,
        "Digital_Week_d": 0,
        "Digital_Time_d": 0,
        "DigitalTopText": "LED",
        "DigitalWeekType": 1,
        **points("DigitalTopText", LATIN, 10, WHITE),
        **points("DigitalDate", LATIN, 10, BLUE),
        **points("DigitalWeek", LATIN, 10, GREEN),
        **points("DigitalTime", LATIN, 10, AMBER),
        **points("DigitalLunar", CHINESE, 10, GOLD),
        **settings,
    }


def picture(style):
    return {"ClockType": PICTURE, "PictrueClockType": style}


def text(words, size, ink, family=LATIN):
    return digital(
        Digital_TopTexy_d=1, DigitalTopText=words, **points("DigitalTopText", family, size, ink)
    )


class Wall:
    """Areas added from top to bottom, and the language and instant at which they are played."""

    def __init__(self, language, instant):
        self.language = language
        self.instant = instant
        self._areas = []
        self._y = 0

    def heading(self, words, size=12):
        self._place(0, self._y + 8, WIDTH, HEADING_HEIGHT - 10, text(words, size, AMBER))
        self._y += HEADING_HEIGHT

    def samples(self, *samples):
        """Adds rows of (label, width, height, attributes) in cells of the largest sample's size."""
        width = max(sample[1] for sample in samples) + GAP
        height = max(sample[2] for sample in samples)
        per_row = (WIDTH - MARGIN) // width
        for first in range(0, len(samples), per_row):
            row = samples[first : first + per_row]
            self._row(row, (WIDTH - width * len(row)) // 2, width, height)

    def _row(self, row, x, width, height):
        for label, own_width, own_height, attributes in row:
            left = x + (width - own_width) // 2
            top = self._y + (height - own_height) // 2
            self._place(left, top, own_width, own_height, attributes)
            self._place(x, self._y + height, width, LABEL_HEIGHT, text(label, 7, GREY))
            x += width
        self._y += height + LABEL_HEIGHT + 8

    def _place(self, x, y, width, height, attributes):
        self._areas.append(((x, y, width, height), attributes))

    def program(self):
        """The program's XML. Its last row of pixels is black."""
        root = ElementTree.Element("program", width=str(WIDTH), height=str(self._y + 2))
        for geometry, attributes in self._areas:
            area = ElementTree.SubElement(
                root, "area", dict(zip(("x", "y", "width", "height"), map(str, geometry)))
            )
            clock = ElementTree.SubElement(area, "clock", type="digital", timezone="+00:00")
            for key, value in attributes.items():
                ElementTree.SubElement(clock, "attribute", key=key, value=str(value))
        return ElementTree.tostring(root, encoding="utf-8", xml_declaration=True)
