// Paints the parts of an analog clock: marks, numerals, hands. All painters are active and have
// their origin at the centre of the clock; their state is the same before and after.
#pragma once

#include "display/analog_geometry.h"
#include "display/stamp.h"

#include <QColor>
#include <QPixmap>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

struct MarkStyle
{
    int hourScale = 0;
    int minuteScale = 0;
    QColor hourColour;
    QColor minuteColour;
};

/// The sixty marks.
void PaintMarks(QPainter &painter, double radius, const MarkStyle &style);

/// The numerals from a strip of ten digits. "10" and "11" stand on a box of the key colour, which
/// hides the marks and digits under it. Nothing for a strip that is null or has no whole pixel for
/// a digit.
void PaintNumerals(QPainter &painter, int hourScale, double radius, const QPixmap &strip,
                   const QColor &keyColour);

/// One hand, turned clockwise, and the disc over the hands. They return outlines around all pixels
/// they may touch, in pixels of the painted image.
QVector<QPolygonF> PaintHand(QPainter &painter, const HandShape &shape, double degrees,
                             const QColor &colour);
QVector<QPolygonF> PaintCentreCap(QPainter &painter, const QRect &cap, const QColor &colour);

/// The same, for hands that stay where they are and for the disc: with a stamp, which is kept for
/// the next frame. Only onto premultiplied images.
QVector<QPolygonF> StampHand(QPainter &painter, Stamp &stamp, const HandShape &shape,
                             double degrees, const QColor &colour);
QVector<QPolygonF> StampCentreCap(QPainter &painter, Stamp &stamp, const QRect &cap,
                                  const QColor &colour);

} // namespace Lw::HNodeClock
