// Clocks for measuring what a check of a year costs: one, or a wall of them.
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
    /// Side by side, with every text shown and daylight saving. The first has this size, the
    /// others smaller ones down to a third: few have a size in common.
    CheckedClocks(int clockType, int count, int points = kPointsOf48Pixels);

    /// All that lint asks of the program; nothing is remembered from one check to the next. The
    /// number of findings.
    int Check() const;

private:
    std::vector<std::unique_ptr<Lw::HNodeClock::HClockNode>> m_nodes;
    QVector<ClockFit::WallClock> m_wall;
    QSize m_screen;
};

} // namespace bench
