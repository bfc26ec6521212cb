// self_test/: a test clock whose glyph images are generated patterns instead of text.
#pragma once

#include "clock_node.h"

#include <QString>

namespace ClockTool {

/// Sets up a new clock of a type (0 analog, 1 digital, 2 picture) that shows every row, at UTC+8.
/// A digital or analog one gets its glyph images, as files in the directory. Every pixel of them
/// is opaque or clear. False when a file cannot be written.
bool SetUpBlotClock(Lw::HNodeClock::HClockNode &clock, int type, const QString &directory);

/// The instant at which the frames are drawn, in milliseconds since 1970-01-01 UTC.
long long BlotInstant();

} // namespace ClockTool
