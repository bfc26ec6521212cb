#include "glyph/draw_source_image.h"

#include <QPainter>

namespace Lw::HNodeClock {

DrwSourceIMage::DrwSourceIMage() : m_painter(new QPainter) { }

DrwSourceIMage::~DrwSourceIMage()
{
    delete m_painter;
}

void DrwSourceIMage::DrawClockSourceImage(HClockNode *, bool, bool) { }

} // namespace Lw::HNodeClock
