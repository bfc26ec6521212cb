// The time that a clock shows at an instant, and when its daylight saving changes next. Pure.
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace ClockPlayer {

/// What decides the time that a clock shows.
struct ClockSettings
{
    int offsetSeconds = 0; ///< to add to UTC, daylight saving apart
    bool savesDaylight = false;
    QString start; ///< rules of daylight saving
    QString end;
};

/// Seconds that the clock adds to UTC at an instant (UTC milliseconds).
int OffsetAt(const ClockSettings &settings, qint64 instant);

struct Change
{
    qint64 instant; ///< UTC milliseconds: the first that shows the new time
    int before;     ///< seconds that the clock adds to UTC up to there,
    int after;      ///< and from there on
};

/// The first change after an instant; nothing when none comes within 50 years. (A rule may name a
/// day that only some years have: a fifth Sunday in February comes after 40 years at the latest.)
std::optional<Change> NextChange(const ClockSettings &settings, qint64 instant);

} // namespace ClockPlayer
