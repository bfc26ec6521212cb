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

QPolygonF OutlineOn(const QPoint &centre, const FlatShape &shape)
{
    QTransform turned = QTransform::fromTranslate(centre.x(), centre.y());
    turned.rotate(shape.degrees);
    return turned.map(shape.disc.isEmpty() ? shape.outline : QPolygonF(QRectF(shape.disc)));
}

void PaintFlat(QPainter &painter, const FlatShape &shape)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(shape.colour, Qt::SolidPattern));
    painter.rotate(shape.degrees);
    if (shape.disc.isEmpty())
        painter.drawConvexPolygon(shape.outline);
    else
        painter.drawEllipse(shape.disc);
    painter.restore();
}

void PaintFlatFrom(QPainter &painter, const QPoint &place, const QPoint &centre,
                   const FlatShape &shape, const QPolygonF &outline)
{
    if (shape.disc.isEmpty()) {
        painter.drawConvexPolygon(outline.translated(-place));
    } else {
        painter.translate(centre - place);
        painter.drawEllipse(shape.disc);
    }
}

QPolygonF PaintRing(QPainter &painter, const Ring &ring, double degrees, const QColor &colour)
{
    QPen pen(colour);
    pen.setWidth(ring.penWidth);
    const double reach = ring.radius + ring.penWidth / 2.0;
    const QPointF corner(reach, reach);
    painter.save();
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.rotate(degrees);
    painter.drawEllipse(ring.centre, ring.radius, ring.radius);
    const QPolygonF touched =
        painter.transform().map(QPolygonF(QRectF(ring.centre - corner, ring.centre + corner)));
    painter.restore();
    return touched;
}

} // namespace Lw::HNodeClock
