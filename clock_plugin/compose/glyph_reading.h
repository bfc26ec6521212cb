// Reads picture files made by others: bounded, and never anything but an ordinary file.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPixmap>
#include <QString>

namespace Lw::HNodeClock {

/// The picture in a file, its format told by its content. Null for a path that is empty or names
/// no ordinary file (a device or a pipe could block for ever), for a file that cannot be decoded,
/// and for a picture of more than 32767 pixels a side or 64 MiB, which is asked before decoding.
/// Only formats are read that answer this truly: PNG, BMP, GIF, JPEG, the PBM family, XBM and XPM.
QImage ReadImageFile(const QString &path);
QPixmap ReadPixmapFile(const QString &path);

/// The content of a small ordinary file that begins as a PNG does; null for any other.
QByteArray ReadSmallPng(const QString &path);
/// The picture in such a content; null as for the file.
QImage DecodePng(const QByteArray &png);

} // namespace Lw::HNodeClock
