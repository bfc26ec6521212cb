// clock_plugin/: the building blocks of the attribute table: the attribute names, the row type, and
// the functions that make rows.
#pragma once

#include "image_bounds.h"

#include <QtGlobal>

namespace Lw::HNodeClock {

/// The rows of the table, by name.
enum class Attribute : int {
    Id,
    ClockType,
    AdjustType,
    TimeAdjust,
    TimeZone,
    UseDaylightSavingTime,
    DaylightSavingTimeStart,
    DaylightSavingTimeEnd,
    DaylightSavingTimeIndex,
    TimeZoneIndex,
    PictrueClockType,
    HourHandColor,
    MinuteHandColor,
    SecondHandColor,
    HourScaleColor,
    MinuteScaleColor,
    HourScaleType,
    MinuteScaleType,
    SecondRectType,
    MinuteRectType,
    HourRectType,
    HourScaleFName,
    HourScaleFSize,
    Analog_TopTexy_d,
    Analog_Date_d,
    Analog_Week_d,
    Analog_AMPM_d,
    AnalogAMPMFName,
    AnalogAMPMFSize,
    AnalogAMPMColor,
    AnalogTopText,
    AnalogTopTextFName,
    AnalogTopTextFSize,
    AnalogTopTextColor,
    AnalogDateType,
    AnalogDateFName,
    AnalogDateFSize,
    AnalogDateColor,
    AnalogWeekType,
    AnalogWeekFName,
    AnalogWeekFSize,
    AnalogWeekColor,
    AnalogLunarFName,
    AnalogLunarFSize,
    AnalogLunarColor,
    AnalogSpace,
    AnalogSwapArea,
    DigitalSwapArea,
    DigitalSpace,
    DigitalMode,
    DigitalDisplayMode,
    Digital_TopTexy_d,
    Digital_Date_d,
    Digital_Week_d,
    Digital_Time_d,
    DigitalTopText,
    DigitalTopTextFName,
    DigitalTopTextFSize,
    DigitalTopTextColor,
    DigitalDateType,
    DigitalDateFName,
    DigitalDateFSize,
    DigitalDateColor,
    DigitalTimeType,
    DigitalTimeFName,
    DigitalTimeFSize,
    DigitalTimeColor,
    DigitalWeekType,
    DigitalWeekFName,
    DigitalWeekFSize,
    DigitalWeekColor,
    DigitalLunarFName,
    DigitalLunarFSize,
    DigitalLunarColor,
    Analog_Lunar_d,
    Digital_Lunar_d,
    DigitalDispAMPM,
    Guid,
};

/// The values of Attribute::ClockType.
enum ClockTypeCode { AnalogClock = 0, DigitalClock = 1, PictureClock = 2 };

/// The date formats.
enum DateType {
    DateYearMonthDay = 0,
    DateMonthDayYear = 1,
    DateDayMonthYear = 2,
    DateNamedMonthDayYear = 3,
    DateDayNamedMonthYear = 4,
    DateLabelled = 5,
    DateLabelledMonthDay = 6,
    DatePersian = 7,
    DateWithMinus = 8,
};

/// How a value is stored.
enum class ValueKind {
    Integer,
    Flag, ///< 1 shown, 0 hidden
    Text,
    Colour, ///< stored as the host's colour int; the table gives 0xRRGGBB
};

/// The meaning of a value, for display, checks and editing.
enum class ValueRole {
    Number,     ///< any integer
    Code,       ///< one of the integers of the row's range, each of which has a name
    Flag,       ///< 1 on, 0 off
    Size,       ///< a font size in points
    Colour,     ///< red + 256 * green + 65536 * blue
    Text,       ///< any text
    Family,     ///< a font family; empty means the application's default font
    Zone,       ///< an offset from UTC: a sign and "hh:mm"
    Adjustment, ///< "hhAmmBss"
    Rule,       ///< a daylight-saving rule: "month.occurrence.weekday.hh:mm:ss"
};

/// The kinds of clock that use an attribute.
enum class ClockKinds { All, Analog, Digital, Picture };

/// Where the value of a new clock comes from.
enum class Default {
    Stored,     ///< the row's number or text
    Translated, ///< the translation of the row's text
    Computed,   ///< computed by the node: the Id, and the device's zone as given by the host
    Absent,     ///< a new clock does not have the key; only imports and editors write it
};

/// Whether writing the attribute requires the glyph images to be regenerated.
enum class Redraw { No, Yes };

/// The valid numbers. Switches accept any number; their range is 0 to 1, the documented values.
struct ValueRange
{
    int first = 0;
    int last = -1;                      ///< less than `first` if any number is valid
    const char *const *names = nullptr; ///< of the codes from first to last; null for other roles

    constexpr bool TakesAll() const { return last < first; }
    constexpr bool Contains(int value) const
    {
        return TakesAll() || (value >= first && value <= last);
    }
    /// Null for a value without a name.
    constexpr const char *NameOf(int value) const
    {
        return names && value >= first && value <= last ? names[value - first] : nullptr;
    }
};

struct AttributeRow
{
    Attribute attribute;
    const char *key;
    ValueKind kind;
    Default origin;
    int number;       ///< default of a number, a flag or a colour
    const char *text; ///< default of a text
    Redraw redraw;
    const char *meaning; ///< a sentence
    ValueRole role = ValueRole::Text;
    ClockKinds clocks = ClockKinds::All;
    ValueRange range = {};
    const char *label = ""; ///< a short name, unique within a kind of clock
};

/// The largest font size, in points, whose line of text can fit in an image. From about twice this
/// size Qt draws boxes of a fixed size instead of glyphs, which must not be mistaken for text.
inline constexpr int kLargestFontSize = kImageSide;

// Functions that make rows. Each takes the attribute, its key and the kinds of clock, then its own
// parameters, then label and meaning.

constexpr AttributeRow NumberAttribute(Attribute attribute, const char *key, ClockKinds clocks,
                                       int value, Redraw redraw, const char *label,
                                       const char *meaning)
{
    return {attribute, key,     ValueKind::Integer, Default::Stored, value,         "",
            redraw,    meaning, ValueRole::Number,  clocks,          ValueRange {}, label};
}

/// names[i] is the name of code first + i.
template<int count>
constexpr AttributeRow CodeAttribute(Attribute attribute, const char *key, ClockKinds clocks,
                                     const char *const (&names)[count], int first, Redraw redraw,
                                     const char *label, const char *meaning)
{
    AttributeRow row = NumberAttribute(attribute, key, clocks, first, redraw, label, meaning);
    row.role = ValueRole::Code;
    row.range = {first, first + count - 1, names};
    return row;
}

/// A switch, stored as a number. For a switch stored as a flag, see ShownAttribute().
constexpr AttributeRow SwitchAttribute(Attribute attribute, const char *key, ClockKinds clocks,
                                       int value, Redraw redraw, const char *label,
                                       const char *meaning)
{
    AttributeRow row = NumberAttribute(attribute, key, clocks, value, redraw, label, meaning);
    row.role = ValueRole::Flag;
    row.range = {0, 1, nullptr};
    return row;
}

constexpr AttributeRow ShownAttribute(Attribute attribute, const char *key, ClockKinds clocks,
                                      Redraw redraw, const char *label, const char *meaning)
{
    AttributeRow row = SwitchAttribute(attribute, key, clocks, 1, redraw, label, meaning);
    row.kind = ValueKind::Flag;
    return row;
}

constexpr AttributeRow SizeAttribute(Attribute attribute, const char *key, ClockKinds clocks,
                                     int points, const char *label, const char *meaning)
{
    AttributeRow row = NumberAttribute(attribute, key, clocks, points, Redraw::Yes, label, meaning);
    row.role = ValueRole::Size;
    row.range = {1, kLargestFontSize, nullptr};
    return row;
}

constexpr AttributeRow ColourAttribute(Attribute attribute, const char *key, ClockKinds clocks,
                                       int rgb, const char *label, const char *meaning)
{
    AttributeRow row = NumberAttribute(attribute, key, clocks, rgb, Redraw::Yes, label, meaning);
    row.kind = ValueKind::Colour;
    row.role = ValueRole::Colour;
    return row;
}

constexpr AttributeRow TextAttribute(Attribute attribute, const char *key, ClockKinds clocks,
                                     ValueRole role, const char *text, Redraw redraw,
                                     const char *label, const char *meaning)
{
    return {attribute, key,  ValueKind::Text, Default::Stored, 0,    text, redraw,
            meaning,   role, clocks,          ValueRange {},   label};
}

constexpr AttributeRow FamilyAttribute(Attribute attribute, const char *key, ClockKinds clocks,
                                       const char *label, const char *meaning)
{
    return TextAttribute(attribute, key, clocks, ValueRole::Family, "", Redraw::Yes, label,
                         meaning);
}

constexpr AttributeRow RuleAttribute(Attribute attribute, const char *key, const char *label,
                                     const char *meaning)
{
    return TextAttribute(attribute, key, ClockKinds::All, ValueRole::Rule, "", Redraw::No, label,
                         meaning);
}

constexpr AttributeRow ComputedDefault(AttributeRow row)
{
    row.origin = Default::Computed;
    return row;
}

constexpr AttributeRow TranslatedDefault(AttributeRow row)
{
    row.origin = Default::Translated;
    return row;
}

constexpr AttributeRow AbsentDefault(AttributeRow row)
{
    row.origin = Default::Absent;
    row.number = 0;
    return row;
}

} // namespace Lw::HNodeClock
