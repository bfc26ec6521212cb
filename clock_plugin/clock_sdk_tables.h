// clock_plugin/: the SDK's XML form of a clock as tables: what is imported, in the order in which
// it is applied, and what is exported. Irregular spellings are part of the contract with the
// controller.
#pragma once

#include "clock_attributes.h"
#include "clock_node.h"

#include <optional>

namespace Lw::HNodeClock {

namespace Sdk {
inline constexpr char kClockCom[] = "clockCom"; ///< child element; present only in the older form
inline constexpr char kClockType[] = "clockType";
inline constexpr char kFile[] = "file";
inline constexpr char kGuid[] = "guid";
inline constexpr char kType[] = "type";
inline constexpr char kTimezone[] = "timezone";
inline constexpr char kAdjust[] = "adjust";
inline constexpr char kValue[] = "value";
inline constexpr char kColor[] = "color";
inline constexpr char kDisplay[] = "display";
/// The words of the type attribute, indexed by clock type.
inline constexpr const char *kTypeNames[] = {"dial", "digital", "picture"};
} // namespace Sdk

/// How the text of an XML attribute becomes the value of a clock's attribute.
enum class Conversion {
    Text,           ///< unchanged
    Number,         ///< the whole text as a decimal integer; 0 if it is not one
    InvertedNumber, ///< 1 when the number is 0, else 0
    Flag,           ///< the words "true" and "false"
    Colour,         ///< a colour name, converted by the host
    ParsedColour,   ///< a colour name, parsed by QColor and converted to the host's int
    AdjustSeconds,  ///< a number of seconds, stored as sign and magnitude
    AdjustTime,     ///< a sign and "hh:mm:ss", stored in the same way; any other text is ignored
};

struct ImportSource
{
    const char *attribute = nullptr;
    Conversion conversion = Conversion::Text;
};

/// One setting. If the source attribute is present, even empty, the fallback is not read.
struct ImportRow
{
    Attribute target;
    ImportSource source = {};
    ImportSource fallback = {};
};

inline constexpr int kMaxImportRows = 10;

/// The settings of one child element; without a name, of the clock element itself. The fallback is
/// read only if there is no element with the name.
struct ImportElement
{
    const char *name = nullptr;
    const char *fallback = nullptr;
    ImportRow rows[kMaxImportRows] = {}; ///< up to the first without a source
};

// clang-format off
inline constexpr ImportElement kAnalogImport[] = {
    {"fixedText", "title", {
        {Attribute::Analog_TopTexy_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::AnalogTopText, {Sdk::kValue}, {"text"}},
        {Attribute::AnalogTopTextFName, {"fontName"}},
        {Attribute::AnalogTopTextFSize, {"fontSize", Conversion::Number}},
        {Attribute::AnalogTopTextColor, {Sdk::kColor, Conversion::Colour}}}},
    {"date", nullptr, {
        {Attribute::Analog_Date_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::AnalogDateType, {"format", Conversion::Number}, {Sdk::kType, Conversion::Number}},
        {Attribute::AnalogDateFName, {"fontName"}},
        {Attribute::AnalogDateFSize, {"fontSize", Conversion::Number}},
        {Attribute::AnalogDateColor, {Sdk::kColor, Conversion::Colour}}}},
    {"week", nullptr, {
        {Attribute::Analog_Week_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::AnalogWeekType, {"format", Conversion::Number}, {Sdk::kType, Conversion::Number}},
        {Attribute::AnalogWeekFName, {"fontName"}},
        {Attribute::AnalogWeekFSize, {"fontSize", Conversion::Number}},
        {Attribute::AnalogWeekColor, {Sdk::kColor, Conversion::Colour}}}},
    {"lunar", nullptr, {
        {Attribute::Analog_Lunar_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::AnalogLunarFName, {"fontName"}},
        {Attribute::AnalogLunarFSize, {"fontSize", Conversion::Number}},
        {Attribute::AnalogLunarColor, {Sdk::kColor, Conversion::Colour}}}},
    {"clockTextsSyle", nullptr, {
        {Attribute::AnalogSwapArea, {"swapArea", Conversion::InvertedNumber}},
        {Attribute::AnalogSpace, {"space", Conversion::Number}}}},
    {"timeFormat", "ampm", {
        {Attribute::Analog_AMPM_d, {Sdk::kDisplay, Conversion::Flag}, {"isEnableAmPm", Conversion::InvertedNumber}},
        {Attribute::AnalogAMPMFName, {"fontName"}},
        {Attribute::AnalogAMPMFSize, {"fontSize", Conversion::Number}},
        {Attribute::AnalogAMPMColor, {Sdk::kColor, Conversion::ParsedColour}}}},
    {"analog", nullptr, {
        {Attribute::HourHandColor, {"hourHandColor", Conversion::Colour}},
        {Attribute::MinuteHandColor, {"minuteHandColor", Conversion::Colour}},
        {Attribute::SecondHandColor, {"secondHandColor", Conversion::Colour}},
        {Attribute::HourScaleType, {"hourScaleType", Conversion::Number}},
        {Attribute::HourScaleFName, {"hourScaleFontName"}},
        {Attribute::HourScaleFSize, {"hourScaleFontSize", Conversion::Number}},
        {Attribute::HourScaleColor, {"hourScaleColor", Conversion::Colour}},
        {Attribute::MinuteScaleType, {"minuteScaleType", Conversion::Number}},
        {Attribute::MinuteScaleColor, {"minuteScaleColor", Conversion::Colour}}}},
    // The exported form of the lunar row; being last, it wins over "lunar".
    {"lunarCalendar", nullptr, {
        {Attribute::AnalogLunarColor, {Sdk::kColor, Conversion::Colour}},
        {Attribute::Analog_Lunar_d, {Sdk::kDisplay, Conversion::Flag}}}},
};

inline constexpr ImportElement kDigitalImport[] = {
    {"fixedText", "title", {
        {Attribute::Digital_TopTexy_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::DigitalTopText, {Sdk::kValue}, {"text"}},
        {Attribute::DigitalTopTextFName, {"fontName"}},
        {Attribute::DigitalTopTextFSize, {"fontSize", Conversion::Number}},
        {Attribute::DigitalTopTextColor, {Sdk::kColor, Conversion::Colour}}}},
    {"date", nullptr, {
        {Attribute::Digital_Date_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::DigitalDateType, {"format", Conversion::Number}, {Sdk::kType, Conversion::Number}},
        {Attribute::DigitalDateFName, {"fontName"}},
        {Attribute::DigitalDateFSize, {"fontSize", Conversion::Number}},
        {Attribute::DigitalDateColor, {Sdk::kColor, Conversion::Colour}}}},
    {"week", nullptr, {
        {Attribute::Digital_Week_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::DigitalWeekType, {"format", Conversion::Number}, {Sdk::kType, Conversion::Number}},
        {Attribute::DigitalWeekFName, {"fontName"}},
        {Attribute::DigitalWeekFSize, {"fontSize", Conversion::Number}},
        {Attribute::DigitalWeekColor, {Sdk::kColor, Conversion::Colour}}}},
    {"lunar", nullptr, {
        {Attribute::Digital_Lunar_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::DigitalLunarFName, {"fontName"}},
        {Attribute::DigitalLunarFSize, {"fontSize", Conversion::Number}},
        {Attribute::DigitalLunarColor, {Sdk::kColor, Conversion::Colour}}}},
    {"time", nullptr, {
        {Attribute::Digital_Time_d, {Sdk::kDisplay, Conversion::Flag}},
        {Attribute::DigitalTimeType, {"format", Conversion::Number}, {Sdk::kType, Conversion::Number}},
        {Attribute::DigitalTimeFName, {"fontName"}},
        {Attribute::DigitalTimeFSize, {"fontSize", Conversion::Number}},
        {Attribute::DigitalTimeColor, {Sdk::kColor, Conversion::Colour}}}},
    {"digital", nullptr, {
        {Attribute::DigitalDisplayMode, {"displayMode", Conversion::Number}},
        {Attribute::DigitalMode, {"timeMode", Conversion::Number}}}},
    {"clockTextsSyle", nullptr, {
        {Attribute::DigitalSwapArea, {"swapArea", Conversion::Number}},
        {Attribute::DigitalSpace, {"space", Conversion::Number}}}},
    {"lunarCalendar", nullptr, {
        {Attribute::DigitalLunarColor, {Sdk::kColor, Conversion::Colour}},
        {Attribute::Digital_Lunar_d, {Sdk::kDisplay, Conversion::Flag}}}},
};

/// The common font of a clock: family, size and colour of the analog texts, but only the colour of
/// the digital ones.
inline constexpr ImportElement kFontImport[] = {
    {"font", nullptr, {
        {Attribute::HourScaleFName, {"name"}},
        {Attribute::AnalogTopTextFName, {"name"}},
        {Attribute::AnalogLunarFName, {"name"}},
        {Attribute::AnalogDateFName, {"name"}},
        {Attribute::AnalogWeekFName, {"name"}},
        {Attribute::AnalogAMPMFName, {"name"}}}},
    {"font", nullptr, {
        {Attribute::HourScaleFSize, {"size", Conversion::Number}},
        {Attribute::AnalogTopTextFSize, {"size", Conversion::Number}},
        {Attribute::AnalogDateFSize, {"size", Conversion::Number}},
        {Attribute::AnalogWeekFSize, {"size", Conversion::Number}},
        {Attribute::AnalogLunarFSize, {"size", Conversion::Number}},
        {Attribute::AnalogAMPMFSize, {"size", Conversion::Number}}}},
    {"font", nullptr, {
        {Attribute::AnalogTopTextColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::AnalogDateColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::AnalogWeekColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::AnalogLunarColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::AnalogAMPMColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::DigitalTopTextColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::DigitalDateColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::DigitalWeekColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::DigitalLunarColor, {Sdk::kColor, Conversion::ParsedColour}},
        {Attribute::DigitalTimeColor, {Sdk::kColor, Conversion::ParsedColour}}}},
};

/// Zone, adjustment and daylight saving. The element's own attributes come last and win.
inline constexpr ImportElement kTimeImport[] = {
    {Sdk::kClockCom, nullptr, {
        {Attribute::TimeZoneIndex, {"timeZoneIndex", Conversion::Number}},
        {Attribute::TimeZone, {"timeZone"}},
        {Attribute::TimeAdjust, {"timeAdjust", Conversion::AdjustSeconds}},
        {Attribute::UseDaylightSavingTime, {"isDaylightSavingTime", Conversion::Number}},
        {Attribute::DaylightSavingTimeStart, {"Start"}},
        {Attribute::DaylightSavingTimeEnd, {"End"}}}},
    {nullptr, nullptr, {
        {Attribute::TimeZone, {Sdk::kTimezone}},
        {Attribute::TimeAdjust, {Sdk::kAdjust, Conversion::AdjustTime}}}},
};

/// The attributes written to a child element of an exported clock; without a colour the element is
/// empty.
struct ExportSource
{
    std::optional<Attribute> value = {};
    std::optional<Attribute> colour = {};
    std::optional<Attribute> display = {};
};

struct ExportRow
{
    const char *element;
    ExportSource analog;
    ExportSource digital;
};

inline constexpr ExportRow kExport[] = {
    {"title", {Attribute::AnalogTopText, Attribute::AnalogTopTextColor, Attribute::Analog_TopTexy_d},
     {Attribute::DigitalTopText, Attribute::DigitalTopTextColor, Attribute::Digital_TopTexy_d}},
    {"date", {Attribute::AnalogDateType, Attribute::AnalogDateColor, Attribute::Analog_Date_d},
     {Attribute::DigitalDateType, Attribute::DigitalDateColor, Attribute::Digital_Date_d}},
    {"week", {Attribute::AnalogWeekType, Attribute::AnalogWeekColor, Attribute::Analog_Week_d},
     {Attribute::DigitalWeekType, Attribute::DigitalWeekColor, Attribute::Digital_Week_d}},
    {"time", {},
     {Attribute::DigitalTimeType, Attribute::DigitalTimeColor, Attribute::Digital_Time_d}},
    {"lunarCalendar", {{}, Attribute::AnalogLunarColor, Attribute::Analog_Lunar_d},
     {{}, Attribute::DigitalLunarColor, Attribute::Digital_Lunar_d}},
};
// clang-format on

} // namespace Lw::HNodeClock
