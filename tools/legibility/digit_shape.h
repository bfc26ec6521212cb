// What the eye tells digits apart by, in pictures of one bit per pixel. Pure.
#pragma once

#include <QImage>

namespace ClockTool {

struct DigitShape
{
    int strokes = 0; ///< connected areas of ink, corner to corner too
    int holes = 0;   ///< areas without ink that ink encloses

    bool operator==(const DigitShape &other) const
    {
        return strokes == other.strokes && holes == other.holes;
    }
    bool operator!=(const DigitShape &other) const { return !(*this == other); }
};

/// The shape of the ink of a picture with transparency; ink is what is not transparent. Areas of
/// less than a four-hundredth of the square of the ink's height are specks and not counted:
/// below 20 pixels there are none.
DigitShape ShapeOf(const QImage &picture);

/// The part of a picture that has ink; null without any.
QImage InkOf(const QImage &picture);

} // namespace ClockTool
