// glyph/: the table of a clock's glyph images: their keys, their texts and fonts, and the order of
// generation and recording.
//
// The generator, the checks for missing files, the export and the loader walk this table; there is
// no other list of keys.
#pragma once

#include "clock_attributes.h"

#include <QString>
#include <QVector>

#include <iterator>

namespace Lw::HNodeClock {

// A glyph file's name is the prefix of the clock type, the clock's Id, the image's key and the
// suffix.
inline constexpr char kAnalogPrefix[] = "analog_";
inline constexpr char kDigitalPrefix[] = "digital_";
inline constexpr char kGlyphSuffix[] = ".png";

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

// The number of equal cells in a strip. A cell's width is the strip's width divided by this number,
// rounded down.
inline constexpr int kDigitCells = 10;    ///< the digits 0 to 9
inline constexpr int kLabelCells = 3;     ///< of year, month and day, or hour, minute and second
inline constexpr int kSeparatorCells = 2; ///< comma and slash
inline constexpr int kLunarCells = 17;

enum class GlyphWording {
    Verbatim,   ///< drawn as the table has it
    Translated, ///< looked up in the context of DrwSourceIMage
    TopText,    ///< the node's top text
};

/// Which of the node's fonts an image uses.
enum class GlyphFont { TopText, Week, Lunar, Date, HourScale, AmPm, Time };
inline constexpr int kGlyphFontCount = static_cast<int>(GlyphFont::Time) + 1;

enum class GlyphClocks { Both, Analog, Digital };

struct GlyphRow
{
    Glyph glyph;
    const char *key; ///< of a single image, or of a series without the number
    int count;       ///< 0 for a single image, else the length of the series numbered from 1
    GlyphShape shape;
    GlyphWording wording;
    GlyphFont font;
    GlyphClocks clocks;
    bool required;   ///< its absence makes a node incomplete
    bool exported;   ///< it is part of an export
    int generation;  ///< position in generation order; rows with the same position are sorted
                     ///< together by number
    int bookkeeping; ///< position in the order of checking and exporting, likewise
    const char *texts[12];
};

// The translation context is spelled out so that lupdate finds the texts.
// clang-format off
inline constexpr GlyphRow kGlyphTable[] = {
    {Glyph::TopText, "_toptext", 0, GlyphShape::Text, GlyphWording::TopText,
     GlyphFont::TopText, GlyphClocks::Both, false, true, 1, 6, {}},
    {Glyph::ChWeek, "_chWeek_", 7, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Week, GlyphClocks::Both, true, true, 2, 7,
     {QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "Monday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "Tuesday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "Wednesday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "Thursday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "Friday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "Saturday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "Sunday")}},
    {Glyph::EnWeek, "_enWeek_", 7, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Week, GlyphClocks::Both, true, true, 2, 7,
     {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"}},
    {Glyph::EnWeekSim, "_enWeekSim_", 7, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Week, GlyphClocks::Both, true, true, 2, 7,
     {"Mon.", "Tues.", "Wed.", "Thurs.", "Fri.", "Sat.", "Sun."}},
    {Glyph::PersiaWeek, "_PersiaWeek_", 7, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Week, GlyphClocks::Both, false, true, 2, 7,
     {QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "PersiaMonday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "PersiaTuesday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "PersiaWednesday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "PersiaThursday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "PersiaFriday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "PersiaSaturday"),
      QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "PersiaSunday")}},
    {Glyph::Lunar, "_lunar", 0, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Lunar, GlyphClocks::Both, true, true, 3, 8,
     {QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "lunarString")}},
    {Glyph::EnMonth, "_dateEnMonth_", 12, GlyphShape::Text, GlyphWording::Verbatim,
     GlyphFont::Date, GlyphClocks::Both, true, true, 4, 13,
     {"Jan.", "Feb.", "Mar.", "Apr.", "May", "Jun.",
      "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."}},
    {Glyph::DateCh, "_dateCh", 0, GlyphShape::Text, GlyphWording::Translated,
     GlyphFont::Date, GlyphClocks::Both, true, true, 5, 10,
     {QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "DateString")}},
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
     GlyphFont::Time, GlyphClocks::Digital, true, true, 10, 1,
     {QT_TRANSLATE_NOOP("Lw::HNodeClock::DrwSourceIMage", "TimeString")}},
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

inline constexpr int kGlyphCount = static_cast<int>(std::size(kGlyphTable));
/// The longest series.
inline constexpr int kGlyphTexts = static_cast<int>(std::size(kGlyphTable[0].texts));

constexpr bool GlyphTableFollowsEnumeration()
{
    for (int i = 0; i < kGlyphCount; ++i) {
        if (kGlyphTable[i].glyph != static_cast<Glyph>(i))
            return false;
    }
    return true;
}
static_assert(GlyphTableFollowsEnumeration(), "row i of the table must describe glyph i");

constexpr bool EveryGlyphHasItsTexts()
{
    for (const GlyphRow &row : kGlyphTable) {
        const bool drawsTexts =
            row.shape == GlyphShape::Text && row.wording != GlyphWording::TopText;
        const int expected = !drawsTexts ? 0 : row.count > 0 ? row.count : 1;
        for (int i = 0; i < kGlyphTexts; ++i) {
            if ((row.texts[i] != nullptr) != (i < expected))
                return false;
        }
    }
    return true;
}
static_assert(EveryGlyphHasItsTexts(), "a text for every image that shows one, and no more");

constexpr const GlyphRow &RowOf(Glyph glyph)
{
    return kGlyphTable[static_cast<int>(glyph)];
}

/// One image of the set.
struct GlyphImage
{
    const GlyphRow *row;
    int number; ///< within its series from 1; 0 for a single image

    const QString &Key() const;
    /// Its text in the table; null for a digit strip and for the node's own text.
    const char *Text() const { return row->texts[number > 0 ? number - 1 : 0]; }
};

enum class GlyphOrder { Generation, Bookkeeping };

/// All images of a clock of this type, in the given order. A type that is neither analog
/// nor digital has the images common to both.
QVector<GlyphImage> GlyphImages(GlyphOrder order, int clockType);

/// The key of one image, created once per process. Empty for a number outside the series; a single
/// image has only number 0.
const QString &GlyphKey(Glyph glyph, int number = 0);

/// The attributes of a font for a clock type. Analog-only fonts (hour scale, AM/PM) and the
/// digital-only font (time) are the same for every type.
struct GlyphFontAttributes
{
    Attribute family;
    Attribute size;
    Attribute colour;
};
GlyphFontAttributes FontAttributes(GlyphFont font, int clockType);

} // namespace Lw::HNodeClock
