// The files of glyph images: read whole where they are small, as nearly all are, compared, written
// and removed.
#pragma once

#include <QByteArray>
#include <QString>

namespace Lw::HNodeClock {

/// The content of an ordinary file of at most 64 KiB; null for any other.
QByteArray ReadSmallFile(const QString &path);

/// What a power failure just after writing may do to a file.
enum class Durability {
    Ordinary, ///< may damage it; for names that are written again and so repaired
    Forced,   ///< nothing: it is on the disk on return; for names that are never written again
};

/// Whether an ordinary file holds these bytes, or bytes of this size and SHA-1 digest.
bool FileHolds(const QString &path, const QByteArray &bytes);
bool FileHolds(const QString &path, qint64 size, const QByteArray &digest);

/// Writes an image's file. It is replaced as a whole or not at all: the name never has a
/// half-written image, and what cannot be written leaves an older file as it was. Gives 0, or the
/// system's number of the error.
int WriteImageFile(const QString &path, const QByteArray &bytes, Durability durability);

/// Removes the file of an image, or a link in its place, but not the file that the link names.
/// Anything else of that name stays, and so does what is write-protected. Nothing is reported.
void RemoveImageFile(const QString &path);

} // namespace Lw::HNodeClock
