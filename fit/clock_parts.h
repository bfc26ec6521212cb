// fit/: which parts a clock draws, and the font of each.
#pragma once

#include "fit.h"

#include <optional>

namespace ClockFit {

/// The font of a part; nothing for marks and hands.
std::optional<Lw::HNodeClock::GlyphFont> FontOf(Part part);

/// The parts that a clock of the node's kind and settings draws, in the order of the enumeration.
QVector<Part> PartsShown(Lw::HNodeClock::HClockNode &node);

} // namespace ClockFit
