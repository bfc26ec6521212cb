// Settings of a kind, set at once: every font, every size, every colour of a clock.
#pragma once

#include "clock_attributes.h"

#include "hnode.h"

#include <QString>

/// Stores a value under each key of that role which the node has.
template<typename Value>
void SetEvery(Lw::HNode &node, Lw::HNodeClock::ValueRole role, const Value &value)
{
    for (const Lw::HNodeClock::AttributeRow &row : Lw::HNodeClock::kAttributeTable) {
        const QString key = QString::fromLatin1(row.key);
        if (row.role == role && node.HaveAttribute(key))
            node.SetAttribute(key, value, false);
    }
}
