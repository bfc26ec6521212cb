// What the player says of glyph images that went wrong.
#pragma once

#include "failure.h"
#include "plugins.h"
#include "program_file.h"

namespace ClockStage {
class Stage;
}

namespace ClockPlayer {

/// For a stage that was started. Warns of letters that no font has; fails where images are blank,
/// or could not be written, so that nothing or something older is shown.
ClockProgram::MaybeFailure CheckGlyphs(const ClockStage::Stage &stage, const QString &programPath,
                                       const Warn &warn);

} // namespace ClockPlayer
