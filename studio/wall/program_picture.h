// studio/wall: draws a whole program as one picture, for the gallery.
#pragma once

#include "text/parsed_program.h"

#include <QImage>

namespace ClockStudio {

/// A picture of the program at the time currently shown; null if it is not a valid program.
QImage PictureOfProgram(const QByteArray &bytes);

} // namespace ClockStudio
