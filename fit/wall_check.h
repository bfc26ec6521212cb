// What clocks of one wall do to each other, and to the screen's edges.
#pragma once

#include "fit.h"

#include <QRect>

#include <vector>

namespace ClockFit {

struct WallClock
{
    Lw::HNodeClock::HClockNode *node = nullptr; ///< not owned; of the area's size
    QRect area;                                 ///< pixels from the screen's top left
};

/// An area that is not wholly on the screen.
struct OffScreen
{
    int clock = 0; ///< counted from 0
    bool isWholly = false;
    int left = 0; ///< pixels of the area beyond each edge
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// Ink of one clock over ink of another, on one day at least. Parts of a clock are compared as
/// they are in the course of a day, so two times count as overlapping where any digits could.
struct ClockOverlap
{
    int lower = 0; ///< clocks, counted from 0
    int upper = 0;
    Part lowerPart = Part::TopText; ///< the parts with most ink in common
    Part upperPart = Part::TopText;
    int pixels = 0;
    qint64 firstDay = 0;    ///< the first instant of a day on which it is so, UTC milliseconds
    bool isPicture = false; ///< one of them is a picture clock, which has no parts
    bool isOfHands = false; ///< nothing but hands is concerned, which pass
};

struct WallFindings
{
    QVector<OffScreen> offScreen;
    std::vector<ClockOverlap> overlaps;
};

/// What can be seen of an area, from its top left.
QRect VisibleOf(const QRect &area, const QSize &screen);

WallFindings LookAtWall(ClockCheck &check, const QVector<WallClock> &clocks, const QSize &screen);

} // namespace ClockFit
