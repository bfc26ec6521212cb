// The time that the plugins show: the system's, until the player travels away from it.
//
// A plugin takes its time source as a plain function, so there is one player time a process.
#pragma once

#include "time_travel.h"

#include <optional>

namespace ClockPlayer::PlayerTime {

/// For plugins: milliseconds since 1970-01-01 UTC. Notes the reading.
long long Now();

/// A reading that a plugin took, and when.
struct Reading
{
    qint64 instant = 0; ///< UTC milliseconds that it was told
    double steady = 0;  ///< milliseconds of the clock that only ever runs
};

/// The last reading that nobody has taken yet: plugins read the time when they begin a picture.
std::optional<Reading> TakeReading();

/// The same as Now(), for the player itself: not noted.
qint64 Instant();

TimeTravel &Travel();
RealTime Real();
/// Milliseconds, with their fraction, of the clock of RealTime::steady.
double Steady();

/// From this instant on in real time, whatever happens to the system's clock.
void RunFrom(qint64 utcMilliseconds);

/// Stands still at this instant.
void HoldAt(qint64 utcMilliseconds);

} // namespace ClockPlayer::PlayerTime
