// host/: the key colour, with which plugins fill the background of clocks.
#pragma once

#include "lw_types.h"

namespace Lw {

/// Almost black. Hosts show it as transparent.
constexpr LWColor kKeyColour = PackedColor(1, 2, 1);

} // namespace Lw
