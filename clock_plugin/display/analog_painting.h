// display/: paints the parts of an analog clock: marks, numerals, hands. Unless stated
// otherwise, painters must be active with their origin at the centre of the clock, and their state
// is restored.
#pragma once

#include "display/analog_geometry.h"

#include <QColor>
#include <QPixmap>
#include <QPolygonF>

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

/// The numerals from a strip of ten digits. "10" and "11" are on a box of the key colour, which
/// hides the marks and digits under it. Paints nothing if the strip is null or narrower than one
/// pixel per digit.
void PaintNumerals(QPainter &painter, int hourScale, double radius, const QPixmap &strip,
                   const QColor &keyColour);

/// A filled shape of one opaque colour, around the centre.
struct FlatShape
{
    QPolygonF outline; ///< of a hand, before rotation; empty for a disc
    double degrees = 0;
    QRect disc; ///< the box of a disc; empty for a hand
    QColor colour;

    bool IsEmpty() const { return outline.isEmpty() && disc.isEmpty(); }
};

/// The outline of the shape, or of a disc's box, in pixels of an image with this centre.
QPolygonF OutlineOn(const QPoint &centre, const FlatShape &shape);

void PaintFlat(QPainter &painter, const FlatShape &shape);
/// The same onto an image whose top left corner is at `place` in the frame. The painter's
/// origin must be at that corner, with the brush set and no pen; its transform is not restored.
/// `outline` is that of OutlineOn().
void PaintFlatFrom(QPainter &painter, const QPoint &place, const QPoint &centre,
                   const FlatShape &shape, const QPolygonF &outline);

/// Paints the ring on a hand's tail, rotated with the hand. Returns an outline around all pixels
/// that it may touch, in pixels of the painted image.
QPolygonF PaintRing(QPainter &painter, const Ring &ring, double degrees, const QColor &colour);

} // namespace Lw::HNodeClock
