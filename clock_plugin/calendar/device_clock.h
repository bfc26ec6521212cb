// calendar/: the device's clock, the one place where the clocks read the system's time.
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

/// Stops the time of this thread while it exists, so that all parts of a frame show one instant. An
/// inner one keeps the outer one's instant.
class HeldReading
{
public:
    HeldReading();
    /// The reading is this instant, also within an outer one, whose reading comes back afterwards.
    /// For asking what a clock will show.
    explicit HeldReading(qint64 utcMilliseconds);
    ~HeldReading();
    Q_DISABLE_COPY(HeldReading)

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
