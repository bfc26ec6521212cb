#include "wall_painting.h"

#include <QPainter>

namespace ClockStudio {

namespace {

// Minimum distance between numbered ruler ticks, in view pixels.
constexpr int kMinTickDistance = 48;

/// The distance between numbered ticks in wall pixels, wide enough for the numbers.
int MarkStep(int zoom)
{
    for (const int step : {8, 16, 32, 64, 128, 256, 512, 1024}) {
        if (step * zoom >= kMinTickDistance)
            return step;
    }
    return 2048;
}

/// Ruler ticks in wall pixels: the distance between numbered ticks, and the last
/// one at or before the edge of the view.
struct Marks
{
    int step;
    int first;
};

Marks MarksFrom(int origin, int zoom)
{
    const int step = MarkStep(zoom);
    const int before = (kRulerWidth - origin) / zoom;
    return {step, before - (before % step + step) % step};
}

/// A ruler at the top or the left of the view: places along it and across it, in view pixels.
struct Ruler
{
    Qt::Orientation orientation;

    int Along(QPoint point) const { return orientation == Qt::Horizontal ? point.x() : point.y(); }
    QPoint At(int along, int across) const
    {
        return orientation == Qt::Horizontal ? QPoint(along, across) : QPoint(across, along);
    }
    /// The part of the ruler between `from` and `to`, from `across` to the edge at the wall.
    QRect Strip(int from, int to, int across) const
    {
        return {At(from, across), At(to, kRulerWidth) - QPoint(1, 1)};
    }
};

void PaintNumber(QPainter &painter, const Ruler &ruler, int along, int number)
{
    painter.save();
    painter.translate(ruler.At(along + 3, 11));
    painter.rotate(ruler.orientation == Qt::Horizontal ? 0 : 90);
    painter.drawText(0, 0, QString::number(number));
    painter.restore();
}

void PaintRuler(QPainter &painter, const Ruler &ruler, const WallScale &scale, int length,
                const QRect &selected)
{
    painter.fillRect(ruler.Strip(0, length, 0), kRuler);
    if (!selected.isEmpty()) {
        const QRect span = scale.ToView(selected);
        painter.fillRect(ruler.Strip(ruler.Along(span.topLeft()),
                                     ruler.Along(span.bottomRight()) + 1, kRulerWidth - 4),
                         kSelected);
    }
    const int origin = ruler.Along(scale.origin);
    const Marks marks = MarksFrom(origin, scale.zoom);
    for (int at = marks.first; origin + at * scale.zoom <= length; at += marks.step / 4) {
        const int along = origin + at * scale.zoom;
        const bool isNumbered = at % marks.step == 0;
        painter.drawLine(ruler.At(along, kRulerWidth - (isNumbered ? 10 : 5)),
                         ruler.At(along, kRulerWidth - 1));
        if (isNumbered)
            PaintNumber(painter, ruler, along, at);
    }
}

QRect HandleRect(const WallScale &scale, const QRect &area, Handle handle)
{
    const QPoint middle = HandlePlace(scale.ToView(area), handle).toPoint();
    return {middle - QPoint(kHandleSide / 2, kHandleSide / 2), QSize(kHandleSide, kHandleSide)};
}

} // namespace

void PaintModules(QPainter &painter, const WallScale &scale, QSize screen, QSize module)
{
    const QRect view = scale.ToView({QPoint(), screen});
    painter.setPen(kModuleLine);
    for (int x = module.width(); x < screen.width(); x += module.width()) {
        const int at = scale.origin.x() + x * scale.zoom;
        painter.drawLine(at, view.top(), at, view.bottom());
    }
    for (int y = module.height(); y < screen.height(); y += module.height()) {
        const int at = scale.origin.y() + y * scale.zoom;
        painter.drawLine(view.left(), at, view.right(), at);
    }
}

void PaintOutline(QPainter &painter, const WallScale &scale, const QRect &area, bool isSelected)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(isSelected ? kSelected : kOutline, isSelected ? 2 : 1,
                        isSelected ? Qt::SolidLine : Qt::DotLine));
    painter.drawRect(scale.ToView(area));
}

void PaintHandles(QPainter &painter, const WallScale &scale, const QRect &area)
{
    painter.setPen(QPen(kSelected, 1));
    painter.setBrush(Qt::white);
    for (const Handle handle : Handles())
        painter.drawRect(HandleRect(scale, area, handle));
}

void PaintGuides(QPainter &painter, const WallScale &scale, const SnapLines &guides, QSize screen)
{
    constexpr int kOverhang = 12;
    const QRect view = scale.ToView({QPoint(), screen});
    painter.setPen(QPen(kGuide, 1));
    for (const int x : guides.x) {
        const int at = scale.origin.x() + x * scale.zoom;
        painter.drawLine(at, view.top() - kOverhang, at, view.bottom() + kOverhang);
    }
    for (const int y : guides.y) {
        const int at = scale.origin.y() + y * scale.zoom;
        painter.drawLine(view.left() - kOverhang, at, view.right() + kOverhang, at);
    }
}

void PaintBand(QPainter &painter, const WallScale &scale, const QRect &band)
{
    QColor fill = kSelected;
    fill.setAlpha(40);
    painter.setPen(QPen(kSelected, 1, Qt::DashLine));
    painter.setBrush(fill);
    painter.drawRect(scale.ToView(band));
}

void PaintTag(QPainter &painter, const WallScale &scale, const QRect &rect, const QString &text)
{
    const QRect view = scale.ToView(rect);
    const QSize size = painter.fontMetrics().size(Qt::TextSingleLine, text) + QSize(12, 6);
    const QRect tag(QPoint(view.center().x() - size.width() / 2, view.bottom() + 8), size);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kSelected);
    painter.drawRoundedRect(tag, 3, 3);
    painter.setPen(QColor(0x10, 0x18, 0x24));
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.drawText(tag, Qt::AlignCenter, text);
}

void PaintRulers(QPainter &painter, const WallScale &scale, QSize view, const QRect &selected)
{
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    painter.setPen(kRulerInk);
    painter.setLayoutDirection(Qt::LeftToRight); // of negative numbers
    PaintRuler(painter, {Qt::Horizontal}, scale, view.width(), selected);
    PaintRuler(painter, {Qt::Vertical}, scale, view.height(), selected);
    painter.fillRect(0, 0, kRulerWidth, kRulerWidth, kRuler);
}

Handle HandleAt(const WallScale &scale, const QRect &area, QPoint point)
{
    Handle found = NoHandle;
    for (const Handle handle : Handles()) {
        if (HandleRect(scale, area, handle).adjusted(-2, -2, 2, 2).contains(point))
            found = handle;
    }
    return found;
}

} // namespace ClockStudio
