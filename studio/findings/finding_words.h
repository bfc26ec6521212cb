// studio/findings: the instants of a finding as its clock shows them.
#pragma once

#include "calendar/zone_time.h"

#include <QString>

namespace ClockStudio {

/// A text with its UTC instants ("2026-03-29T01:00:00Z") as times of a clock, such as
/// "2026-03-29 03:00:00 (UTC+02:00)".
QString WithLocalTimes(QString text, const Lw::HNodeClock::ZoneSettings &zone);

} // namespace ClockStudio
