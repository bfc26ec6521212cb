// The line that tells which instant is shown, and what the clock in question makes of it. Pure.
#pragma once

#include "next_change.h"
#include "time_travel.h"

#include <QString>

#include <optional>

namespace ClockPlayer {

struct Status
{
    qint64 instant = 0; ///< UTC milliseconds
    bool paused = false;
    double speed = 1;
    std::optional<ClockSettings> clock; ///< nothing: the program has no clock
    int clockNumber = 1;                ///< from 1
    int clockCount = 1;
};

/// Such as "2024-03-31T00:59:58Z paused | clock 2 of 4: 2024-03-31 01:59:58 +01:00 | daylight
/// saving begins 2024-03-31T01:00:00Z: 02:00:00 becomes 03:00:00".
QString StatusText(const Status &status);

} // namespace ClockPlayer
