// glyph/: which glyph images a clock shows with its settings. Faults in those of hidden rows and
// unused formats are not reported, although the label strips also set the height of formats that
// show no label.
#include "glyph/glyph_check.h"

#include "glyph/guarded_node.h"

#include <iterator>
#include <optional>

namespace Lw::HNodeClock {

namespace {

using A = Attribute;

/// The row an image belongs to, and the format codes that show it.
struct ShownRow
{
    Glyph glyph;
    std::optional<Attribute> analogFlag; ///< shows the row; nullopt if the clock has no such row
    std::optional<Attribute> digitalFlag;
    std::optional<Attribute> analogFormat; ///< nothing where the image is part of every format
    std::optional<Attribute> digitalFormat;
    const char *codes; ///< of the formats, one digit each
};

// clang-format off
constexpr ShownRow kShown[] = {
    {Glyph::TopText, A::Analog_TopTexy_d, A::Digital_TopTexy_d, {}, {}, ""},
    {Glyph::ChWeek, A::Analog_Week_d, A::Digital_Week_d, A::AnalogWeekType, A::DigitalWeekType, "0"},
    {Glyph::EnWeek, A::Analog_Week_d, A::Digital_Week_d, A::AnalogWeekType, A::DigitalWeekType, "1"},
    {Glyph::EnWeekSim, A::Analog_Week_d, A::Digital_Week_d, A::AnalogWeekType, A::DigitalWeekType, "2"},
    {Glyph::PersiaWeek, A::Analog_Week_d, A::Digital_Week_d, A::AnalogWeekType, A::DigitalWeekType, "3"},
    {Glyph::Lunar, A::Analog_Lunar_d, A::Digital_Lunar_d, {}, {}, ""},
    {Glyph::EnMonth, A::Analog_Date_d, A::Digital_Date_d, A::AnalogDateType, A::DigitalDateType, "34"},
    {Glyph::DateCh, A::Analog_Date_d, A::Digital_Date_d, A::AnalogDateType, A::DigitalDateType, "56"},
    {Glyph::DateChar, A::Analog_Date_d, A::Digital_Date_d, A::AnalogDateType, A::DigitalDateType, "0127"},
    {Glyph::Space, A::Analog_Date_d, A::Digital_Date_d, A::AnalogDateType, A::DigitalDateType, "34"},
    {Glyph::DateNumber, A::Analog_Date_d, A::Digital_Date_d, A::AnalogDateType, A::DigitalDateType, "012345678"},
    {Glyph::Minus, A::Analog_Date_d, A::Digital_Date_d, A::AnalogDateType, A::DigitalDateType, "8"},
    {Glyph::HourhandNumber, A::HourScaleType, {}, A::HourScaleType, {}, "34"},
    {Glyph::AnalogAM, A::Analog_AMPM_d, {}, {}, {}, ""},
    {Glyph::AnalogPM, A::Analog_AMPM_d, {}, {}, {}, ""},
    {Glyph::TimeCh, {}, A::Digital_Time_d, {}, A::DigitalTimeType, "23"},
    {Glyph::TimeChar, {}, A::Digital_Time_d, {}, A::DigitalTimeType, "014"},
    {Glyph::TimeNumber, {}, A::Digital_Time_d, {}, {}, ""},
    {Glyph::TimeAM, {}, A::Digital_Time_d, {}, A::DigitalMode, "1"},
    {Glyph::TimePM, {}, A::Digital_Time_d, {}, A::DigitalMode, "1"},
};
// clang-format on

constexpr bool RowsFollowEnumeration()
{
    for (int i = 0; i < kGlyphCount; ++i) {
        if (kShown[i].glyph != static_cast<Glyph>(i))
            return false;
    }
    return true;
}
static_assert(std::size(kShown) == kGlyphCount && RowsFollowEnumeration(),
              "row i of the table must describe glyph i");

/// False for undocumented codes.
bool FormatShows(const GuardedNode &node, Attribute format, const char *codes)
{
    const int code = node.Number(format);
    return RowOf(format).range.Contains(code)
        && QLatin1String(codes).contains(QLatin1Char(static_cast<char>('0' + code)));
}

bool IsMarkHidden(const GuardedNode &node)
{
    return node.Has(Attribute::DigitalDispAMPM) && node.Number(Attribute::DigitalDispAMPM) == 0;
}

// The numerals and marks of a dial are loaded as pixmaps, the marks of a digital clock later.
bool IsLoadedLater(Glyph glyph)
{
    switch (glyph) {
    case Glyph::HourhandNumber:
    case Glyph::AnalogAM:
    case Glyph::AnalogPM:
    case Glyph::TimeAM:
    case Glyph::TimePM:
        return true;
    default:
        return false;
    }
}

bool IsRowShown(Glyph glyph, const GuardedNode &node)
{
    const ShownRow &row = kShown[static_cast<int>(glyph)];
    const int clockType = node.ClockType();
    if (clockType != AnalogClock && clockType != DigitalClock)
        return false;
    const auto flag = clockType == DigitalClock ? row.digitalFlag : row.analogFlag;
    return flag && node.Number(*flag) != 0;
}

bool IsGlyphShown(Glyph glyph, const GuardedNode &node)
{
    if (!IsRowShown(glyph, node))
        return false;
    if ((glyph == Glyph::TimeAM || glyph == Glyph::TimePM) && IsMarkHidden(node))
        return false;
    const ShownRow &row = kShown[static_cast<int>(glyph)];
    const auto format = node.ClockType() == DigitalClock ? row.digitalFormat : row.analogFormat;
    return !format || FormatShows(node, *format, row.codes);
}

} // namespace

bool IsShown(const GlyphImage &image, HClockNode &node)
{
    return IsGlyphShown(image.row->glyph, GuardedNode(&node));
}

bool IsNeeded(const GlyphImage &image, HClockNode &node)
{
    const Glyph glyph = image.row->glyph;
    if (IsLoadedLater(glyph))
        return false;
    const GuardedNode guarded(&node);
    const bool isLabel = glyph == Glyph::DateCh || glyph == Glyph::TimeCh;
    return glyph == Glyph::DateNumber || IsGlyphShown(glyph, guarded)
        || (isLabel && IsRowShown(glyph, guarded));
}

} // namespace Lw::HNodeClock
