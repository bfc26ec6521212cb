// What a PNG is made of: the part that its pixels are made from, and its size.
#pragma once

#include <QByteArray>
#include <QSize>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

inline constexpr char kPngSignature[] = "\x89PNG\r\n\x1a\n";

/// A PNG without its texts, profiles and whatever else does not bear on its pixels: unpacked, these
/// could be any number of times as long as the file. What no reader may leave out stays, known or
/// not: the decoder refuses what it does not know. Read from where the device stands, its signature
/// first, to the last chunk or the end.
QByteArray PixelChunks(QIODevice &png);

/// The size of the picture in a PNG of 8-bit colours with transparency, told without decoding it.
/// An invalid size for any other picture, and where a checksum is wrong, a chunk is missing or one
/// that no reader may leave out is unknown: whether such a file is a picture at all only shows when
/// it is decoded.
QSize SizeOfIntactPng(const QByteArray &png);

} // namespace Lw::HNodeClock
