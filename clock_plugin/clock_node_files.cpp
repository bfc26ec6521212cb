// The node's side of its glyph files: when they are made, whether they are there, how they travel.
#include "clock_node.h"

#include "glyph/draw_source_image.h"

#include <QDomElement>

namespace Lw::HNodeClock {

QStringList fileList;
QStringList fileMd5List;

bool HClockNode::NodeAlready(int)
{
    return true;
}

void HClockNode::AfterUpdate(bool isTemp)
{
    Lw::HContentNode::AfterUpdate(isTemp);
}

bool HClockNode::AllFileExists()
{
    return Lw::HContentNode::AllFileExists();
}

void HClockNode::GetSDKTempFile(QList<QFileInfo> &out)
{
    Lw::HContentNode::GetSDKTempFile(out);
}

bool HClockNode::UpdateNode(QDomElement, QList<Lw::FileInfo> &)
{
    return false;
}

} // namespace Lw::HNodeClock
