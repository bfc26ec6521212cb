// Which glyph images a clock shows as it is set: of rows that are hidden and formats that are not
// chosen an image may be wrong and nobody sees it.
#pragma once

#include "glyph/glyph_set.h"

namespace Lw::HNodeClock {

class HClockNode;

/// Whether the clock shows the image at some time or other. False for an image that its kind of
/// clock does not have.
bool IsShown(const GlyphImage &image, HClockNode &node);

} // namespace Lw::HNodeClock
