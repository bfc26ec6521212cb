#include "clock_render.h"

#include "display/draw_display_image.h"

#include "pictureplayer.h"

namespace Lw::HNodeClock {

HClockRender::HClockRender(HClockNode *node) : m_node(node) { }

HClockRender::~HClockRender() = default;

void HClockRender::Start(unsigned int, long long) { }

void HClockRender::Pause() { }

void HClockRender::Stop() { }

void HClockRender::Remove() { }

void HClockRender::PlayNext() { }

int HClockRender::renderState()
{
    return m_state;
}

void HClockRender::CleanResources() { }

} // namespace Lw::HNodeClock
