// studio/files: where programs come from and go to.
// A sheet for approval: the wall, what its clocks are set to, and what was found.
#pragma once

#include "text/program_reading.h"
#include "wall/live_wall.h"

#include <QString>
#include <QStringList>

namespace ClockStudio {

/// Writes a PDF of A4 pages. False where the file cannot be written.
bool WriteSheet(const QString &path, const QString &title, LiveWall &wall,
                const QStringList &findings);

} // namespace ClockStudio
