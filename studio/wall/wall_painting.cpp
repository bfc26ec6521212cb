#include "wall_painting.h"

#include "view_colours.h"

#include <QPainter>

namespace ClockStudio {

namespace {

// Minimum distance between numbered ruler ticks, in view pixels.
constexpr int kLeastMarkDistance = 48;

/// The distance between numbered ticks in wall pixels, wide enough for the numbers.
int MarkStep(int zoom)
{
    for (const int step : {8, 16, 32, 64, 128, 256, 512, 1024}) {
        if (step * zoom >= kLeastMarkDistance)
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

void PaintTopRuler(QPainter &painter, const WallScale &scale, int length, const QRect &selected)
{
    painter.fillRect(0, 0, length, kRulerWidth, kRuler);
    if (!selected.isEmpty()) {
        const QRect span = scale.ToView(selected);
        painter.fillRect(span.x(), kRulerWidth - 4, span.width(), 4, kSelected);
    }
    const Marks marks = MarksFrom(scale.origin.x(), scale.zoom);
    for (int at = marks.first;; at += marks.step / 4) {
        const int x = scale.origin.x() + at * scale.zoom;
        if (x > length)
            break;
        const bool isNumbered = at % marks.step == 0;
        painter.drawLine(x, kRulerWidth - (isNumbered ? 10 : 5), x, kRulerWidth - 1);
        if (isNumbered)
            painter.drawText(x + 3, 11, QString::number(at));
    }
}

/// Background and selection mark are drawn transposed, ticks and numbers are not.
void PaintLeftRuler(QPainter &painter, const WallScale &scale, int length, const QRect &selected)
{
    painter.save();
    painter.rotate(90);
    painter.scale(1, -1);
    painter.fillRect(0, 0, length, kRulerWidth, kRuler);
    if (!selected.isEmpty()) {
        const QRect span = scale.ToView(selected);
        painter.fillRect(span.y(), kRulerWidth - 4, span.height(), 4, kSelected);
    }
    painter.restore();
    const Marks marks = MarksFrom(scale.origin.y(), scale.zoom);
    for (int at = marks.first;; at += marks.step / 4) {
        const int y = scale.origin.y() + at * scale.zoom;
        if (y > length)
            break;
        const bool isNumbered = at % marks.step == 0;
        painter.drawLine(kRulerWidth - (isNumbered ? 10 : 5), y, kRulerWidth - 1, y);
        if (isNumbered) {
            painter.save();
            painter.translate(11, y + 3);
            painter.rotate(90);
            painter.drawText(0, 0, QString::number(at));
            painter.restore();
        }
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
    painter.drawText(tag, Qt::AlignCenter, text);
}

void PaintRulers(QPainter &painter, const WallScale &scale, QSize view, const QRect &selected)
{
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    painter.setPen(kRulerInk);
    PaintTopRuler(painter, scale, view.width(), selected);
    PaintLeftRuler(painter, scale, view.height(), selected);
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
