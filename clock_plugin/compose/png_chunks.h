// compose/: looks into PNG files without decoding them: the chunks that their pixels are made from,
// their size and kind.
#pragma once

#include <QByteArray>
#include <QSize>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

inline constexpr char kPngSignature[] = "\x89PNG\r\n\x1a\n";
/// How much of a file SizeOfPng() looks at.
inline constexpr int kPngHeaderEnd = 29;

/// A PNG without its texts, profiles and all else that does not affect its pixels: unpacked, these
/// could be any number of times as long as the file. Critical chunks stay, known or not: the
/// decoder refuses what it does not know. Read from where the device is, its signature first, to
/// the last chunk or the end.
QByteArray PixelChunks(QIODevice &png);

/// The size in the header of a PNG, true or not; empty where the file does not begin with one.
QSize SizeOfPng(const QByteArray &png);

/// Whether a PNG has 8-bit colours with alpha, as glyph images have, by its header.
bool HasGlyphKind(const QByteArray &png);

} // namespace Lw::HNodeClock
