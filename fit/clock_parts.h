// fit/: which parts a clock draws, and the font of each.
#pragma once

#include "fit.h"

#include "clock_node.h"

#include <optional>

namespace ClockFit {

/// The value of an attribute as an int.
inline int NumberOf(Lw::HNodeClock::HClockNode &node, Lw::HNodeClock::Attribute attribute)
{
    return node.GetAttributeToInt(Key(attribute));
}

/// The font of a part; nothing for marks and hands.
std::optional<Lw::HNodeClock::GlyphFont> FontOf(Part part);

/// The parts that a clock of the node's kind and settings draws, in the order of the enumeration.
QVector<Part> PartsShown(Lw::HNodeClock::HClockNode &node);

} // namespace ClockFit
