// studio/panels: what is around the wall: source, findings, time, properties.
// When something that clocks show changes next. Pure.
#pragma once

#include "calendar/zone_time.h"

#include <QVector>

#include <optional>

namespace ClockStudio {

enum class ChangeKind { DaylightSaving, Midnight, Month, Year, LunarMonth };

/// The first instant (UTC milliseconds) after one at which a clock's reading changes in this way;
/// for several clocks the first of all. Nothing where none changes.
std::optional<qint64>
NextChangeOf(ChangeKind kind, const QVector<Lw::HNodeClock::ZoneSettings> &clocks, qint64 instant);

} // namespace ClockStudio
