// studio/files: where programs come from and go to.
// An animated picture of some seconds of a wall, put together by ImageMagick.
#pragma once

#include "tool_run.h"
#include "wall/live_wall.h"

namespace ClockStudio {

/// Writes frames of the seconds to come into a folder; gives why that failed.
QString WritePreviewFrames(LiveWall &wall, const QString &folder);

/// The command that makes one animated picture of them.
ToolCommand PreviewCommand(const QString &folder, const QString &path);

} // namespace ClockStudio
