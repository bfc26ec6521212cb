#include "clock_plugin.h"

#include "clock_node.h"
#include "clock_render.h"

#include <QDomElement>

namespace Lw::HNodeClock {

HNodeClock::HNodeClock() = default;

HNodeClock::~HNodeClock() = default;

bool HNodeClock::PluginMatch(QDomElement &element)
{
    return element.tagName() == QLatin1String(Sdk::kClock);
}

int HNodeClock::level()
{
    return 4;
}

QString HNodeClock::type()
{
    return QLatin1String(kNodeType);
}

Lw::HNode *HNodeClock::Create()
{
    return new HClockNode;
}

Lw::IContentRender *HNodeClock::CreateAreaRender(Lw::HNode *node)
{
    return new HClockRender(qobject_cast<HClockNode *>(node));
}

} // namespace Lw::HNodeClock
