// fit/: the bounds of all ink of a text, including ink that its glyph image cuts off.
#pragma once

#include <QRect>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QFont;
QT_END_NAMESPACE

namespace ClockFit {

/// The bounds of the ink of each cell of a glyph image of this size, in its pixels: of a whole text
/// in one cell, or of each character of a text in a cell of its own. The ten digits are centred in
/// their cells. Ink may be outside the image and outside the cell.
QVector<QRect> InkOfCells(const QFont &font, const QSize &image, const QString &text, int cells);

} // namespace ClockFit
