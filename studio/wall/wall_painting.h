// studio/wall: the wall as it is seen and handled.
// What is drawn over and around the wall: edges, grid, outlines, guides, rulers.
#pragma once

#include "placing.h"
#include "wall_scale.h"

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace ClockStudio {

constexpr int kRulerWidth = 22; ///< pixels of the view
constexpr int kHandleSide = 8;

void PaintModules(QPainter &painter, const WallScale &scale, QSize screen, QSize module);
void PaintOutline(QPainter &painter, const WallScale &scale, const QRect &area, bool isChosen);
void PaintHandles(QPainter &painter, const WallScale &scale, const QRect &area);
void PaintGuides(QPainter &painter, const WallScale &scale, const SnapLines &guides, QSize screen);
/// A rectangle that is being drawn, or chooses what it touches.
void PaintBand(QPainter &painter, const WallScale &scale, const QRect &band);
/// A few words beside a rectangle.
void PaintTag(QPainter &painter, const WallScale &scale, const QRect &rect, const QString &text);
/// The rulers at two edges of a view, with the chosen span marked.
void PaintRulers(QPainter &painter, const WallScale &scale, QSize view, const QRect &chosen);

/// The handle of an area under a point of the view.
Handle HandleAt(const WallScale &scale, const QRect &area, QPoint point);

} // namespace ClockStudio
