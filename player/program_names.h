// The player speaks of programs, nodes and failures by their short names.
#pragma once

namespace ClockProgram { }

namespace ClockPlayer {
using namespace ClockProgram;
}
