#include "placing.h"

#include <algorithm>
#include <numeric>

namespace ClockStudio {

namespace {

/// The three positions of a span that snap to lines: beginning, middle, end.
QVector<int> PlacesOf(int begin, int size)
{
    return {begin, begin + size / 2, begin + size};
}

/// The smallest offset from a position to a line; 0 if none is within reach.
int ShortestWay(const QVector<int> &places, const QVector<int> &lines, int reach)
{
    int best = 0;
    int distance = reach + 1;
    for (const int place : places) {
        for (const int line : lines) {
            if (qAbs(line - place) < distance) {
                distance = qAbs(line - place);
                best = line - place;
            }
        }
    }
    return best;
}

QVector<int> Met(const QVector<int> &places, const QVector<int> &lines)
{
    QVector<int> met;
    for (const int place : places) {
        if (lines.contains(place) && !met.contains(place))
            met.append(place);
    }
    return met;
}

QVector<int> MovingPlaces(int begin, int size, bool first, bool last)
{
    QVector<int> places;
    if (first)
        places.append(begin);
    if (last)
        places.append(begin + size);
    return places;
}

int Place(const QRect &rect, Direction direction)
{
    return direction == Direction::Across ? rect.x() : rect.y();
}

int Extent(const QRect &rect, Direction direction)
{
    return direction == Direction::Across ? rect.width() : rect.height();
}

void MoveTo(QRect &rect, Direction direction, int place)
{
    direction == Direction::Across ? rect.moveLeft(place) : rect.moveTop(place);
}

QVector<int> ByPlace(const QVector<QRect> &rects, Direction direction)
{
    QVector<int> order(rects.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int one, int other) {
        return Place(rects[one], direction) < Place(rects[other], direction);
    });
    return order;
}

void AlignWithin(QRect &rect, const QRect &frame, Alignment alignment)
{
    switch (alignment) {
    case Alignment::Left:
        return rect.moveLeft(frame.left());
    case Alignment::Centre:
        return rect.moveLeft(frame.left() + (frame.width() - rect.width()) / 2);
    case Alignment::Right:
        return rect.moveRight(frame.right());
    case Alignment::Top:
        return rect.moveTop(frame.top());
    case Alignment::Middle:
        return rect.moveTop(frame.top() + (frame.height() - rect.height()) / 2);
    case Alignment::Bottom:
        return rect.moveBottom(frame.bottom());
    }
}

} // namespace

const QVector<Handle> &Handles()
{
    static const QVector<Handle> handles {LeftSide,
                                          TopSide,
                                          RightSide,
                                          BottomSide,
                                          LeftSide | TopSide,
                                          RightSide | TopSide,
                                          LeftSide | BottomSide,
                                          RightSide | BottomSide};
    return handles;
}

QPointF HandlePlace(const QRectF &rect, Handle handle)
{
    const auto between = [handle](Handle first, Handle last, double begin, double size) {
        return begin + (handle & first ? 0 : handle & last ? size : size / 2);
    };
    return {between(LeftSide, RightSide, rect.x(), rect.width()),
            between(TopSide, BottomSide, rect.y(), rect.height())};
}

QRect Resized(const QRect &rect, Handle handle, QPoint distance)
{
    QRect resized = rect;
    if (handle & LeftSide)
        resized.setLeft(
            std::min(rect.left() + distance.x(), rect.left() + rect.width() - kSmallestSide));
    if (handle & RightSide)
        resized.setWidth(std::max(rect.width() + distance.x(), kSmallestSide));
    if (handle & TopSide)
        resized.setTop(
            std::min(rect.top() + distance.y(), rect.top() + rect.height() - kSmallestSide));
    if (handle & BottomSide)
        resized.setHeight(std::max(rect.height() + distance.y(), kSmallestSide));
    return resized;
}

SnapLines SnapLinesOf(QSize screen, const QVector<QRect> &others, QSize module)
{
    SnapLines lines {PlacesOf(0, screen.width()), PlacesOf(0, screen.height())};
    for (const QRect &other : others) {
        lines.x += PlacesOf(other.x(), other.width());
        lines.y += PlacesOf(other.y(), other.height());
    }
    if (module.isEmpty())
        return lines;
    for (int x = module.width(); x < screen.width(); x += module.width())
        lines.x.append(x);
    for (int y = module.height(); y < screen.height(); y += module.height())
        lines.y.append(y);
    return lines;
}

Snap SnapMove(const QRect &rect, QPoint distance, const SnapLines &lines, int reach)
{
    const QRect moved = rect.translated(distance);
    const QPoint way(ShortestWay(PlacesOf(moved.x(), moved.width()), lines.x, reach),
                     ShortestWay(PlacesOf(moved.y(), moved.height()), lines.y, reach));
    const QRect snapped = moved.translated(way);
    return {distance + way,
            {Met(PlacesOf(snapped.x(), snapped.width()), lines.x),
             Met(PlacesOf(snapped.y(), snapped.height()), lines.y)}};
}

Snap SnapResize(const QRect &rect, Handle handle, QPoint distance, const SnapLines &lines,
                int reach)
{
    const auto across = [handle](const QRect &r) {
        return MovingPlaces(r.x(), r.width(), handle & LeftSide, handle & RightSide);
    };
    const auto down = [handle](const QRect &r) {
        return MovingPlaces(r.y(), r.height(), handle & TopSide, handle & BottomSide);
    };
    const QRect free = Resized(rect, handle, distance);
    const QPoint way(ShortestWay(across(free), lines.x, reach),
                     ShortestWay(down(free), lines.y, reach));
    const QRect snapped = Resized(rect, handle, distance + way);
    return {distance + way, {Met(across(snapped), lines.x), Met(down(snapped), lines.y)}};
}

QPoint CopyDistance(const QVector<QRect> &rects, const QVector<QRect> &all, QSize screen)
{
    constexpr QPoint kOverlapping(8, 8);
    const QRect bounds(QPoint(), screen);
    const QRect from = Around(rects);
    for (const QPoint step : {QPoint(from.width(), 0), QPoint(0, from.height())}) {
        if (step.isNull())
            continue;
        for (QPoint way = step; bounds.contains(from.translated(way)); way += step) {
            const QRect to = from.translated(way);
            if (std::none_of(all.cbegin(), all.cend(),
                             [&to](const QRect &rect) { return rect.intersects(to); }))
                return way;
        }
    }
    return kOverlapping;
}

QRect Around(const QVector<QRect> &rects)
{
    return std::accumulate(rects.cbegin(), rects.cend(), QRect(),
                           [](const QRect &all, const QRect &one) { return all | one; });
}

QVector<QRect> Aligned(const QVector<QRect> &rects, Alignment alignment, QSize screen)
{
    const QRect frame = rects.size() == 1 ? QRect(QPoint(), screen) : Around(rects);
    QVector<QRect> aligned = rects;
    for (QRect &rect : aligned)
        AlignWithin(rect, frame, alignment);
    return aligned;
}

QVector<QRect> Distributed(const QVector<QRect> &rects, Direction direction)
{
    if (rects.size() < 3)
        return rects;
    const QVector<int> order = ByPlace(rects, direction);
    const QRect frame = Around(rects);
    int room = Extent(frame, direction);
    for (const QRect &rect : rects)
        room -= Extent(rect, direction);
    QVector<QRect> placed = rects;
    int used = 0;
    for (int i = 0; i < order.size(); ++i) {
        MoveTo(placed[order[i]], direction,
               Place(frame, direction) + used + room * i / (order.size() - 1));
        used += Extent(rects[order[i]], direction);
    }
    return placed;
}

QVector<QRect> Stacked(const QVector<QRect> &rects, Direction direction)
{
    if (rects.isEmpty())
        return rects;
    const QVector<int> order = ByPlace(rects, direction);
    QVector<QRect> placed = rects;
    int next = Place(rects[order.first()], direction);
    for (const int index : order) {
        MoveTo(placed[index], direction, next);
        next += Extent(rects[index], direction);
    }
    return placed;
}

} // namespace ClockStudio
