// The files of glyph images: read whole where they are small, as nearly all are, and written.
#pragma once

#include <QByteArray>
#include <QString>

QT_BEGIN_NAMESPACE
class QPixmap;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// The content of an ordinary file of at most 64 KiB; null for any other.
QByteArray ReadSmallFile(const QString &path);

/// How a file that is written bears a power failure just after.
enum class Durability {
    Ordinary, ///< it may come out damaged; for names that are written again and so repaired
    Forced,   ///< it is on the disk on return; for names whose file is never written again
};

/// Writes a pixmap as PNG. The file changes as a whole or not at all: no half-written image ever
/// stands under the name, and what cannot be written leaves an older file as it was. A file that
/// holds the same bytes already is not touched. Nothing is reported.
void SavePng(const QPixmap &pixmap, const QString &path, Durability durability);

/// Removes the file of an image, or a link in its place, but not the file that the link names.
/// Anything else of that name stays, and so does what is write-protected. Nothing is reported.
void RemovePng(const QString &path);

} // namespace Lw::HNodeClock
