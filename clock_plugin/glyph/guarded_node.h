// glyph/: reads a node that its host may delete within any call.
#pragma once

#include "clock_node.h"

#include <QPointer>
#include <QString>

namespace Lw::HNodeClock {

/// Once the node is deleted, its settings are 0, empty or absent.
class GuardedNode
{
public:
    explicit GuardedNode(HClockNode *node) : m_node(node) { }

    HClockNode *Node() const { return m_node; } ///< null once it is deleted

    int Number(Attribute attribute) const
    {
        return m_node ? m_node->GetAttributeToInt(Key(attribute)) : 0;
    }
    QString Text(Attribute attribute) const
    {
        return m_node ? m_node->GetAttribute(Key(attribute)) : QString();
    }
    bool Has(Attribute attribute) const { return m_node && m_node->HaveAttribute(Key(attribute)); }
    int ClockType() const { return Number(Attribute::ClockType); }

private:
    QPointer<HClockNode> m_node;
};

} // namespace Lw::HNodeClock
