// studio/wall: the wall as it is seen and handled.
// From pixels of the wall to pixels of the view and back.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace ClockStudio {

constexpr int kSmallestZoom = 1;
constexpr int kLargestZoom = 32;

struct WallScale
{
    int zoom = 2;  ///< pixels of the view for one of the wall, each way
    QPoint origin; ///< of the wall, in the view

    QRect ToView(const QRect &rect) const
    {
        return {origin + rect.topLeft() * zoom, rect.size() * zoom};
    }
    /// The wall's pixel under a point of the view; outside the wall too.
    QPoint ToWall(QPoint point) const
    {
        return {Floor(point.x() - origin.x()), Floor(point.y() - origin.y())};
    }
    /// The least rectangle of the wall that covers one of the view.
    QRect ToWall(const QRect &rect) const
    {
        return {ToWall(rect.topLeft()), ToWall(rect.bottomRight())};
    }
    /// The line between pixels that is nearest to a point.
    QPoint NearestCorner(QPoint point) const { return ToWall(point + QPoint(zoom / 2, zoom / 2)); }

private:
    int Floor(int distance) const
    {
        return distance >= 0 ? distance / zoom : -((-distance + zoom - 1) / zoom);
    }
};

} // namespace ClockStudio
