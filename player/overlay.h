// Lines of text over the picture, for displays whose windows have no title.
#pragma once

#include <QSize>
#include <QString>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace ClockPlayer {

/// At the bottom of a window of this size, wrapped to its width; what finds no room is cut at the
/// end. Nothing for an empty text.
void PaintOverlay(QPainter &painter, QSize window, const QString &text);

} // namespace ClockPlayer
