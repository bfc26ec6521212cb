// The files of glyph images: read whole where they are small, as nearly all are, compared, written
// and removed.
#pragma once

#include <QByteArray>
#include <QString>

namespace Lw::HNodeClock {

/// The content of an ordinary file of at most 64 KiB; null for any other.
QByteArray ReadSmallFile(const QString &path);

/// How a file that is written bears a power failure just after.
enum class Durability {
    Ordinary, ///< it may come out damaged; for names that are written again and so repaired
    Forced,   ///< it is on the disk on return; for names whose file is never written again
};

/// Whether an ordinary file holds these bytes, or bytes of this size and SHA-1 digest.
bool FileHolds(const QString &path, const QByteArray &bytes);
bool FileHolds(const QString &path, qint64 size, const QByteArray &digest);

/// Writes an image's file. It changes as a whole or not at all: no half-written image ever stands
/// under the name, and what cannot be written leaves an older file as it was. Gives 0, or the
/// system's number of the error.
int WriteImageFile(const QString &path, const QByteArray &bytes, Durability durability);

/// Removes the file of an image, or a link in its place, but not the file that the link names.
/// Anything else of that name stays, and so does what is write-protected. Nothing is reported.
void RemoveImageFile(const QString &path);

} // namespace Lw::HNodeClock
