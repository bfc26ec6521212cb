// The digital clock: up to five elements on one line or in rows.
#include "display/draw_display_image_p.h"

#include "compose/element_composer.h"
#include "display/row_elements.h"

#include <array>

namespace Lw::HNodeClock {

namespace {

// In the order in which they are drawn.
constexpr std::array<RowElement, 5> kDateFirstElements = ElementsIn(kDateFirst);
constexpr std::array<RowElement, 5> kWeekFirstElements = ElementsIn(kWeekFirst);

using LayOut = void (*)(const DigitalArea &, Rows &);
constexpr LayOut kLayOutByCount[] = {LayOutOneRow, LayOutTwoRows, LayOutThreeRows, LayOutFourRows,
                                     LayOutFiveRows};

// The elements side by side around the centre of the area.
Placements OnOneLine(const DigitalSettings &settings, ElementComposer &elements)
{
    const Rows &flags = settings.flags;
    const int space = settings.space;
    long long widths = 0;
    for (const RowElement &row : kDateFirstElements) {
        if (flags.*row.row != 0)
            widths += row.Of(elements).Width();
    }
    long long x = LineStart(settings.area.width(), space, widths, CountRows(flags));
    Placements placements;
    for (const RowElement &row : settings.swap == 0 ? kWeekFirstElements : kDateFirstElements) {
        if (flags.*row.row != 1)
            continue;
        const Element &element = row.Of(elements);
        placements.Add(element,
                       {ClampPosition(x), settings.area.height() / 2 - element.Height() / 2});
        x += static_cast<long long>(element.Width()) + space;
    }
    return placements;
}

// The elements one above the other, each centred, at the tops worked out before.
Placements InRows(const DigitalSettings &settings, ElementComposer &elements, const Rows &tops)
{
    Placements placements;
    for (const RowElement &row : kDateFirstElements) {
        if (settings.flags.*row.row != 1)
            continue;
        const Element &element = row.Of(elements);
        placements.Add(element, {settings.area.width() / 2 - element.Width() / 2, tops.*row.row});
    }
    return placements;
}

} // namespace

DigitalSettings::DigitalSettings(HClockNode &node)
    : area(node.Size()), space(node.GetAttributeToInt(Key(Attribute::DigitalSpace))),
      swap(node.DigitalSwapArea()),
      onOneLine(node.GetAttributeToInt(Key(Attribute::DigitalDisplayMode)) != 0)
{
    flags.topText = node.Digital_TopText_d();
    flags.date = node.Digital_Date_d();
    flags.week = node.Digital_Week_d();
    flags.time = node.Digital_Time_d();
    flags.lunar = node.Digital_Lunar_d();
}

void DrawDisplayImage::Private::LayOutDigital(const DigitalSettings &settings, int count, int space)
{
    if (count == 0)
        return;
    const ElementComposer::ReadingScope oneReading(composer.Elements());
    // One row and five rows place every row.
    const Rows &measured = count == 1 || count == 5 ? kEveryRow : settings.flags;
    kLayOutByCount[count - 1]({settings.area.height(), space, settings.swap, settings.flags,
                               HeightsOf(composer.Elements(), measured)},
                              rows);
}

void DrawDisplayImage::Private::DrawDigital(const DigitalSettings &settings)
{
    ElementComposer &elements = composer.Elements();
    const ElementComposer::ReadingScope oneReading(elements);
    const QSize size(frameWidth, settings.area.height());
    const Placements wanted =
        settings.onOneLine ? OnOneLine(settings, elements) : InRows(settings, elements, rows);
    if (frame.size() == size && digitalContents->Describes(frame, wanted))
        return;
    std::swap(digitalContents, digitalSpareContents);
    PrepareFrame(size);
    if (!frame.isNull())
        digitalContents->Draw(frame, wanted, KeyColour());
}

void DrawDisplayImage::Private::DrawDigitalFrame()
{
    const DigitalSettings settings(*node);
    LayOutDigital(settings, CountRows(settings.flags), settings.space);
    DrawDigital(settings);
}

void DrawDisplayImage::GetDigitalDisplayArea()
{
    if (!d->node)
        return;
    const DigitalSettings settings(*d->node);
    d->LayOutDigital(settings, CountRows(settings.flags), settings.space);
}

void DrawDisplayImage::Computations1Count()
{
    if (d->node)
        d->LayOutDigital(DigitalSettings(*d->node), 1, 0);
}

void DrawDisplayImage::Computations2Count(int space)
{
    if (d->node)
        d->LayOutDigital(DigitalSettings(*d->node), 2, space);
}

void DrawDisplayImage::Computations3Count(int space)
{
    if (d->node)
        d->LayOutDigital(DigitalSettings(*d->node), 3, space);
}

void DrawDisplayImage::Computations4Count(int space)
{
    if (d->node)
        d->LayOutDigital(DigitalSettings(*d->node), 4, space);
}

void DrawDisplayImage::Computations5Count(int space)
{
    if (d->node)
        d->LayOutDigital(DigitalSettings(*d->node), 5, space);
}

void DrawDisplayImage::DrawDigitalClock()
{
    if (d->node)
        d->DrawDigital(DigitalSettings(*d->node));
}

} // namespace Lw::HNodeClock
