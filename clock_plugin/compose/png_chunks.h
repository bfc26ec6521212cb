// compose/: inspects PNG files without decoding them: finds the chunks that affect the pixels, the
// picture's size and its pixel format.
#pragma once

#include <QByteArray>
#include <QSize>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

inline constexpr char kPngSignature[] = "\x89PNG\r\n\x1a\n";
/// The number of bytes of a file that SizeOfPng() needs.
inline constexpr int kPngHeaderEnd = 29;

/// A PNG without text, profile and other chunks that do not affect its pixels: decompressed, these
/// could be arbitrarily larger than the file. Critical chunks are kept, known or not: the decoder
/// rejects unknown ones. Reads from the device's current position, which must be at the signature,
/// to the last chunk or the end.
QByteArray PixelChunks(QIODevice &png);

/// The size stated in a PNG's header; empty if the data does not start with a PNG header.
QSize SizeOfPng(const QByteArray &png);

/// Whether the header of a PNG says 8-bit RGBA, not interlaced, like the glyph images we write.
bool HasGlyphFormat(const QByteArray &png);

} // namespace Lw::HNodeClock
