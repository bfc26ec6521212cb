// calendar/: units of time, and division that rounds down, so that it is right before the epoch
// too.
#pragma once

#include <QtGlobal>

namespace Lw::HNodeClock {

constexpr int kSecondsPerMinute = 60;
constexpr int kSecondsPerHour = 60 * kSecondsPerMinute;
constexpr int kSecondsPerDay = 24 * kSecondsPerHour;

constexpr qint64 kMillisecondsPerSecond = 1000;
constexpr qint64 kMillisecondsPerMinute = kSecondsPerMinute * kMillisecondsPerSecond;
constexpr qint64 kMillisecondsPerDay = kSecondsPerDay * kMillisecondsPerSecond;

/// The quotient rounded down, for a positive divisor.
constexpr qint64 FloorDivide(qint64 value, qint64 divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// The remainder of that division: 0 to divisor - 1.
constexpr qint64 FloorModulo(qint64 value, qint64 divisor)
{
    const qint64 rest = value % divisor;
    return rest < 0 ? rest + divisor : rest;
}

} // namespace Lw::HNodeClock
