// A clock for the targets that draw: a node with a set of glyph images that were made once.
#pragma once

#include "clock_node.h"

#include "hdata.h"

#include <QList>
#include <QString>

namespace Fuzz {

/// The images of a clock of that type with its default settings, made at the first call and kept
/// until the process ends. None for a picture clock.
const QList<Lw::FileRecord> &PreparedGlyphs(int clockType);

/// A new clock of that type with its default settings, 64 by 32 pixels, that shows every element
/// and has the prepared images.
void MakeScene(Lw::HNodeClock::HClockNode &node, int clockType);

/// The milliseconds of the device's clock from now on.
void SetTime(long long utcMilliseconds);
void AdvanceTime(int milliseconds); ///< not past the last instant

} // namespace Fuzz
