// A clock for the targets that draw: a node with a set of glyph images that were made once.
#pragma once

#include "clock_node.h"

namespace Fuzz {

/// A new clock of that type with its default settings, 64 by 32 pixels, that shows every element
/// and has glyph images, which are made once per process.
void MakeScene(Lw::HNodeClock::HClockNode &node, int clockType);

/// The milliseconds of the device's clock from now on.
void SetTime(long long utcMilliseconds);
void AdvanceTime(int milliseconds); ///< not past the last instant

} // namespace Fuzz
