// The digital clock: up to five elements on one line or in rows.
#include "display/draw_display_image_p.h"

#include "compose/element_composer.h"
#include "display/row_placement.h"

namespace Lw::HNodeClock {

void DrawDisplayImage::Private::DrawDigital(const DigitalSettings &settings)
{
    ElementComposer &elements = composer.Elements();
    const ElementComposer::FrameScope oneFrame(elements);
    const QSize size(frameWidth, settings.area.height());
    const Placements wanted = PlaceDigital(settings, elements, rows);
    if (frame.size() == size && digitalContents->Describes(frame, wanted))
        return;
    std::swap(digitalContents, digitalSpareContents);
    PrepareFrame(size);
    if (!frame.isNull())
        digitalContents->Draw(frame, wanted, KeyColour());
}

void DrawDisplayImage::Private::LayOutDigitalRows(int count, int space)
{
    if (node)
        LayOutDigital(DigitalSettings(*node), count, space, composer.Elements(), rows);
}

void DrawDisplayImage::Private::DrawDigitalFrame()
{
    const DigitalSettings settings(*node);
    LayOutDigital(settings, CountRows(settings.flags), settings.space, composer.Elements(), rows);
    DrawDigital(settings);
}

void DrawDisplayImage::GetDigitalDisplayArea()
{
    if (!d->node)
        return;
    const DigitalSettings settings(*d->node);
    LayOutDigital(settings, CountRows(settings.flags), settings.space, d->composer.Elements(),
                  d->rows);
}

void DrawDisplayImage::Computations1Count()
{
    d->LayOutDigitalRows(1, 0);
}

void DrawDisplayImage::Computations2Count(int space)
{
    d->LayOutDigitalRows(2, space);
}

void DrawDisplayImage::Computations3Count(int space)
{
    d->LayOutDigitalRows(3, space);
}

void DrawDisplayImage::Computations4Count(int space)
{
    d->LayOutDigitalRows(4, space);
}

void DrawDisplayImage::Computations5Count(int space)
{
    d->LayOutDigitalRows(5, space);
}

void DrawDisplayImage::DrawDigitalClock()
{
    if (d->node)
        d->DrawDigital(DigitalSettings(*d->node));
}

} // namespace Lw::HNodeClock
