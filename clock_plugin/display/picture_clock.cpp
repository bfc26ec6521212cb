// The picture clock: a dial picture and hand pictures of a chosen style.
#include "display/draw_display_image_p.h"

namespace Lw::HNodeClock {

void DrawDisplayImage::InitClockTypePixmap() { }

void DrawDisplayImage::DrawPixmapClock() { }

} // namespace Lw::HNodeClock
