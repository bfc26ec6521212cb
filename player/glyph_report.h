// player/: reports glyph images that failed, as the player's warnings or failure.
#pragma once

#include "failure.h"
#include "plugins.h"
#include "program_file.h"

#include <QVector>

namespace Lw {
class HNode;
}

namespace ClockPlayer {

/// For nodes whose images are loaded. Warns of characters that no font has, and of images
/// left out because of their memory; fails if images are blank or could not be written: then
/// nothing or an older image would be shown.
ClockProgram::MaybeFailure CheckGlyphs(const QVector<Lw::HNode *> &nodes,
                                       const QString &programPath, const Warn &warn);

} // namespace ClockPlayer
