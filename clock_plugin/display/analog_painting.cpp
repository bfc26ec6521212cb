#include "display/analog_painting.h"

#include <QPainter>

namespace Lw::HNodeClock {

namespace {

void PaintMark(QPainter &painter, const Mark &mark)
{
    switch (mark.shape) {
    case Mark::None:
        break;
    case Mark::Line:
        painter.drawLine(mark.line);
        break;
    case Mark::Dot:
        painter.drawEllipse(mark.dot);
        break;
    case Mark::Square:
        painter.drawRect(mark.square);
        break;
    }
}

void SetPenAndBrush(QPainter &painter, const QColor &colour, int penWidth)
{
    QPen pen(colour);
    pen.setWidth(penWidth);
    painter.setPen(pen);
    painter.setBrush(QBrush(colour, Qt::SolidPattern));
}

} // namespace

void PaintMarks(QPainter &painter, double radius, const MarkStyle &style)
{
    const Mark hourMark = HourMark(style.hourScale, radius);
    const Mark minuteMark = MinuteMark(style.minuteScale, radius);
    const int penWidth = MarkPenWidth(radius);
    painter.save();
    SetPenAndBrush(painter, style.minuteColour, penWidth);
    for (int i = 0; i < 60; ++i) {
        if (i % 5 == 0) {
            painter.save();
            SetPenAndBrush(painter, style.hourColour, penWidth);
            PaintMark(painter, hourMark);
            painter.restore();
        } else {
            PaintMark(painter, minuteMark);
        }
        painter.rotate(6);
    }
    painter.restore();
}

namespace {

QRect Cell(const DigitCells &cells, int digit, int count = 1)
{
    return QRect(digit * cells.width, 0, count * cells.width, cells.height);
}

QPixmap OnKeyColour(const QPixmap &strip, const DigitCells &cells, int firstDigit, int secondDigit,
                    const QColor &keyColour)
{
    QPixmap box(2 * cells.width, cells.height);
    box.fill(keyColour);
    QPainter painter(&box);
    painter.drawPixmap(QPoint(0, 0), strip, Cell(cells, firstDigit));
    painter.drawPixmap(QPoint(cells.width, 0), strip, Cell(cells, secondDigit));
    painter.end();
    return box;
}

} // namespace

void PaintNumerals(QPainter &painter, int hourScale, double radius, const QPixmap &strip,
                   const QColor &keyColour)
{
    const DigitCells cells(strip.size());
    if (cells.width == 0 || cells.height == 0)
        return;
    for (const Numeral &numeral : Numerals(hourScale, radius, cells)) {
        if (numeral.number == 12) {
            painter.drawPixmap(numeral.topLeft, strip, Cell(cells, 1, 2)); // 1 and 2 side by side
        } else if (numeral.number >= 10) {
            painter.drawPixmap(numeral.topLeft,
                               OnKeyColour(strip, cells, 1, numeral.number % 10, keyColour));
        } else {
            painter.drawPixmap(numeral.topLeft, strip, Cell(cells, numeral.number));
        }
    }
}

namespace {

void PaintRing(QPainter &painter, const Ring &ring, const QColor &colour)
{
    QPen pen(colour);
    pen.setWidth(ring.penWidth);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(ring.centre, ring.radius, ring.radius);
}

QRectF BoxAround(const Ring &ring)
{
    const double reach = ring.radius + ring.penWidth / 2.0;
    const QPointF corner(reach, reach);
    return QRectF(ring.centre - corner, ring.centre + corner);
}

} // namespace

QVector<QPolygonF> PaintHand(QPainter &painter, const HandShape &shape, double degrees,
                             const QColor &colour)
{
    if (shape.outline.isEmpty())
        return {};
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(colour, Qt::SolidPattern));
    painter.rotate(degrees);
    painter.drawConvexPolygon(shape.outline);
    QVector<QPolygonF> touched = {painter.transform().map(shape.outline)};
    if (shape.ring.radius > 0) {
        PaintRing(painter, shape.ring, colour);
        touched.append(painter.transform().map(QPolygonF(BoxAround(shape.ring))));
    }
    painter.restore();
    return touched;
}

QVector<QPolygonF> PaintCentreCap(QPainter &painter, const QRect &cap, const QColor &colour)
{
    if (cap.isEmpty())
        return {};
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(colour, Qt::SolidPattern));
    painter.drawEllipse(cap);
    painter.restore();
    return {painter.transform().map(QPolygonF(QRectF(cap)))};
}

// A ring is no polygon: a hand that has one is painted.
QVector<QPolygonF> StampHand(QPainter &painter, Stamp &stamp, const HandShape &shape,
                             double degrees, const QColor &colour)
{
    if (shape.outline.isEmpty() || shape.ring.radius > 0)
        return PaintHand(painter, shape, degrees, colour);
    QTransform turned = painter.transform();
    turned.rotate(degrees);
    const QPolygonF outline = turned.map(shape.outline);
    stamp.Draw(painter, {outline, colour}, [&outline](QPainter &own, const QPoint &shift) {
        own.drawConvexPolygon(outline.translated(-shift));
    });
    return {outline};
}

QVector<QPolygonF> StampCentreCap(QPainter &painter, Stamp &stamp, const QRect &cap,
                                  const QColor &colour)
{
    if (cap.isEmpty())
        return {};
    const QTransform &centred = painter.transform();
    const QPolygonF outline = centred.map(QPolygonF(QRectF(cap)));
    stamp.Draw(painter, {outline, colour}, [&](QPainter &own, const QPoint &shift) {
        own.translate(centred.dx() - shift.x(), centred.dy() - shift.y());
        own.drawEllipse(cap);
    });
    return {outline};
}

} // namespace Lw::HNodeClock
