#include "display/draw_display_image.h"

#include "display/draw_display_image_p.h"

namespace Lw::HNodeClock {

DrawDisplayImage::DrawDisplayImage(HClockNode *node) : d(new Private)
{
    d->node = node;
}

DrawDisplayImage::~DrawDisplayImage()
{
    delete d;
}

} // namespace Lw::HNodeClock
