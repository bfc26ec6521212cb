// SDK XML, out and in.
#include "clock_node.h"

#include <QDomElement>

namespace Lw::HNodeClock {

void HClockNode::CoverToSDKFormate(QDomElement &parent, Lw::GetProgramModel model)
{
    Lw::HNode::CoverToSDKFormate(parent, model);
}

bool HClockNode::PatchAnalog(QDomElement &)
{
    return true;
}

bool HClockNode::PatchDigital(QDomElement &)
{
    return true;
}

} // namespace Lw::HNodeClock
