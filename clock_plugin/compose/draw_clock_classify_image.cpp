#include "compose/draw_clock_classify_image.h"

namespace Lw::HNodeClock {

class DrawClockClassifyImage::Private
{
};

DrawClockClassifyImage::DrawClockClassifyImage() : d(new Private) { }

DrawClockClassifyImage::~DrawClockClassifyImage()
{
    delete d;
}

} // namespace Lw::HNodeClock
