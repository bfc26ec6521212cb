// studio/files: creates an animated GIF of ten seconds of a wall, using ImageMagick.
#pragma once

#include "tool_run.h"
#include "wall/live_wall.h"

namespace ClockStudio {

/// Writes a frame for each of the next ten seconds to a folder, magnified if the wall is small.
/// Returns an error message, empty on success.
QString WritePreviewFrames(LiveWall &wall, const QString &folder);

/// The command that assembles those frames into a GIF at `path`.
ToolCommand PreviewCommand(const QString &folder, const QString &path);

} // namespace ClockStudio
