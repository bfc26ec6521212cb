#include "property_groups.h"

#include "clock_node.h"

#include <algorithm>
#include <iterator>

namespace ClockStudio {

using A = Lw::HNodeClock::Attribute;
using Lw::HNodeClock::ClockKinds;

#define WORDS(text) QT_TRANSLATE_NOOP("ClockStudio::PropertyGroups", text)

// clang-format off
const PropertyGroup kPropertyGroups[] = {
    {WORDS("Time"), ClockKinds::Digital, A::Digital_Time_d, {
        {WORDS("Format"), 1, {A::DigitalTimeType}},
        {WORDS("Hours"), 1, {A::DigitalMode}},
        {"", 1, {A::DigitalDispAMPM}},
        {WORDS("Font"), 1, {A::DigitalTimeFName}},
        {"", 2, {A::DigitalTimeFSize, A::DigitalTimeColor}}}},
    {WORDS("Label"), ClockKinds::Digital, A::Digital_TopTexy_d, {
        {WORDS("Text"), 1, {A::DigitalTopText}},
        {WORDS("Font"), 1, {A::DigitalTopTextFName}},
        {"", 2, {A::DigitalTopTextFSize, A::DigitalTopTextColor}}}},
    {WORDS("Date"), ClockKinds::Digital, A::Digital_Date_d, {
        {WORDS("Format"), 1, {A::DigitalDateType}},
        {WORDS("Font"), 1, {A::DigitalDateFName}},
        {"", 2, {A::DigitalDateFSize, A::DigitalDateColor}}}},
    {WORDS("Weekday"), ClockKinds::Digital, A::Digital_Week_d, {
        {WORDS("Language"), 1, {A::DigitalWeekType}},
        {WORDS("Font"), 1, {A::DigitalWeekFName}},
        {"", 2, {A::DigitalWeekFSize, A::DigitalWeekColor}}}},
    {WORDS("Lunar date"), ClockKinds::Digital, A::Digital_Lunar_d, {
        {WORDS("Font"), 1, {A::DigitalLunarFName}},
        {"", 2, {A::DigitalLunarFSize, A::DigitalLunarColor}}}},
    {WORDS("Arrangement"), ClockKinds::Digital, A::Id, {
        {WORDS("Layout"), 1, {A::DigitalDisplayMode}},
        {WORDS("Gap"), 1, {A::DigitalSpace}},
        {"", 1, {A::DigitalSwapArea}}}},

    {WORDS("Hands"), ClockKinds::Analog, A::Id, {
        {WORDS("Hour"), 2, {A::HourRectType, A::HourHandColor}},
        {WORDS("Minute"), 2, {A::MinuteRectType, A::MinuteHandColor}},
        {WORDS("Second"), 2, {A::SecondRectType, A::SecondHandColor}}}},
    {WORDS("Dial"), ClockKinds::Analog, A::Id, {
        {WORDS("Hours"), 2, {A::HourScaleType, A::HourScaleColor}},
        {WORDS("Minutes"), 2, {A::MinuteScaleType, A::MinuteScaleColor}},
        {WORDS("Numerals"), 1, {A::HourScaleFName}},
        {"", 1, {A::HourScaleFSize}}}},
    {WORDS("Label"), ClockKinds::Analog, A::Analog_TopTexy_d, {
        {WORDS("Text"), 1, {A::AnalogTopText}},
        {WORDS("Font"), 1, {A::AnalogTopTextFName}},
        {"", 2, {A::AnalogTopTextFSize, A::AnalogTopTextColor}}}},
    {WORDS("Date"), ClockKinds::Analog, A::Analog_Date_d, {
        {WORDS("Format"), 1, {A::AnalogDateType}},
        {WORDS("Font"), 1, {A::AnalogDateFName}},
        {"", 2, {A::AnalogDateFSize, A::AnalogDateColor}}}},
    {WORDS("Weekday"), ClockKinds::Analog, A::Analog_Week_d, {
        {WORDS("Language"), 1, {A::AnalogWeekType}},
        {WORDS("Font"), 1, {A::AnalogWeekFName}},
        {"", 2, {A::AnalogWeekFSize, A::AnalogWeekColor}}}},
    {WORDS("AM and PM"), ClockKinds::Analog, A::Analog_AMPM_d, {
        {WORDS("Font"), 1, {A::AnalogAMPMFName}},
        {"", 2, {A::AnalogAMPMFSize, A::AnalogAMPMColor}}}},
    {WORDS("Lunar date"), ClockKinds::Analog, A::Analog_Lunar_d, {
        {WORDS("Font"), 1, {A::AnalogLunarFName}},
        {"", 2, {A::AnalogLunarFSize, A::AnalogLunarColor}}}},
    {WORDS("Arrangement"), ClockKinds::Analog, A::Id, {
        {WORDS("Gap"), 1, {A::AnalogSpace}},
        {"", 1, {A::AnalogSwapArea}}}},

    {WORDS("Pictures"), ClockKinds::Picture, A::Id, {
        {WORDS("Style"), 1, {A::PictrueClockType}}}},
};
// clang-format on

#undef WORDS

const int kPropertyGroupCount = static_cast<int>(std::size(kPropertyGroups));

bool IsUsedBy(ClockKinds clocks, int kind)
{
    using namespace Lw::HNodeClock;
    switch (clocks) {
    case ClockKinds::All:
        return true;
    case ClockKinds::Analog:
        return kind == AnalogClock;
    case ClockKinds::Digital:
        return kind == DigitalClock;
    case ClockKinds::Picture:
        return kind == PictureClock;
    }
    return false;
}

bool ShowsProperty(Lw::HNodeClock::HClockNode &clock, A attribute)
{
    for (int i = 0; i < kPropertyGroupCount; ++i) {
        const PropertyGroup &group = kPropertyGroups[i];
        for (const PropertyLine &line : group.lines) {
            const A *const end = line.attributes + line.count;
            if (std::find(line.attributes, end, attribute) != end)
                return IsUsedBy(group.clocks, clock.ClockType())
                    && (group.shown == A::Id
                        || clock.GetAttributeToInt(Lw::HNodeClock::Key(group.shown)) != 0);
        }
    }
    return false;
}

} // namespace ClockStudio
