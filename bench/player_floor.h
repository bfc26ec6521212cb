// bench/: measures the least that a second of a program can cost: drawing its pictures and copying
// what changed in them, without a player, an event loop or a window.
#pragma once

#include "command_line.h"
#include "failure.h"

namespace bench {

/// Prints what that many seconds of the options' program cost.
ClockProgram::MaybeFailure MeasureFloor(const ClockPlayer::Options &options, int seconds,
                                        const ClockPlayer::Warn &warn);

} // namespace bench
