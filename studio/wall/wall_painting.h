// studio/wall: painting of the editor's overlays: grid, outlines, handles, guides, rulers.
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
void PaintOutline(QPainter &painter, const WallScale &scale, const QRect &area, bool isSelected);
void PaintHandles(QPainter &painter, const WallScale &scale, const QRect &area);
void PaintGuides(QPainter &painter, const WallScale &scale, const SnapLines &guides, QSize screen);
/// The rubber band of drawing or selecting.
void PaintBand(QPainter &painter, const WallScale &scale, const QRect &band);
/// A short label below a rectangle.
void PaintTag(QPainter &painter, const WallScale &scale, const QRect &rect, const QString &text);
/// The rulers at the top and left edges of a view, with the selection's span marked.
void PaintRulers(QPainter &painter, const WallScale &scale, QSize view, const QRect &selected);

/// The handle of an area under a point in the view; NoHandle if none.
Handle HandleAt(const WallScale &scale, const QRect &area, QPoint point);

} // namespace ClockStudio
