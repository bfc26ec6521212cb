// The settings of a clock's time, as its node holds them now.
#pragma once

#include "next_change.h"

namespace Lw {
class HNode;
}

namespace ClockPlayer {

/// Nothing for a node that is no clock.
std::optional<ClockSettings> SettingsOf(Lw::HNode *node);

} // namespace ClockPlayer
