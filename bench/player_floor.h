// The least that a second of a program can take: its pictures are drawn and what changed in them is
// copied, without a player, an event loop or a window.
#pragma once

#include "command_line.h"
#include "failure.h"

namespace bench {

/// Prints what so many seconds of the options' program take so.
ClockProgram::MaybeFailure MeasureFloor(const ClockPlayer::Options &options, int seconds,
                                        const ClockPlayer::Warn &warn);

} // namespace bench
