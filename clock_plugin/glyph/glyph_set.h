// The glyph images of a clock: one table of what they are called, what they show and with which
// font, and in which order they are made and kept account of.
//
// The generator, the checks for missing files, the export and the loader walk this table; no list
// of keys stands anywhere else.
#pragma once

#include "clock_attributes.h"

#include <QString>
#include <QVector>

#include <iterator>

namespace Lw::HNodeClock {

/// The values of the attribute ClockType.
enum ClockTypeCode { AnalogClock = 0, DigitalClock = 1, PictureClock = 2 };

enum class Glyph : int {
    TopText,
    ChWeek,
    EnWeek,
    EnWeekSim,
    PersiaWeek,
    Lunar,
    EnMonth,
    DateCh,
    DateChar,
    Space,
    DateNumber,
    Minus,
    HourhandNumber,
    AnalogAM,
    AnalogPM,
    TimeCh,
    TimeChar,
    TimeNumber,
    TimeAM,
    TimePM,
};

enum class GlyphShape {
    Text,       ///< one text, as wide as its advance
    DigitStrip, ///< the digits 0 to 9 in ten equal cells
};

enum class GlyphWording {
    Verbatim,   ///< drawn as it stands in the table
    Translated, ///< looked up in the context of DrwSourceIMage
    TopText,    ///< the node's own text
};

/// Which of the node's fonts an image uses.
enum class GlyphFont { TopText, Week, Lunar, Date, HourScale, AmPm, Time };

enum class GlyphClocks { Both, Analog, Digital };

struct GlyphRow
{
    Glyph glyph;
    const char *key; ///< of the single image; of a series the key without its number
    int count;       ///< 0 for a single image, else the length of the series numbered from 1
    GlyphShape shape;
    GlyphWording wording;
    GlyphFont font;
    GlyphClocks clocks;
    bool required;   ///< its absence makes a node incomplete
    bool exported;   ///< it travels with the program
    int generation;  ///< place in the order of making; rows of one place take turns by number
    int bookkeeping; ///< place in the order of checking and exporting, likewise
    const char *texts[12];
};

#define CLOCK_GLYPH_TR(text) QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", text)

// clang-format off
inline constexpr GlyphRow kGlyphTable[] = {
    {Glyph::TopText, "_toptext", 0, GlyphShape::Text, GlyphWording::TopText,
     GlyphFont::TopText, GlyphClocks::Both, false, true, 1, 6, {}},
    {Glyph::ChWeek, "_chWeek_", 7, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Week, GlyphClocks::Both, true, true, 2, 7,
     {CLOCK_GLYPH_TR("Monday"), CLOCK_GLYPH_TR("Tuesday"), CLOCK_GLYPH_TR("Wednesday"),
      CLOCK_GLYPH_TR("Thursday"), CLOCK_GLYPH_TR("Friday"), CLOCK_GLYPH_TR("Saturday"),
      CLOCK_GLYPH_TR("Sunday")}},
    {Glyph::EnWeek, "_enWeek_", 7, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Week, GlyphClocks::Both, true, true, 2, 7,
     {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"}},
    {Glyph::EnWeekSim, "_enWeekSim_", 7, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Week, GlyphClocks::Both, true, true, 2, 7,
     {"Mon.", "Tues.", "Wed.", "Thurs.", "Fri.", "Sat.", "Sun."}},
    {Glyph::PersiaWeek, "_PersiaWeek_", 7, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Week, GlyphClocks::Both, false, true, 2, 7,
     {CLOCK_GLYPH_TR("PersiaMonday"), CLOCK_GLYPH_TR("PersiaTuesday"),
      CLOCK_GLYPH_TR("PersiaWednesday"), CLOCK_GLYPH_TR("PersiaThursday"),
      CLOCK_GLYPH_TR("PersiaFriday"), CLOCK_GLYPH_TR("PersiaSaturday"),
      CLOCK_GLYPH_TR("PersiaSunday")}},
    {Glyph::Lunar, "_lunar", 0, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Lunar, GlyphClocks::Both, true, true, 3, 8, {CLOCK_GLYPH_TR("lunarString")}},
    {Glyph::EnMonth, "_dateEnMonth_", 12, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Date, GlyphClocks::Both, true, true, 4, 13,
     {"Jan.", "Feb.", "Mar.", "Apr.", "May", "Jun.",
      "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."}},
    {Glyph::DateCh, "_dateCh", 0, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Date, GlyphClocks::Both, true, true, 5, 10, {CLOCK_GLYPH_TR("DateString")}},
    {Glyph::DateChar, "_dateChar", 0, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Date, GlyphClocks::Both, true, true, 6, 11, {",/"}},
    {Glyph::Space, "_space", 0, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Date, GlyphClocks::Both, false, true, 7, 12, {" "}},
    {Glyph::DateNumber, "_dateNumber", 0, GlyphShape::DigitStrip, GlyphWording::Verbatim,
     GlyphFont::Date, GlyphClocks::Both, true, true, 8, 9, {}},
    {Glyph::Minus, "_Minus", 0, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Date, GlyphClocks::Both, false, false, 9, 14, {"-"}},
    {Glyph::HourhandNumber, "_hourhandNumber", 0, GlyphShape::DigitStrip, GlyphWording::Verbatim,
     GlyphFont::HourScale, GlyphClocks::Analog, true, true, 10, 1, {}},
    {Glyph::AnalogAM, "_AnalogAM", 0, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::AmPm, GlyphClocks::Analog, true, true, 11, 2, {"AM"}},
    {Glyph::AnalogPM, "_AnalogPM", 0, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::AmPm, GlyphClocks::Analog, true, true, 12, 3, {"PM"}},
    {Glyph::TimeCh, "_timeCh", 0, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Time, GlyphClocks::Digital, true, true, 10, 1, {CLOCK_GLYPH_TR("TimeString")}},
    {Glyph::TimeChar, "_timeChar", 0, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Time, GlyphClocks::Digital, true, true, 11, 2, {":"}},
    {Glyph::TimeNumber, "_timeNumber", 0, GlyphShape::DigitStrip, GlyphWording::Verbatim,
     GlyphFont::Time, GlyphClocks::Digital, true, true, 12, 3, {}},
    {Glyph::TimeAM, "_timeAM", 0, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Time, GlyphClocks::Digital, true, true, 13, 4, {" AM"}},
    {Glyph::TimePM, "_timePM", 0, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Time, GlyphClocks::Digital, true, true, 14, 5, {" PM"}},
};
// clang-format on

#undef CLOCK_GLYPH_TR

/// One image of the set.
struct GlyphImage
{
    const GlyphRow *row;
    int number; ///< within its series from 1; 0 for a single image

    QString Key() const;
    const char *Text() const { return row->texts[number > 0 ? number - 1 : 0]; }
};

enum class GlyphOrder { Generation, Bookkeeping };

/// The whole set of a clock of that type, in the order asked for. A type that is neither analog
/// nor digital has the images common to both.
QVector<GlyphImage> GlyphImages(GlyphOrder order, int clockType);

/// The key of one image; made once for the process. A number outside the series gives an empty key.
const QString &GlyphKey(Glyph glyph, int number = 0);

/// The attributes of the font that a clock of a type uses. Only the analog clock has an hour-scale
/// and an AM/PM font, only the digital one a time font.
struct GlyphFontAttributes
{
    Attribute family;
    Attribute size;
    Attribute colour;
};
GlyphFontAttributes FontAttributes(GlyphFont font, int clockType);

} // namespace Lw::HNodeClock
