// calendar/: the device clock, the only place where clocks read the system time.
#pragma once

#include "clock_export.h"

#include <QDate>
#include <QDateTime>

extern "C" {
/// Replaces the source of the time: a function that returns milliseconds since 1970-01-01 UTC.
/// Null restores the system's clock.
CLOCK_EXPORT void clock_set_time_source(long long (*utcMilliseconds)(void));
}

namespace Lw::HNodeClock {

/// Freezes the time of this thread during its lifetime, so that all parts of a frame show one
/// instant. A nested one keeps the outer one's instant.
class HeldInstant
{
public:
    HeldInstant();
    /// Freezes the time at this instant, even when nested; the outer instant is restored
    /// afterwards. Used to find out what a clock shows at another time.
    explicit HeldInstant(qint64 utcMilliseconds);
    ~HeldInstant();
    Q_DISABLE_COPY(HeldInstant)

private:
    qint64 m_outer;
};

/// Milliseconds since 1970-01-01 UTC: the held instant, or now. Within 9e18 of the epoch, so that
/// offsets can be added without overflow.
qint64 UtcMilliseconds();

/// The millisecond within the second, 0 to 999, of the device's local time.
int LocalMillisecond();

/// The date in the device's own zone.
QDate LocalDate();

} // namespace Lw::HNodeClock
