// studio/panels: finds the next change of what clocks show: daylight saving, midnight, a new month,
// year or lunar month.
#pragma once

#include "calendar/zone_time.h"

#include <QVector>

#include <optional>

namespace ClockStudio {

enum class ChangeKind { DaylightSaving, Midnight, Month, Year, LunarMonth };

/// The first instant after `instant` (both UTC milliseconds) at which a clock's reading changes in
/// this way; the earliest over all clocks. Nothing if none changes.
std::optional<qint64>
NextChangeOf(ChangeKind kind, const QVector<Lw::HNodeClock::ZoneSettings> &clocks, qint64 instant);

} // namespace ClockStudio
