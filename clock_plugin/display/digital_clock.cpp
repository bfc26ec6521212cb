// The digital clock: up to five elements on one line or in rows.
#include "display/draw_display_image_p.h"

#include "compose/element_composer.h"

#include <array>

namespace Lw::HNodeClock {

namespace {

// An element counts in the layout when its flag is not 0, and is drawn when it is 1.
Rows DigitalFlags(HClockNode &node)
{
    Rows flags;
    flags.topText = node.Digital_TopText_d();
    flags.date = node.Digital_Date_d();
    flags.week = node.Digital_Week_d();
    flags.time = node.Digital_Time_d();
    flags.lunar = node.Digital_Lunar_d();
    return flags;
}

using ElementOf = const Element &(*)(ElementComposer &);

// The elements by row, in the order in which they are drawn with the date before the week.
struct RowElement
{
    int Rows::*row;
    ElementOf element;
};

const Element &TopTextOf(ElementComposer &elements)
{
    return elements.TopText();
}
const Element &DateOf(ElementComposer &elements)
{
    return elements.Date();
}
const Element &WeekOf(ElementComposer &elements)
{
    return elements.Week();
}
const Element &TimeOf(ElementComposer &elements)
{
    return elements.Time();
}
const Element &LunarOf(ElementComposer &elements)
{
    return elements.Lunar();
}

constexpr std::array<RowElement, 5> kDateFirst = {{{&Rows::topText, TopTextOf},
                                                   {&Rows::date, DateOf},
                                                   {&Rows::week, WeekOf},
                                                   {&Rows::time, TimeOf},
                                                   {&Rows::lunar, LunarOf}}};
constexpr std::array<RowElement, 5> kWeekFirst = {kDateFirst[0], kDateFirst[2], kDateFirst[1],
                                                  kDateFirst[3], kDateFirst[4]};

using LayOut = void (*)(const DigitalArea &, Rows &);
constexpr LayOut kLayOutByCount[] = {LayOutOneRow, LayOutTwoRows, LayOutThreeRows, LayOutFourRows,
                                     LayOutFiveRows};

// The layouts of one and of five rows place every row.
constexpr Rows kEveryRow {1, 1, 1, 1, 1};

// Elements that are not measured are not composed at all.
Rows HeightsOf(ElementComposer &elements, const Rows &measured)
{
    Rows heights;
    for (const RowElement &row : kDateFirst) {
        if (measured.*row.row != 0)
            heights.*row.row = row.element(elements).Height();
    }
    return heights;
}

// The elements side by side around the centre of the area.
Placements OnOneLine(HClockNode &node, ElementComposer &elements, const QSize &area)
{
    const Rows flags = DigitalFlags(node);
    const int space = node.GetAttributeToInt(Key(Attribute::DigitalSpace));
    long long widths = 0;
    for (const RowElement &row : kDateFirst) {
        if (flags.*row.row != 0)
            widths += row.element(elements).Width();
    }
    long long x = LineStart(area.width(), space, widths, CountRows(flags));
    Placements placements;
    for (const RowElement &row : node.DigitalSwapArea() == 0 ? kWeekFirst : kDateFirst) {
        if (flags.*row.row != 1)
            continue;
        const Element &element = row.element(elements);
        placements.Add(element, {ClampPosition(x), area.height() / 2 - element.Height() / 2});
        x += static_cast<long long>(element.Width()) + space;
    }
    return placements;
}

// The elements one above the other, each centred, at the tops worked out before.
Placements InRows(HClockNode &node, ElementComposer &elements, const QSize &area, const Rows &tops)
{
    const Rows flags = DigitalFlags(node);
    Placements placements;
    for (const RowElement &row : kDateFirst) {
        if (flags.*row.row != 1)
            continue;
        const Element &element = row.element(elements);
        placements.Add(element, {area.width() / 2 - element.Width() / 2, tops.*row.row});
    }
    return placements;
}

} // namespace

void DrawDisplayImage::Private::LayOutDigital(int count, int space)
{
    if (!node || count == 0)
        return;
    const ElementComposer::ReadingScope oneReading(composer.Elements());
    const Rows flags = DigitalFlags(*node);
    const Rows &measured = count == 1 || count == 5 ? kEveryRow : flags;
    kLayOutByCount[count - 1]({node->Size().height(), space, node->DigitalSwapArea(), flags,
                               HeightsOf(composer.Elements(), measured)},
                              rows);
}

void DrawDisplayImage::GetDigitalDisplayArea()
{
    if (d->node)
        d->LayOutDigital(CountRows(DigitalFlags(*d->node)), d->Number(Attribute::DigitalSpace));
}

void DrawDisplayImage::Computations1Count()
{
    d->LayOutDigital(1, 0);
}

void DrawDisplayImage::Computations2Count(int space)
{
    d->LayOutDigital(2, space);
}

void DrawDisplayImage::Computations3Count(int space)
{
    d->LayOutDigital(3, space);
}

void DrawDisplayImage::Computations4Count(int space)
{
    d->LayOutDigital(4, space);
}

void DrawDisplayImage::Computations5Count(int space)
{
    d->LayOutDigital(5, space);
}

void DrawDisplayImage::DrawDigitalClock()
{
    if (!d->node)
        return;
    ElementComposer &elements = d->composer.Elements();
    const ElementComposer::ReadingScope oneReading(elements);
    const QSize size(d->frameWidth, d->node->Size().height());
    const Placements wanted = d->Number(Attribute::DigitalDisplayMode) != 0
        ? OnOneLine(*d->node, elements, d->node->Size())
        : InRows(*d->node, elements, d->node->Size(), d->rows);
    if (d->frame.size() == size && d->digitalContents.Describes(d->frame, wanted))
        return;
    std::swap(d->digitalContents, d->digitalSpareContents);
    d->PrepareFrame(size);
    if (!d->frame.isNull())
        d->digitalContents.Draw(d->frame, wanted, GetColorKey());
}

} // namespace Lw::HNodeClock
