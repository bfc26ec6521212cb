// stage/: the time of one clock at an instant, its next change, and a line of text about both.
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace Lw {
class HNode;
}

namespace ClockStage {

/// The settings that determine a clock's time.
struct ClockSettings
{
    int offsetSeconds = 0; ///< added to UTC, without daylight saving
    bool savesDaylight = false;
    QString start; ///< rules of daylight saving
    QString end;
};

/// The settings that a node has now; nothing for a node that is not a clock.
std::optional<ClockSettings> SettingsOf(Lw::HNode *node);

/// Seconds that the clock adds to UTC at an instant (UTC milliseconds).
int OffsetAt(const ClockSettings &settings, qint64 instant);

struct Change
{
    qint64 instant; ///< UTC milliseconds: the first at which the new time is shown
    int before;     ///< seconds added to UTC before it,
    int after;      ///< and from it on
};

/// The first change after an instant; nothing when there is none within 50 years. (A rule may name
/// a day that only some years have: a fifth Sunday in February comes after 40 years at the latest.)
std::optional<Change> NextChange(const ClockSettings &settings, qint64 instant);

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

} // namespace ClockStage
