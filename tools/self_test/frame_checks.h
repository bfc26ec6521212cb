// self_test/: the clock whose frames are checked, which has generated patterns for glyph images
// instead of text, and the expected digests of its frames.
#pragma once

#include "clock_node.h"

#include <QImage>
#include <QString>

namespace ClockTool {

/// Sets up a new clock of a type (0 analog, 1 digital, 2 picture) that shows every row, at UTC+8.
/// A digital or analog one gets its glyph images, as files in the directory. Every pixel of them
/// is opaque or clear. False when a file cannot be written.
bool SetUpPatternClock(Lw::HNodeClock::HClockNode &clock, int type, const QString &directory);

/// The instant at which the frames are drawn, in milliseconds since 1970-01-01 UTC.
long long TestInstant();

/// SHA-256 of a picture's size and of the red, green and blue of its pixels, row by row.
QByteArray PictureDigest(const QImage &picture);

// Computed from the frames that the tests' plain renderers draw, which repaint each frame
// completely and share no code with the clocks; tests/tools/test_self_test.cpp recomputes them.
inline constexpr char kDigitalFrameDigest[] =
    "c889ad5806145f0d9d36ca0eae114b342aeb0bd4cbc52fcf4199e413c8bbe20c";
inline constexpr char kAnalogFrameDigest[] =
    "06d6cf76e8b021e6bef7b34bbc3796a2655a2ff3dc4fb3680277139ccc2953f3";

} // namespace ClockTool
