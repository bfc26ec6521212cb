// studio/wall: geometry of moving, resizing, snapping, aligning, distributing and stacking. Pure.
#pragma once

#include <QPoint>
#include <QRect>
#include <QVector>

namespace ClockStudio {

/// The sides that a resize handle moves, as flags.
enum HandleSide { NoHandle = 0, LeftSide = 1, TopSide = 2, RightSide = 4, BottomSide = 8 };
using Handle = int;

/// The eight handles of a rectangle, corners last so that they are painted on top.
const QVector<Handle> &Handles();

/// The centre of a handle on a rectangle's outline.
QPointF HandlePlace(const QRectF &rect, Handle handle);

/// The minimum side of an area drawn or resized with the mouse, in wall pixels.
constexpr int kSmallestSide = 4;

/// The rectangle with the handle's sides moved by a distance, at least kSmallestSide from the
/// opposite side.
QRect Resized(const QRect &rect, Handle handle, QPoint distance);

/// Lines to which moving sides snap, in pixels of the screen.
struct SnapLines
{
    QVector<int> x;
    QVector<int> y;
};

/// The edges and centre lines of the screen and of the other areas, and the panel grid unless
/// `module` is empty.
SnapLines SnapLinesOf(QSize screen, const QVector<QRect> &others, QSize module);

/// The snapped distance, and the lines that were hit.
struct Snap
{
    QPoint distance;
    SnapLines met;
};

/// Snaps a moved rectangle: its edges and middles snap to the nearest line within the reach, in
/// pixels.
Snap SnapMove(const QRect &rect, QPoint distance, const SnapLines &lines, int reach);
/// Snaps the moving sides of a resized rectangle.
Snap SnapResize(const QRect &rect, Handle handle, QPoint distance, const SnapLines &lines,
                int reach);

enum class Alignment { Left, Centre, Right, Top, Middle, Bottom };
enum class Direction { Across, Down };

/// Aligns rectangles to their bounding rectangle; a single one to the screen.
QVector<QRect> Aligned(const QVector<QRect> &rects, Alignment alignment, QSize screen);
/// Rectangles with equal gaps between the first and the last.
QVector<QRect> Distributed(const QVector<QRect> &rects, Direction direction);
/// Rectangles one after another without gaps, sorted by position.
QVector<QRect> Stacked(const QVector<QRect> &rects, Direction direction);

/// How far copies of rectangles are moved: beside these on the screen, else below, where no
/// rectangle of `all` is; otherwise by a few pixels.
QPoint CopyDistance(const QVector<QRect> &rects, const QVector<QRect> &all, QSize screen);

/// The bounding rectangle.
QRect Around(const QVector<QRect> &rects);

} // namespace ClockStudio
