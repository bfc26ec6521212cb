// bench/: one clock or a wall of clocks, to measure the cost of checking a year.
#pragma once

#include "wall_check.h"

#include <memory>
#include <vector>

namespace bench {

constexpr int kPointsOf48Pixels = 36;
constexpr int kClocksOfAWall = 64;

class CheckedClocks
{
public:
    /// In a grid, with every text shown and daylight saving. The first has texts of `points`, the
    /// others smaller ones down to a third, so that few share a size.
    CheckedClocks(int clockType, int count, int points = kPointsOf48Pixels);

    /// Runs the checks of a year that lint runs, without a cache between calls. Returns the number
    /// of cuts and overlaps.
    int Check() const;

private:
    std::vector<std::unique_ptr<Lw::HNodeClock::HClockNode>> m_nodes;
    QVector<ClockFit::WallClock> m_wall;
    QSize m_screen;
};

} // namespace bench
