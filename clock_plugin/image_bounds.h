// How large an image may be. The raster engine paints nothing beyond 32767 pixels, and the device
// has little memory: whatever a program asks for, nothing larger is made.
#pragma once

#include <QSize>
#include <QtGlobal>

namespace Lw::HNodeClock {

constexpr int kImageSide = 32767;
constexpr qint64 kGlyphBytes = 64LL << 20; ///< a glyph image, written or read, or an element
constexpr qint64 kFrameBytes = 256LL << 20;
constexpr qint64 kClockGlyphBytes = 64LL << 20;    ///< what the glyph images of a clock take
constexpr qint64 kProcessGlyphBytes = 256LL << 20; ///< and those of all clocks

/// Whether an image of 32 bits a pixel has pixels at all and stays within the bounds.
inline bool WithinBounds(const QSize &size, qint64 bytes)
{
    return !size.isEmpty() && size.width() <= kImageSide && size.height() <= kImageSide
        && 4LL * size.width() * size.height() <= bytes;
}

} // namespace Lw::HNodeClock
