// legibility/: strokes and holes of a digit in a one-bit picture, by which the eye tells digits
// apart. Pure.
#pragma once

#include <QImage>

namespace ClockTool {

struct DigitShape
{
    int strokes = 0; ///< 8-connected areas of ink
    int holes = 0;   ///< 4-connected areas without ink enclosed by ink

    bool operator==(const DigitShape &other) const
    {
        return strokes == other.strokes && holes == other.holes;
    }
    bool operator!=(const DigitShape &other) const { return !(*this == other); }
};

/// The shape of the ink of a picture with transparency; ink is what is not transparent. Areas of
/// at most height² / 400 pixels (height of the ink) are specks and not counted:
/// below 20 pixels there are none.
DigitShape ShapeOf(const QImage &picture);

/// The part of a picture that has ink; null without any.
QImage InkOf(const QImage &picture);

} // namespace ClockTool
