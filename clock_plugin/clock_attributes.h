// The attributes of a clock: one row a key, in the order in which a new clock is filled.
//
// This table is where the keys stand. The node's defaults, its setters, the reference page and the
// checks of programs are made from it. Irregular spellings are part of the contract with the host.
#pragma once

#include <QString>
#include <QtGlobal>

#include <iterator>

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

enum class ValueKind {
    Integer,
    Flag, ///< 1 shown, 0 hidden
    Text,
    Colour, ///< stored as the host's colour int; the table gives 0xRRGGBB
};

/// Where the value of a new clock comes from.
enum class Default {
    Stored,     ///< the row's number or text
    Translated, ///< the translation of the row's text
    Computed,   ///< made by the node: the identity, and what the host says of the device's zone
    Absent,     ///< a new clock does not have the key; only imports and editors write it
};

/// Whether a write asks for the glyph images to be made again.
enum class Redraw { No, Yes };

struct AttributeRow
{
    Attribute attribute;
    const char *key;
    ValueKind kind;
    Default origin;
    int number;
    const char *text;
    Redraw redraw;
    const char *meaning;
};

// clang-format off
inline constexpr AttributeRow kAttributeTable[] = {
    {Attribute::Id, "Id", ValueKind::Integer, Default::Computed, 0, "", Redraw::Yes,
     "identity of the clock in the names of its glyph files; drawn from 1000 to 1999"},
    {Attribute::ClockType, "ClockType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "0 analog, 1 digital, 2 picture clock"},
    {Attribute::AdjustType, "AdjustType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "sign of the time adjustment: 0 forward, 1 backward"},
    {Attribute::TimeAdjust, "TimeAdjust", ValueKind::Text, Default::Stored, 0, "00A00B00", Redraw::Yes,
     "magnitude of the adjustment: hours, \"A\", minutes, \"B\", seconds, two digits each"},
    {Attribute::TimeZone, "TimeZone", ValueKind::Text, Default::Computed, 0, "", Redraw::Yes,
     "offset from UTC: a sign, then \"hh:mm\" or \"h:mm\"; read from the second character on"},
    {Attribute::UseDaylightSavingTime, "UseDaylightSavingTime", ValueKind::Integer, Default::Computed, 0, "", Redraw::No,
     "1 applies the daylight-saving rule"},
    {Attribute::DaylightSavingTimeStart, "DaylightSavingTimeStart", ValueKind::Text, Default::Stored, 0, "", Redraw::No,
     "start of daylight saving: month.occurrence.weekday.hh:mm:ss, in standard time"},
    {Attribute::DaylightSavingTimeEnd, "DaylightSavingTimeEnd", ValueKind::Text, Default::Stored, 0, "", Redraw::No,
     "end of daylight saving: month.occurrence.weekday.hh:mm:ss, in standard time"},
    {Attribute::DaylightSavingTimeIndex, "DaylightSavingTimeIndex", ValueKind::Text, Default::Stored, 0, "", Redraw::No,
     "the editor's choice of daylight-saving rule; stored only"},
    {Attribute::TimeZoneIndex, "TimeZoneIndex", ValueKind::Integer, Default::Stored, -1, "", Redraw::No,
     "the editor's choice of time zone; stored only"},
    {Attribute::PictrueClockType, "PictrueClockType", ValueKind::Integer, Default::Stored, 1, "", Redraw::No,
     "style number of the picture clock"},
    {Attribute::HourHandColor, "HourHandColor", ValueKind::Colour, Default::Stored, 0xff0000, "", Redraw::Yes,
     "hour hand"},
    {Attribute::MinuteHandColor, "MinuteHandColor", ValueKind::Colour, Default::Stored, 0x00ff00, "", Redraw::Yes,
     "minute hand"},
    {Attribute::SecondHandColor, "SecondHandColor", ValueKind::Colour, Default::Stored, 0x0000ff, "", Redraw::Yes,
     "second hand and centre cap"},
    {Attribute::HourScaleColor, "HourScaleColor", ValueKind::Colour, Default::Stored, 0xff0000, "", Redraw::Yes,
     "hour marks and hour numerals"},
    {Attribute::MinuteScaleColor, "MinuteScaleColor", ValueKind::Colour, Default::Stored, 0x00ff00, "", Redraw::Yes,
     "minute marks"},
    {Attribute::HourScaleType, "HourScaleType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "hour marks: 0 lines, 1 dots, 2 squares, 3 squares and twelve numerals, 4 squares and four numerals"},
    {Attribute::MinuteScaleType, "MinuteScaleType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "minute marks: 0 dots, 1 squares, 2 lines"},
    {Attribute::SecondRectType, "SecondRectType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "second hand: 0 bar, 1 arrow with a ring"},
    {Attribute::MinuteRectType, "MinuteRectType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "minute hand: 0 bar, 1 arrow with a ring"},
    {Attribute::HourRectType, "HourRectType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "hour hand: 0 bar, 1 arrow with a ring"},
    {Attribute::HourScaleFName, "HourScaleFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the hour numerals; empty is the default font"},
    {Attribute::HourScaleFSize, "HourScaleFSize", ValueKind::Integer, Default::Stored, 14, "", Redraw::Yes,
     "size of the hour numerals in points"},
    {Attribute::Analog_TopTexy_d, "Analog_TopTexy_d", ValueKind::Flag, Default::Stored, 1, "", Redraw::Yes,
     "analog: show the top text"},
    {Attribute::Analog_Date_d, "Analog_Date_d", ValueKind::Flag, Default::Stored, 1, "", Redraw::Yes,
     "analog: show the date"},
    {Attribute::Analog_Week_d, "Analog_Week_d", ValueKind::Flag, Default::Stored, 1, "", Redraw::Yes,
     "analog: show the weekday"},
    {Attribute::Analog_AMPM_d, "Analog_AMPM_d", ValueKind::Flag, Default::Stored, 1, "", Redraw::Yes,
     "analog: show the AM/PM badge"},
    {Attribute::AnalogAMPMFName, "AnalogAMPMFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the AM/PM badge"},
    {Attribute::AnalogAMPMFSize, "AnalogAMPMFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the AM/PM badge in points"},
    {Attribute::AnalogAMPMColor, "AnalogAMPMColor", ValueKind::Colour, Default::Stored, 0xff0000, "", Redraw::Yes,
     "colour of the AM/PM badge"},
    {Attribute::AnalogTopText, "AnalogTopText", ValueKind::Text, Default::Translated, 0, QT_TRANSLATE_NOOP("Lw::HNodeClock::HClockNode", "LED"), Redraw::Yes,
     "analog: the top text"},
    {Attribute::AnalogTopTextFName, "AnalogTopTextFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the top text"},
    {Attribute::AnalogTopTextFSize, "AnalogTopTextFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the top text in points"},
    {Attribute::AnalogTopTextColor, "AnalogTopTextColor", ValueKind::Colour, Default::Stored, 0x0000ff, "", Redraw::Yes,
     "colour of the top text"},
    {Attribute::AnalogDateType, "AnalogDateType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "date format"},
    {Attribute::AnalogDateFName, "AnalogDateFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the date"},
    {Attribute::AnalogDateFSize, "AnalogDateFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the date in points"},
    {Attribute::AnalogDateColor, "AnalogDateColor", ValueKind::Colour, Default::Stored, 0x0000ff, "", Redraw::Yes,
     "colour of the date"},
    {Attribute::AnalogWeekType, "AnalogWeekType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "weekday names: 0 Chinese, 1 English, 2 short English, 3 Persian"},
    {Attribute::AnalogWeekFName, "AnalogWeekFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the weekday"},
    {Attribute::AnalogWeekFSize, "AnalogWeekFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the weekday in points"},
    {Attribute::AnalogWeekColor, "AnalogWeekColor", ValueKind::Colour, Default::Stored, 0x00ff00, "", Redraw::Yes,
     "colour of the weekday"},
    {Attribute::AnalogLunarFName, "AnalogLunarFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the lunar date"},
    {Attribute::AnalogLunarFSize, "AnalogLunarFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the lunar date in points"},
    {Attribute::AnalogLunarColor, "AnalogLunarColor", ValueKind::Colour, Default::Stored, 0xff0000, "", Redraw::Yes,
     "colour of the lunar date"},
    {Attribute::AnalogSpace, "AnalogSpace", ValueKind::Integer, Default::Stored, 0, "", Redraw::No,
     "gap between the analog text rows in pixels"},
    {Attribute::AnalogSwapArea, "AnalogSwapArea", ValueKind::Integer, Default::Stored, 0, "", Redraw::No,
     "analog: exchanges the places of date and weekday"},
    {Attribute::DigitalSwapArea, "DigitalSwapArea", ValueKind::Integer, Default::Stored, 0, "", Redraw::No,
     "digital: exchanges the places of date and weekday"},
    {Attribute::DigitalSpace, "DigitalSpace", ValueKind::Integer, Default::Stored, 0, "", Redraw::No,
     "gap between the digital elements in pixels"},
    {Attribute::DigitalMode, "DigitalMode", ValueKind::Integer, Default::Stored, 0, "", Redraw::No,
     "1 twelve-hour display with an AM/PM mark; anything else twenty-four hours"},
    {Attribute::DigitalDisplayMode, "DigitalDisplayMode", ValueKind::Integer, Default::Stored, 0, "", Redraw::No,
     "0 stacked rows, anything else one line"},
    {Attribute::Digital_TopTexy_d, "Digital_TopTexy_d", ValueKind::Flag, Default::Stored, 1, "", Redraw::No,
     "digital: show the top text"},
    {Attribute::Digital_Date_d, "Digital_Date_d", ValueKind::Flag, Default::Stored, 1, "", Redraw::No,
     "digital: show the date"},
    {Attribute::Digital_Week_d, "Digital_Week_d", ValueKind::Flag, Default::Stored, 1, "", Redraw::No,
     "digital: show the weekday"},
    {Attribute::Digital_Time_d, "Digital_Time_d", ValueKind::Flag, Default::Stored, 1, "", Redraw::No,
     "digital: show the time"},
    {Attribute::DigitalTopText, "DigitalTopText", ValueKind::Text, Default::Translated, 0, QT_TRANSLATE_NOOP("Lw::HNodeClock::HClockNode", "LED"), Redraw::Yes,
     "digital: the top text"},
    {Attribute::DigitalTopTextFName, "DigitalTopTextFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the top text"},
    {Attribute::DigitalTopTextFSize, "DigitalTopTextFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the top text in points"},
    {Attribute::DigitalTopTextColor, "DigitalTopTextColor", ValueKind::Colour, Default::Stored, 0xff0000, "", Redraw::Yes,
     "colour of the top text"},
    {Attribute::DigitalDateType, "DigitalDateType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "date format"},
    {Attribute::DigitalDateFName, "DigitalDateFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the date"},
    {Attribute::DigitalDateFSize, "DigitalDateFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the date in points"},
    {Attribute::DigitalDateColor, "DigitalDateColor", ValueKind::Colour, Default::Stored, 0x0000ff, "", Redraw::Yes,
     "colour of the date"},
    {Attribute::DigitalTimeType, "DigitalTimeType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "time format"},
    {Attribute::DigitalTimeFName, "DigitalTimeFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the time"},
    {Attribute::DigitalTimeFSize, "DigitalTimeFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the time in points"},
    {Attribute::DigitalTimeColor, "DigitalTimeColor", ValueKind::Colour, Default::Stored, 0xff0000, "", Redraw::Yes,
     "colour of the time"},
    {Attribute::DigitalWeekType, "DigitalWeekType", ValueKind::Integer, Default::Stored, 0, "", Redraw::Yes,
     "weekday names: 0 Chinese, 1 English, 2 short English, 3 Persian"},
    {Attribute::DigitalWeekFName, "DigitalWeekFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the weekday"},
    {Attribute::DigitalWeekFSize, "DigitalWeekFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the weekday in points"},
    {Attribute::DigitalWeekColor, "DigitalWeekColor", ValueKind::Colour, Default::Stored, 0x00ff00, "", Redraw::Yes,
     "colour of the weekday"},
    {Attribute::DigitalLunarFName, "DigitalLunarFName", ValueKind::Text, Default::Stored, 0, "", Redraw::Yes,
     "font family of the lunar date"},
    {Attribute::DigitalLunarFSize, "DigitalLunarFSize", ValueKind::Integer, Default::Stored, 12, "", Redraw::Yes,
     "size of the lunar date in points"},
    {Attribute::DigitalLunarColor, "DigitalLunarColor", ValueKind::Colour, Default::Stored, 0xffff00, "", Redraw::Yes,
     "colour of the lunar date"},
    {Attribute::Analog_Lunar_d, "Analog_Lunar_d", ValueKind::Flag, Default::Absent, 0, "", Redraw::Yes,
     "analog: show the lunar date"},
    {Attribute::Digital_Lunar_d, "Digital_Lunar_d", ValueKind::Flag, Default::Absent, 0, "", Redraw::No,
     "digital: show the lunar date"},
    {Attribute::DigitalDispAMPM, "DigitalDispAMPM", ValueKind::Flag, Default::Absent, 0, "", Redraw::No,
     "0 hides the AM/PM mark of the twelve-hour display; absent shows it"},
    {Attribute::Guid, "__GUID__", ValueKind::Text, Default::Absent, 0, "", Redraw::No,
     "its presence makes the export write the node's identifier"},
};
// clang-format on

inline constexpr int kAttributeCount = static_cast<int>(std::size(kAttributeTable));

constexpr bool TableFollowsEnumeration()
{
    for (int i = 0; i < kAttributeCount; ++i) {
        if (kAttributeTable[i].attribute != static_cast<Attribute>(i))
            return false;
    }
    return true;
}
static_assert(TableFollowsEnumeration(), "row i of the table must describe attribute i");

constexpr const AttributeRow &RowOf(Attribute attribute)
{
    return kAttributeTable[static_cast<int>(attribute)];
}

/// The key of an attribute as the host's store wants it, made once for the process.
const QString &Key(Attribute attribute);

} // namespace Lw::HNodeClock
