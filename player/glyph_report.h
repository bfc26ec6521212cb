// What the player says of glyph images that went wrong.
#pragma once

#include "failure.h"
#include "plugins.h"
#include "program_file.h"

#include <QVector>

namespace Lw {
class HNode;
}

namespace ClockPlayer {

/// For nodes whose images are loaded. Warns of letters that no font has, and of images that are
/// left out for their memory; fails where images are blank, or could not be written, so that nothing
/// or something older is shown.
ClockProgram::MaybeFailure CheckGlyphs(const QVector<Lw::HNode *> &nodes,
                                       const QString &programPath, const Warn &warn);

} // namespace ClockPlayer
