#include "display/row_placement.h"

#include <QPointer>

namespace Lw::HNodeClock {

namespace {

// The host may delete the node during a call; from then on every number is 0.
using GuardedNode = QPointer<HClockNode>;

int Number(const GuardedNode &node, Attribute attribute)
{
    return node ? node->GetAttributeToInt(Key(attribute)) : 0;
}

int Number(const GuardedNode &node, int (HClockNode::*setting)())
{
    return node ? (node->*setting)() : 0;
}

// The heights of the rows whose entry in `measured` is not 0. The others are 0, and their elements
// are not composed at all.
Rows HeightsOf(ElementComposer &elements, const Rows &measured)
{
    Rows heights;
    for (const Row row : kDateFirst) {
        if (measured[row] != 0)
            heights[row] = ElementIn(row, elements).Height();
    }
    return heights;
}

using LayOut = void (*)(const DigitalArea &, Rows &);
constexpr LayOut kLayOutByCount[] = {LayOutOneRow, LayOutTwoRows, LayOutThreeRows, LayOutFourRows,
                                     LayOutFiveRows};

// The elements side by side around the centre of the area.
Placements OnOneLine(const DigitalSettings &settings, ElementComposer &elements)
{
    const Rows &flags = settings.flags;
    const int space = settings.space;
    long long widths = 0;
    for (const Row row : kDateFirst) {
        if (flags[row] != 0)
            widths += ElementIn(row, elements).Width();
    }
    long long x = LineStart(settings.area.width(), space, widths, CountRows(flags));
    Placements placements;
    for (const Row row : settings.swap == 0 ? kWeekFirst : kDateFirst) {
        if (flags[row] != 1)
            continue;
        const Element &element = ElementIn(row, elements);
        placements.Add(element,
                       {ClampPosition(x), settings.area.height() / 2 - element.Height() / 2});
        x += static_cast<long long>(element.Width()) + space;
    }
    return placements;
}

// The elements one above the other, each centred horizontally, at the top edges given.
Placements InRows(const DigitalSettings &settings, ElementComposer &elements, const Rows &tops)
{
    Placements placements;
    for (const Row row : kDateFirst) {
        if (settings.flags[row] != 1)
            continue;
        const Element &element = ElementIn(row, elements);
        placements.Add(element, {settings.area.width() / 2 - element.Width() / 2, tops[row]});
    }
    return placements;
}

} // namespace

const Element &ElementIn(Row row, ElementComposer &elements)
{
    switch (row) {
    case Row::TopText:
        return elements.TopText();
    case Row::Date:
        return elements.Date();
    case Row::Week:
        return elements.Week();
    case Row::Time:
        return elements.Time();
    case Row::Lunar:
        break;
    }
    return elements.Lunar();
}

DigitalSettings::DigitalSettings(HClockNode &node)
{
    const GuardedNode guarded(&node);
    area = node.Size();
    space = Number(guarded, Attribute::DigitalSpace);
    swap = Number(guarded, &HClockNode::DigitalSwapArea);
    onOneLine = Number(guarded, Attribute::DigitalDisplayMode) != 0;
    flags.topText = Number(guarded, &HClockNode::Digital_TopText_d);
    flags.date = Number(guarded, &HClockNode::Digital_Date_d);
    flags.week = Number(guarded, &HClockNode::Digital_Week_d);
    flags.time = Number(guarded, &HClockNode::Digital_Time_d);
    flags.lunar = Number(guarded, &HClockNode::Digital_Lunar_d);
}

void LayOutDigital(const DigitalSettings &settings, int count, int space, ElementComposer &elements,
                   Rows &tops)
{
    if (count == 0)
        return;
    const ElementComposer::FrameScope oneFrame(elements);
    // One row and five rows place every row.
    const Rows &measured = count == 1 || count == 5 ? kEveryRow : settings.flags;
    kLayOutByCount[count - 1]({settings.area.height(), space, settings.swap, settings.flags,
                               HeightsOf(elements, measured)},
                              tops);
}

Placements PlaceDigital(const DigitalSettings &settings, ElementComposer &elements,
                        const Rows &tops)
{
    return settings.onOneLine ? OnOneLine(settings, elements) : InRows(settings, elements, tops);
}

namespace {

struct TextRow
{
    Attribute flag;
    Row row;
};

// In the order of painting.
constexpr TextRow kTexts[] = {
    {Attribute::Analog_TopTexy_d, Row::TopText},
    {Attribute::Analog_Date_d, Row::Date},
    {Attribute::Analog_Week_d, Row::Week},
    {Attribute::Analog_Lunar_d, Row::Lunar},
};

} // namespace

void LayOutAnalog(HClockNode &node, ElementComposer &elements, Rows &tops)
{
    const GuardedNode guarded(&node);
    const QSize size = node.Size();
    Rows flags;
    flags.date = Number(guarded, Attribute::Analog_Date_d);
    flags.week = Number(guarded, Attribute::Analog_Week_d);
    flags.lunar = Number(guarded, Attribute::Analog_Lunar_d);
    // A single row places all three; otherwise a row that does not take part is not measured.
    Rows measured = CountRows(flags) == 1 ? LowerRows(kEveryRow) : flags;
    measured.topText = 1;
    AnalogArea area;
    area.width = size.width();
    area.height = size.height();
    area.space = Number(guarded, Attribute::AnalogSpace);
    area.swap = Number(guarded, Attribute::AnalogSwapArea);
    area.flags = flags;
    area.heights = HeightsOf(elements, measured);
    LayOutAnalogRows(area, tops);
}

Placements PlaceAnalog(HClockNode &node, ElementComposer &elements, const Rows &tops)
{
    const GuardedNode guarded(&node);
    const int middle = node.Size().width() / 2;
    Placements placements;
    for (const TextRow &text : kTexts) {
        if (Number(guarded, text.flag) != 1)
            continue;
        const Element &element = ElementIn(text.row, elements);
        placements.Add(element, QPoint(middle - element.Width() / 2, tops[text.row]));
    }
    return placements;
}

} // namespace Lw::HNodeClock
