// clock_plugin/: the attribute table of a clock: one row per key, in the order in which InitData
// writes them.
//
// The node's defaults and setters, the reference page and the program checks are all driven by this
// table. Irregular spellings are part of the contract with the host.
#pragma once

#include "clock_attribute_row.h"

#include <QString>

#include <iterator>

namespace Lw::HNodeClock {

/// The names of the codes, in order.
namespace CodeNames {
inline constexpr const char *kClockTypes[] = {"analog", "digital", "picture"};
inline constexpr const char *kDirections[] = {"ahead", "behind"};
inline constexpr const char *kStyles[] = {"railway",  "roman", "minimal",  "Arabic-Indic",
                                          "classic",  "night", "ornament", "factory",
                                          "balloons", "diner"};
inline constexpr const char *kHourMarks[] = {
    "lines", "dots", "squares", "squares and twelve numerals", "squares and four numerals"};
inline constexpr const char *kMinuteMarks[] = {"dots", "squares", "lines"};
inline constexpr const char *kHands[] = {"bar", "arrow with a ring"};
inline constexpr const char *kDates[] = {"year/month/day",
                                         "month/day/year",
                                         "day/month/year",
                                         "month name, day, year",
                                         "day, month name, year",
                                         "year, month and day with labels",
                                         "month and day with labels",
                                         "Persian year/month/day",
                                         "year-month-day"};
inline constexpr const char *kTimes[] = {
    "hours:minutes:seconds", "hours:minutes", "hours, minutes and seconds with labels",
    "hours and minutes with labels", "hours:minutes without a leading zero"};
inline constexpr const char *kWeeks[] = {"language of the clocks", "English", "short English",
                                         "Persian"};
inline constexpr const char *kHours[] = {"twenty-four hours", "twelve hours"};
inline constexpr const char *kLayouts[] = {"rows", "one line"};
} // namespace CodeNames

// clang-format off
inline constexpr AttributeRow kAttributeTable[] = {
    ComputedDefault(NumberAttribute(Attribute::Id, "Id", ClockKinds::All, 0, Redraw::Yes, "Identity",
        "Number of the clock in the names of its glyph files; a new clock gets a random one from 1000 to 1999.")),
    CodeAttribute(Attribute::ClockType, "ClockType", ClockKinds::All, CodeNames::kClockTypes, 0, Redraw::Yes, "Kind of clock",
        "Whether the clock is analog, digital or made of pictures."),
    CodeAttribute(Attribute::AdjustType, "AdjustType", ClockKinds::All, CodeNames::kDirections, 0, Redraw::Yes, "Direction of the adjustment",
        "Whether the clock runs ahead of or behind its zone by the adjustment."),
    TextAttribute(Attribute::TimeAdjust, "TimeAdjust", ClockKinds::All, ValueRole::Adjustment, "00A00B00", Redraw::Yes, "Adjustment",
        "How far the clock differs from its zone's time: hours, \"A\", minutes, \"B\", seconds, two digits each."),
    ComputedDefault(TextAttribute(Attribute::TimeZone, "TimeZone", ClockKinds::All, ValueRole::Zone, "", Redraw::Yes, "Time zone",
        "Offset from UTC: a sign, then \"hh:mm\" or \"h:mm\". The first character always counts as the sign.")),
    ComputedDefault(SwitchAttribute(Attribute::UseDaylightSavingTime, "UseDaylightSavingTime", ClockKinds::All, 0, Redraw::No, "Daylight saving",
        "Whether the clock is one hour ahead between the start and the end of daylight saving.")),
    RuleAttribute(Attribute::DaylightSavingTimeStart, "DaylightSavingTimeStart", "Start of daylight saving",
        "When daylight saving starts, in standard time: month.occurrence.weekday.hh:mm:ss."),
    RuleAttribute(Attribute::DaylightSavingTimeEnd, "DaylightSavingTimeEnd", "End of daylight saving",
        "When daylight saving ends, in standard time: month.occurrence.weekday.hh:mm:ss."),
    TextAttribute(Attribute::DaylightSavingTimeIndex, "DaylightSavingTimeIndex", ClockKinds::All, ValueRole::Text, "", Redraw::No, "Daylight-saving choice",
        "The rule chosen in the editor's list; stored only."),
    NumberAttribute(Attribute::TimeZoneIndex, "TimeZoneIndex", ClockKinds::All, -1, Redraw::No, "Zone choice",
        "The zone chosen in the editor's list; stored only."),
    CodeAttribute(Attribute::PictrueClockType, "PictrueClockType", ClockKinds::Picture, CodeNames::kStyles, 1, Redraw::No, "Style",
        "Picture style of the clock."),
    ColourAttribute(Attribute::HourHandColor, "HourHandColor", ClockKinds::Analog, 0xff0000, "Hour hand colour",
        "Colour of the hour hand."),
    ColourAttribute(Attribute::MinuteHandColor, "MinuteHandColor", ClockKinds::Analog, 0x00ff00, "Minute hand colour",
        "Colour of the minute hand."),
    ColourAttribute(Attribute::SecondHandColor, "SecondHandColor", ClockKinds::Analog, 0x0000ff, "Second hand colour",
        "Colour of the second hand and of the cap in the centre."),
    ColourAttribute(Attribute::HourScaleColor, "HourScaleColor", ClockKinds::Analog, 0xff0000, "Hour mark colour",
        "Colour of the hour marks and numerals."),
    ColourAttribute(Attribute::MinuteScaleColor, "MinuteScaleColor", ClockKinds::Analog, 0x00ff00, "Minute mark colour",
        "Colour of the minute marks."),
    CodeAttribute(Attribute::HourScaleType, "HourScaleType", ClockKinds::Analog, CodeNames::kHourMarks, 0, Redraw::Yes, "Hour marks",
        "Shape of the hour marks, and which numerals are shown."),
    CodeAttribute(Attribute::MinuteScaleType, "MinuteScaleType", ClockKinds::Analog, CodeNames::kMinuteMarks, 0, Redraw::Yes, "Minute marks",
        "Shape of the minute marks."),
    CodeAttribute(Attribute::SecondRectType, "SecondRectType", ClockKinds::Analog, CodeNames::kHands, 0, Redraw::Yes, "Second hand",
        "Shape of the second hand."),
    CodeAttribute(Attribute::MinuteRectType, "MinuteRectType", ClockKinds::Analog, CodeNames::kHands, 0, Redraw::Yes, "Minute hand",
        "Shape of the minute hand."),
    CodeAttribute(Attribute::HourRectType, "HourRectType", ClockKinds::Analog, CodeNames::kHands, 0, Redraw::Yes, "Hour hand",
        "Shape of the hour hand."),
    FamilyAttribute(Attribute::HourScaleFName, "HourScaleFName", ClockKinds::Analog, "Numeral font",
        "Font family of the hour numerals; empty is the default font."),
    SizeAttribute(Attribute::HourScaleFSize, "HourScaleFSize", ClockKinds::Analog, 14, "Numeral size",
        "Size of the hour numerals in points."),
    ShownAttribute(Attribute::Analog_TopTexy_d, "Analog_TopTexy_d", ClockKinds::Analog, Redraw::Yes, "Show the top text",
        "Whether the top text is shown."),
    ShownAttribute(Attribute::Analog_Date_d, "Analog_Date_d", ClockKinds::Analog, Redraw::Yes, "Show the date",
        "Whether the date is shown."),
    ShownAttribute(Attribute::Analog_Week_d, "Analog_Week_d", ClockKinds::Analog, Redraw::Yes, "Show the weekday",
        "Whether the weekday is shown."),
    ShownAttribute(Attribute::Analog_AMPM_d, "Analog_AMPM_d", ClockKinds::Analog, Redraw::Yes, "Show AM/PM",
        "Whether the AM/PM badge is shown."),
    FamilyAttribute(Attribute::AnalogAMPMFName, "AnalogAMPMFName", ClockKinds::Analog, "AM/PM font",
        "Font family of the AM/PM badge; empty is the default font."),
    SizeAttribute(Attribute::AnalogAMPMFSize, "AnalogAMPMFSize", ClockKinds::Analog, 12, "AM/PM size",
        "Size of the AM/PM badge in points."),
    ColourAttribute(Attribute::AnalogAMPMColor, "AnalogAMPMColor", ClockKinds::Analog, 0xff0000, "AM/PM colour",
        "Colour of the AM/PM badge."),
    TranslatedDefault(TextAttribute(Attribute::AnalogTopText, "AnalogTopText", ClockKinds::Analog, ValueRole::Text,
        QT_TRANSLATE_NOOP("Lw::HNodeClock::HClockNode", "LED"), Redraw::Yes, "Top text",
        "The fixed text in the upper half of the dial.")),
    FamilyAttribute(Attribute::AnalogTopTextFName, "AnalogTopTextFName", ClockKinds::Analog, "Top text font",
        "Font family of the top text; empty is the default font."),
    SizeAttribute(Attribute::AnalogTopTextFSize, "AnalogTopTextFSize", ClockKinds::Analog, 12, "Top text size",
        "Size of the top text in points."),
    ColourAttribute(Attribute::AnalogTopTextColor, "AnalogTopTextColor", ClockKinds::Analog, 0x0000ff, "Top text colour",
        "Colour of the top text."),
    CodeAttribute(Attribute::AnalogDateType, "AnalogDateType", ClockKinds::Analog, CodeNames::kDates, 0, Redraw::Yes, "Date format",
        "Order and form of the parts of the date."),
    FamilyAttribute(Attribute::AnalogDateFName, "AnalogDateFName", ClockKinds::Analog, "Date font",
        "Font family of the date; empty is the default font."),
    SizeAttribute(Attribute::AnalogDateFSize, "AnalogDateFSize", ClockKinds::Analog, 12, "Date size",
        "Size of the date in points."),
    ColourAttribute(Attribute::AnalogDateColor, "AnalogDateColor", ClockKinds::Analog, 0x0000ff, "Date colour",
        "Colour of the date."),
    CodeAttribute(Attribute::AnalogWeekType, "AnalogWeekType", ClockKinds::Analog, CodeNames::kWeeks, 0, Redraw::Yes, "Weekday names",
        "Language and length of the weekday names."),
    FamilyAttribute(Attribute::AnalogWeekFName, "AnalogWeekFName", ClockKinds::Analog, "Weekday font",
        "Font family of the weekday; empty is the default font."),
    SizeAttribute(Attribute::AnalogWeekFSize, "AnalogWeekFSize", ClockKinds::Analog, 12, "Weekday size",
        "Size of the weekday in points."),
    ColourAttribute(Attribute::AnalogWeekColor, "AnalogWeekColor", ClockKinds::Analog, 0x00ff00, "Weekday colour",
        "Colour of the weekday."),
    FamilyAttribute(Attribute::AnalogLunarFName, "AnalogLunarFName", ClockKinds::Analog, "Lunar date font",
        "Font family of the lunar date; empty is the default font."),
    SizeAttribute(Attribute::AnalogLunarFSize, "AnalogLunarFSize", ClockKinds::Analog, 12, "Lunar date size",
        "Size of the lunar date in points."),
    ColourAttribute(Attribute::AnalogLunarColor, "AnalogLunarColor", ClockKinds::Analog, 0xff0000, "Lunar date colour",
        "Colour of the lunar date."),
    NumberAttribute(Attribute::AnalogSpace, "AnalogSpace", ClockKinds::Analog, 0, Redraw::No, "Row gap",
        "Gap between the text rows in pixels; may be negative."),
    SwitchAttribute(Attribute::AnalogSwapArea, "AnalogSwapArea", ClockKinds::Analog, 0, Redraw::No, "Swap date and weekday",
        "Whether the date and the weekday swap places."),
    SwitchAttribute(Attribute::DigitalSwapArea, "DigitalSwapArea", ClockKinds::Digital, 0, Redraw::No, "Swap date and weekday",
        "Whether the date and the weekday swap places."),
    NumberAttribute(Attribute::DigitalSpace, "DigitalSpace", ClockKinds::Digital, 0, Redraw::No, "Gap",
        "Gap between the rows, or between the texts on one line, in pixels; may be negative."),
    CodeAttribute(Attribute::DigitalMode, "DigitalMode", ClockKinds::Digital, CodeNames::kHours, 0, Redraw::No, "Hours",
        "Whether hours are shown in 24-hour or 12-hour form with an AM/PM mark."),
    CodeAttribute(Attribute::DigitalDisplayMode, "DigitalDisplayMode", ClockKinds::Digital, CodeNames::kLayouts, 0, Redraw::No, "Layout",
        "Whether each text has a row of its own or all are on one line."),
    ShownAttribute(Attribute::Digital_TopTexy_d, "Digital_TopTexy_d", ClockKinds::Digital, Redraw::No, "Show the top text",
        "Whether the top text is shown."),
    ShownAttribute(Attribute::Digital_Date_d, "Digital_Date_d", ClockKinds::Digital, Redraw::No, "Show the date",
        "Whether the date is shown."),
    ShownAttribute(Attribute::Digital_Week_d, "Digital_Week_d", ClockKinds::Digital, Redraw::No, "Show the weekday",
        "Whether the weekday is shown."),
    ShownAttribute(Attribute::Digital_Time_d, "Digital_Time_d", ClockKinds::Digital, Redraw::No, "Show the time",
        "Whether the time is shown."),
    TranslatedDefault(TextAttribute(Attribute::DigitalTopText, "DigitalTopText", ClockKinds::Digital, ValueRole::Text,
        QT_TRANSLATE_NOOP("Lw::HNodeClock::HClockNode", "LED"), Redraw::Yes, "Top text",
        "The fixed text in the first position.")),
    FamilyAttribute(Attribute::DigitalTopTextFName, "DigitalTopTextFName", ClockKinds::Digital, "Top text font",
        "Font family of the top text; empty is the default font."),
    SizeAttribute(Attribute::DigitalTopTextFSize, "DigitalTopTextFSize", ClockKinds::Digital, 12, "Top text size",
        "Size of the top text in points."),
    ColourAttribute(Attribute::DigitalTopTextColor, "DigitalTopTextColor", ClockKinds::Digital, 0xff0000, "Top text colour",
        "Colour of the top text."),
    CodeAttribute(Attribute::DigitalDateType, "DigitalDateType", ClockKinds::Digital, CodeNames::kDates, 0, Redraw::Yes, "Date format",
        "Order and form of the parts of the date."),
    FamilyAttribute(Attribute::DigitalDateFName, "DigitalDateFName", ClockKinds::Digital, "Date font",
        "Font family of the date; empty is the default font."),
    SizeAttribute(Attribute::DigitalDateFSize, "DigitalDateFSize", ClockKinds::Digital, 12, "Date size",
        "Size of the date in points."),
    ColourAttribute(Attribute::DigitalDateColor, "DigitalDateColor", ClockKinds::Digital, 0x0000ff, "Date colour",
        "Colour of the date."),
    CodeAttribute(Attribute::DigitalTimeType, "DigitalTimeType", ClockKinds::Digital, CodeNames::kTimes, 0, Redraw::Yes, "Time format",
        "Which parts of the time are shown, and in which form."),
    FamilyAttribute(Attribute::DigitalTimeFName, "DigitalTimeFName", ClockKinds::Digital, "Time font",
        "Font family of the time; empty is the default font."),
    SizeAttribute(Attribute::DigitalTimeFSize, "DigitalTimeFSize", ClockKinds::Digital, 12, "Time size",
        "Size of the time in points."),
    ColourAttribute(Attribute::DigitalTimeColor, "DigitalTimeColor", ClockKinds::Digital, 0xff0000, "Time colour",
        "Colour of the time."),
    CodeAttribute(Attribute::DigitalWeekType, "DigitalWeekType", ClockKinds::Digital, CodeNames::kWeeks, 0, Redraw::Yes, "Weekday names",
        "Language and length of the weekday names."),
    FamilyAttribute(Attribute::DigitalWeekFName, "DigitalWeekFName", ClockKinds::Digital, "Weekday font",
        "Font family of the weekday; empty is the default font."),
    SizeAttribute(Attribute::DigitalWeekFSize, "DigitalWeekFSize", ClockKinds::Digital, 12, "Weekday size",
        "Size of the weekday in points."),
    ColourAttribute(Attribute::DigitalWeekColor, "DigitalWeekColor", ClockKinds::Digital, 0x00ff00, "Weekday colour",
        "Colour of the weekday."),
    FamilyAttribute(Attribute::DigitalLunarFName, "DigitalLunarFName", ClockKinds::Digital, "Lunar date font",
        "Font family of the lunar date; empty is the default font."),
    SizeAttribute(Attribute::DigitalLunarFSize, "DigitalLunarFSize", ClockKinds::Digital, 12, "Lunar date size",
        "Size of the lunar date in points."),
    ColourAttribute(Attribute::DigitalLunarColor, "DigitalLunarColor", ClockKinds::Digital, 0xffff00, "Lunar date colour",
        "Colour of the lunar date."),
    AbsentDefault(ShownAttribute(Attribute::Analog_Lunar_d, "Analog_Lunar_d", ClockKinds::Analog, Redraw::Yes, "Show the lunar date",
        "Whether the Chinese lunar date is shown.")),
    AbsentDefault(ShownAttribute(Attribute::Digital_Lunar_d, "Digital_Lunar_d", ClockKinds::Digital, Redraw::No, "Show the lunar date",
        "Whether the Chinese lunar date is shown.")),
    AbsentDefault(ShownAttribute(Attribute::DigitalDispAMPM, "DigitalDispAMPM", ClockKinds::Digital, Redraw::No, "Show AM/PM",
        "Whether the AM/PM mark of the 12-hour form is shown; shown if the key is absent.")),
    AbsentDefault(TextAttribute(Attribute::Guid, "__GUID__", ClockKinds::All, ValueRole::Text, "", Redraw::No, "GUID",
        "If present, the SDK export writes the node's GUID.")),
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

/// The key of an attribute as a QString, created once per process.
const QString &Key(Attribute attribute);

/// The row with a key; null if there is none.
const AttributeRow *RowNamed(const QString &key);

} // namespace Lw::HNodeClock
