// studio/wall: the wall as it is seen and handled.
// A whole program as one picture.
#pragma once

#include "text/program_reading.h"

#include <QImage>

namespace ClockStudio {

/// The wall of a program at the time that its clocks show now; null for what is no program.
QImage PictureOfProgram(const QByteArray &bytes);

} // namespace ClockStudio
