#include "clock_parts.h"

#include "display/analog_geometry.h"
#include "glyph/glyph_set.h"

#include <QCoreApplication>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

using A = Attribute;

struct PartRow
{
    Part part;
    const char *name;
    std::optional<GlyphFont> font;
    // Only for parts without a font: marks and hands.
    std::optional<Attribute> colour;
};

#define WORDS(text) QT_TRANSLATE_NOOP("ClockFit::Parts", text)

// clang-format off
constexpr PartRow kParts[] = {
    {Part::TopText,     WORDS("title"),        GlyphFont::TopText,   {}},
    {Part::Date,        WORDS("date"),         GlyphFont::Date,      {}},
    {Part::Week,        WORDS("weekday"),      GlyphFont::Week,      {}},
    {Part::Time,        WORDS("time"),         GlyphFont::Time,      {}},
    {Part::Lunar,       WORDS("lunar date"),   GlyphFont::Lunar,     {}},
    {Part::Badge,       WORDS("AM/PM badge"),  GlyphFont::AmPm,      {}},
    {Part::Numerals,    WORDS("numerals"),     GlyphFont::HourScale, {}},
    {Part::HourMarks,   WORDS("hour marks"),   {},                   A::HourScaleColor},
    {Part::MinuteMarks, WORDS("minute marks"), {},                   A::MinuteScaleColor},
    {Part::HourHand,    WORDS("hour hand"),    {},                   A::HourHandColor},
    {Part::MinuteHand,  WORDS("minute hand"),  {},                   A::MinuteHandColor},
    {Part::SecondHand,  WORDS("second hand"),  {},                   A::SecondHandColor},
};
// clang-format on

constexpr bool FollowsEnumeration()
{
    int number = 0;
    for (const PartRow &row : kParts) {
        if (row.part != static_cast<Part>(number++))
            return false;
    }
    return true;
}
static_assert(FollowsEnumeration(), "row i of the table must describe part i");

const PartRow &RowOfPart(Part part)
{
    return kParts[static_cast<int>(part)];
}

bool IsTextShown(HClockNode &node, Attribute analog, Attribute digital)
{
    return NumberOf(node, node.ClockType() == DigitalClock ? digital : analog) == 1;
}

bool IsPartOfAnalogShown(HClockNode &node, Part part)
{
    const auto number = [&node](Attribute attribute) { return NumberOf(node, attribute); };
    const auto hasHand = [&](Hand hand, Attribute type) {
        return !ShapeOf(hand, number(type), HandRadius(node.Size())).outline.isEmpty();
    };
    const double radius = DialRadius(node.Size());
    switch (part) {
    case Part::Badge:
        return number(A::Analog_AMPM_d) == 1;
    case Part::Numerals:
        return !Numerals(number(A::HourScaleType), radius, DigitCells(QSize())).isEmpty();
    case Part::HourMarks:
        return HourMark(number(A::HourScaleType), radius).shape != Mark::None;
    case Part::MinuteMarks:
        return MinuteMark(number(A::MinuteScaleType), radius).shape != Mark::None;
    case Part::HourHand:
        return hasHand(Hand::Hour, A::HourRectType);
    case Part::MinuteHand:
        return hasHand(Hand::Minute, A::MinuteRectType);
    case Part::SecondHand:
        return hasHand(Hand::Second, A::SecondRectType);
    default:
        return false;
    }
}

bool IsShown(HClockNode &node, Part part)
{
    switch (part) {
    case Part::TopText:
        return IsTextShown(node, A::Analog_TopTexy_d, A::Digital_TopTexy_d);
    case Part::Date:
        return IsTextShown(node, A::Analog_Date_d, A::Digital_Date_d);
    case Part::Week:
        return IsTextShown(node, A::Analog_Week_d, A::Digital_Week_d);
    case Part::Time:
        return node.ClockType() == DigitalClock && node.Digital_Time_d() == 1;
    case Part::Lunar:
        return IsTextShown(node, A::Analog_Lunar_d, A::Digital_Lunar_d);
    default:
        return node.ClockType() == AnalogClock && IsPartOfAnalogShown(node, part);
    }
}

} // namespace

QString NameOf(Part part)
{
    return QCoreApplication::translate("ClockFit::Parts", RowOfPart(part).name);
}

std::optional<GlyphFont> FontOf(Part part)
{
    return RowOfPart(part).font;
}

std::optional<Attribute> FamilyAttribute(Part part, int clockType)
{
    const std::optional<GlyphFont> font = FontOf(part);
    if (!font)
        return std::nullopt;
    return FontAttributes(*font, clockType).family;
}

std::optional<Attribute> SizeAttribute(Part part, int clockType)
{
    const std::optional<GlyphFont> font = FontOf(part);
    if (!font)
        return std::nullopt;
    return FontAttributes(*font, clockType).size;
}

std::optional<Attribute> ColourAttribute(Part part, int clockType)
{
    const PartRow &row = RowOfPart(part);
    return row.font ? FontAttributes(*row.font, clockType).colour : row.colour;
}

QVector<Part> PartsShown(HClockNode &node)
{
    QVector<Part> shown;
    if (node.ClockType() != AnalogClock && node.ClockType() != DigitalClock)
        return shown;
    for (const PartRow &row : kParts) {
        if (IsShown(node, row.part))
            shown.append(row.part);
    }
    return shown;
}

} // namespace ClockFit
