#include "clock_node.h"

#include <QDomElement>

namespace Lw::HNodeClock {

HClockNode::HClockNode()
{
    qRegisterMetaType<HClockNode *>("HClockNode*");
}

HClockNode::~HClockNode() = default;

void HClockNode::Store(Attribute attribute, int value)
{
    SetAttribute(Key(attribute), value, false);
    if (RowOf(attribute).redraw == Redraw::Yes)
        emit ReDrawSourceImage();
}

void HClockNode::Store(Attribute attribute, const QString &value)
{
    SetAttribute(Key(attribute), value, false);
    if (RowOf(attribute).redraw == Redraw::Yes)
        emit ReDrawSourceImage();
}

QString HClockNode::Type()
{
    return QStringLiteral("LW_Clock_Plugin");
}

bool HClockNode::NodeMatch(QDomElement &element)
{
    return element.tagName() == QLatin1String("clock");
}

int HClockNode::Duration()
{
    return 6000;
}

int HClockNode::ClockType()
{
    return GetAttributeToInt(Key(Attribute::ClockType));
}

void HClockNode::InitData() { }

} // namespace Lw::HNodeClock
