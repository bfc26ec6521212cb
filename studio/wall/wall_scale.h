// studio/wall: converts between pixels of the wall and pixels of the view.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace ClockStudio {

constexpr int kSmallestZoom = 1;
constexpr int kLargestZoom = 32;

struct WallScale
{
    int zoom = 2;  ///< view pixels per wall pixel
    QPoint origin; ///< of the wall, in the view

    QRect ToView(const QRect &rect) const
    {
        return {origin + rect.topLeft() * zoom, rect.size() * zoom};
    }
    /// The wall pixel under a point of the view; also valid outside the wall.
    QPoint ToWall(QPoint point) const
    {
        return {Floor(point.x() - origin.x()), Floor(point.y() - origin.y())};
    }
    /// The smallest wall rectangle that covers a view rectangle.
    QRect ToWall(const QRect &rect) const
    {
        return {ToWall(rect.topLeft()), ToWall(rect.bottomRight())};
    }
    /// The corner of a wall pixel nearest to a point of the view.
    QPoint NearestCorner(QPoint point) const { return ToWall(point + QPoint(zoom / 2, zoom / 2)); }

private:
    int Floor(int distance) const
    {
        return distance >= 0 ? distance / zoom : -((-distance + zoom - 1) / zoom);
    }
};

} // namespace ClockStudio
