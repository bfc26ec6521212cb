// The part of a PNG that its pixels are made from.
#pragma once

#include <QByteArray>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

inline constexpr char kPngSignature[] = "\x89PNG\r\n\x1a\n";

/// A PNG without its texts, profiles and whatever else does not bear on its pixels: unpacked, these
/// could be any number of times as long as the file. Read from where the device stands, its
/// signature first, to the last chunk or the end.
QByteArray PixelChunks(QIODevice &png);

} // namespace Lw::HNodeClock
