// clock_plugin/: limits of image sizes. The raster engine paints nothing beyond 32767 pixels, and
// the device has little memory: larger images are never created.
#pragma once

#include <QSize>
#include <QtGlobal>

namespace Lw::HNodeClock {

constexpr int kImageSide = 32767;          ///< pixels
constexpr qint64 kGlyphBytes = 64LL << 20; ///< a glyph image, written or read, or an element
constexpr qint64 kFrameBytes = 256LL << 20;
constexpr qint64 kClockGlyphBytes = 64LL << 20;    ///< all glyph images of one clock
constexpr qint64 kProcessGlyphBytes = 256LL << 20; ///< all glyph images of the process

/// Whether an image of this size is not empty, within kImageSide, and at 32 bits per pixel within
/// `bytes`.
inline bool WithinBounds(const QSize &size, qint64 bytes)
{
    return !size.isEmpty() && size.width() <= kImageSide && size.height() <= kImageSide
        && 4LL * size.width() * size.height() <= bytes;
}

} // namespace Lw::HNodeClock
