// The time that the plugins show when the player does not leave it to the system's clock.
//
// A plugin takes its time source as a plain function, so there is one player time a process.
#pragma once

#include <QtGlobal>

namespace ClockPlayer::PlayerTime {

/// Milliseconds since 1970-01-01 UTC; the system's until one of the others was called.
long long Now();

/// From this instant on in real time, whatever happens to the system's clock.
void RunFrom(qint64 utcMilliseconds);

/// Stands still at this instant.
void HoldAt(qint64 utcMilliseconds);

/// Moves a held time to the beginning of its next second.
void StepToNextSecond();

} // namespace ClockPlayer::PlayerTime
