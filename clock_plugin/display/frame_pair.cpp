// The two frames that are drawn in turn.
#include "display/draw_display_image_p.h"

namespace Lw::HNodeClock {

bool DrawDisplayImage::Private::PrepareFrame(const QSize &size)
{
    std::swap(frame, spare);
    if (!frame.isNull() && frame.size() == size && frame.isDetached())
        return true;
    frame = NewImage(size, QColor(1, 2, 1));
    return false;
}

} // namespace Lw::HNodeClock
