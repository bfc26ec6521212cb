// studio/wall: painting of the editor's overlays: grid, outlines, handles, guides, rulers.
#pragma once

#include "placing.h"
#include "wall_scale.h"

#include <QColor>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace ClockStudio {

// The colours of the editor around the wall, for light and dark desktops.
inline const QColor kCanvas(0x2b, 0x2e, 0x34);
inline const QColor kWallEdge(0x55, 0x5b, 0x66);
inline const QColor kModuleLine(0x90, 0xa0, 0xb8, 0x48);
inline const QColor kOutline(0x8a, 0x94, 0xa6);
inline const QColor kSelected(0x4d, 0xa3, 0xff);
inline const QColor kGuide(0xff, 0x5c, 0xa8);
inline const QColor kRuler(0x22, 0x25, 0x2a);
inline const QColor kRulerInk(0x9a, 0xa2, 0xb0);
inline const QColor kHintInk(0xb8, 0xc0, 0xcc);

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
