// studio/wall: the wall as it is seen and handled.
// Where rectangles go when they are moved, resized, aligned, distributed or stacked. Pure.
#pragma once

#include <QPoint>
#include <QRect>
#include <QVector>

namespace ClockStudio {

/// A side or a corner that is taken hold of, as flags.
enum HandleSide { NoHandle = 0, LeftSide = 1, TopSide = 2, RightSide = 4, BottomSide = 8 };
using Handle = int;

/// The eight of a rectangle, corners last so that they are painted above.
const QVector<Handle> &Handles();

/// The middle of a handle on a rectangle's outline.
QPointF HandlePlace(const QRectF &rect, Handle handle);

constexpr int kSmallestSide = 4; ///< pixels of an area that is drawn or resized by hand

/// A rectangle whose sides are moved by a distance, none beyond the opposite one.
QRect Resized(const QRect &rect, Handle handle, QPoint distance);

/// Lines that moving sides are drawn to, in pixels of the screen.
struct SnapLines
{
    QVector<int> x;
    QVector<int> y;
};

/// The edges and middles of the screen, other areas' edges and middles, and the module grid where
/// its size is not empty.
SnapLines SnapLinesOf(QSize screen, const QVector<QRect> &others, QSize module);

/// A distance that brings sides onto lines, and the lines that were met.
struct Snap
{
    QPoint distance;
    SnapLines met;
};

/// For a rectangle that is moved by a distance: edges and middle, each way, are drawn to the
/// nearest line within the reach, in pixels.
Snap SnapMove(const QRect &rect, QPoint distance, const SnapLines &lines, int reach);
/// For one that is resized: its moving sides.
Snap SnapResize(const QRect &rect, Handle handle, QPoint distance, const SnapLines &lines,
                int reach);

enum class Alignment { Left, Centre, Right, Top, Middle, Bottom };
enum class Direction { Across, Down };

/// Rectangles along a line of what is around them all; a single one along the screen's.
QVector<QRect> Aligned(const QVector<QRect> &rects, Alignment alignment, QSize screen);
/// Rectangles with equal gaps between the first and the last.
QVector<QRect> Distributed(const QVector<QRect> &rects, Direction direction);
/// Rectangles one after another without gaps, in the order in which they are placed.
QVector<QRect> Stacked(const QVector<QRect> &rects, Direction direction);

/// The least rectangle around all.
QRect Around(const QVector<QRect> &rects);

} // namespace ClockStudio
