// The digital clock: up to five elements on one line or in rows.
#include "display/draw_display_image_p.h"

namespace Lw::HNodeClock {

} // namespace Lw::HNodeClock
