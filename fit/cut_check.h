// Which ink of a clock is outside what can be seen of its area.
#pragma once

#include "clock_year.h"

namespace ClockFit {

/// The texts shown are left to be filled in.
QVector<Cut> CutsOf(ClockYear &clock, const QRect &visible);

} // namespace ClockFit
