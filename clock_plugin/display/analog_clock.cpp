// The analog clock: dial, hands and text rows.
#include "display/draw_display_image_p.h"

namespace Lw::HNodeClock {

QPoint hourHand[3];
QPoint minuteHand[3];
QPoint secondHand[3];

void DrawDisplayImage::GetAngDisplayArea() { }

void DrawDisplayImage::DrawAnalogClock() { }

} // namespace Lw::HNodeClock
