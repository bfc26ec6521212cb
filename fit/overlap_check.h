// Which ink of a clock is drawn over other ink of the same clock.
#pragma once

#include "clock_year.h"

namespace ClockFit {

/// The texts shown are left to be filled in.
QVector<Overlap> OverlapsOf(ClockYear &clock);

} // namespace ClockFit
