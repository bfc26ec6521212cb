// glyph/: which glyph images a clock shows with its settings. Faults in those of hidden rows and
// unused formats are not reported, although the label strips also set the height of formats that
// show no label.
#pragma once

#include "glyph/glyph_set.h"

namespace Lw::HNodeClock {

class HClockNode;

/// Whether the clock ever shows the image. False for an image that its kind of clock does not have.
bool IsShown(const GlyphImage &image, HClockNode &node);

} // namespace Lw::HNodeClock
