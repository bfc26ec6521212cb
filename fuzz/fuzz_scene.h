// fuzz/: a clock for the targets that draw, with glyph images that are made once per process.
#pragma once

#include "clock_node.h"

namespace Fuzz {

/// A new clock of that type with its default settings, 64 by 32 pixels, that shows every element
/// and has glyph images, which are made once per process.
void MakeScene(Lw::HNodeClock::HClockNode &node, int clockType);

/// Sets the device's clock, which then stands still.
void SetTime(long long utcMilliseconds);
void AdvanceTime(int milliseconds); ///< not past the last instant

} // namespace Fuzz
