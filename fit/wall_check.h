// fit/: finds clocks of a wall that overlap each other or extend beyond the screen.
#pragma once

#include "fit.h"

#include <QRect>

#include <vector>

namespace ClockFit {

struct WallClock
{
    Lw::HNodeClock::HClockNode *node = nullptr; ///< not owned; its size must be the area's
    QRect area;                                 ///< pixels from the screen's top left
};

/// An area that is not entirely on the screen.
struct OffScreen
{
    int clock = 0; ///< counted from 0
    bool isWholly = false;
    int left = 0; ///< pixels of the area beyond each edge
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// Ink of one clock over ink of another, on at least one day. Parts of a clock are compared by all
/// they show during a day, so two times overlap if any of their digits could.
struct ClockOverlap
{
    int lower = 0; ///< clocks, counted from 0
    int upper = 0;
    Part lowerPart = Part::TopText; ///< the pair with most ink in common on its first day
    Part upperPart = Part::TopText;
    int pixels = 0;
    qint64 firstDay = 0;    ///< beginning of the first day of the overlap, UTC milliseconds
    bool isPicture = false; ///< one of them is a picture clock, which has no parts
    bool isOfHands = false; ///< only moving hands overlap
};

struct WallFindings
{
    QVector<OffScreen> offScreen;
    std::vector<ClockOverlap> overlaps;
};

/// The visible part of an area, relative to its top left.
QRect VisibleOf(const QRect &area, const QSize &screen);

WallFindings CheckWall(ClockCheck &check, const QVector<WallClock> &clocks, const QSize &screen);

} // namespace ClockFit
