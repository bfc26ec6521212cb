// studio/files: the approval sheet as a PDF: the wall, the settings of its clocks, and the
// findings.
#pragma once

#include "text/parsed_program.h"
#include "wall/live_wall.h"

#include <QString>
#include <QStringList>

namespace ClockStudio {

/// A PDF of A4 pages.
QByteArray SheetPdf(const QString &title, LiveWall &wall, const QStringList &findings);

/// Its contents as HTML: for each clock, what it shows and how. The picture is the resource "wall".
QString SheetHtml(const QString &title, LiveWall &wall, const QStringList &findings);

} // namespace ClockStudio
