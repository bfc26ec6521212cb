// stage/: the time settings of a clock, and a line of text about its time and its next change.
#pragma once

#include "calendar/zone_time.h"

#include <QString>
#include <QtGlobal>

#include <optional>

namespace Lw {
class HNode;
}

namespace ClockStage {

/// The time settings that a node has now; without daylight saving both rules are empty. Nothing for
/// a node that is not a clock.
std::optional<Lw::HNodeClock::ZoneSettings> SettingsOf(Lw::HNode *node);

struct Status
{
    qint64 instant = 0; ///< UTC milliseconds
    bool paused = false;
    double speed = 1;
    std::optional<Lw::HNodeClock::ZoneSettings> clock; ///< nothing: the program has no clock
    int clockNumber = 1;                               ///< from 1
    int clockCount = 1;
};

/// Such as "2024-03-31T00:59:58Z paused | clock 2 of 4: 2024-03-31 01:59:58 +01:00 | daylight
/// saving begins 2024-03-31T01:00:00Z: 02:00:00 becomes 03:00:00".
QString StatusText(const Status &status);

} // namespace ClockStage
