// stage/: the settings of a clock that decide until when it is right.
#pragma once

#include "clock_validity.h"

#include <optional>

namespace Lw {
class HNode;
}

namespace ClockStage {

/// The settings that a node has now; nothing for a node that is not a clock. An adjustment is left
/// out: it corrects a device or a display, not the zone.
std::optional<ClockZones::ValidityTerms> TermsOf(Lw::HNode *node);

} // namespace ClockStage
