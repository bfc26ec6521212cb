// glyph/: reads, compares, writes, moves and removes the files of glyph images.
#pragma once

#include <QByteArray>
#include <QString>

namespace Lw::HNodeClock {

/// The content of a regular file of at most 64 KiB; null for any other.
QByteArray ReadSmallFile(const QString &path);

/// What a power failure just after writing may do to a file.
enum class Durability {
    Ordinary, ///< may damage it; for files that are rewritten anyway
    Synced,   ///< cannot damage it: flushed to disk on return; for files that are never rewritten
};

/// Whether a regular file holds these bytes, or bytes of this size and SHA-1 digest.
bool FileHolds(const QString &path, const QByteArray &bytes);
bool FileHolds(const QString &path, qint64 size, const QByteArray &digest);

/// Writes an image file atomically: the name never refers to a half-written image, and a failure
/// leaves an older file unchanged. Returns 0 or an errno value.
int WriteImageFile(const QString &path, const QByteArray &bytes, Durability durability);

/// Removes an image file, or a symbolic link in its place (not its target). Anything else of that
/// name is kept, and so are write-protected files. Fails silently.
void RemoveImageFile(const QString &path);

/// Moves the image at source to dest, whose file name is `digest`. The source is removed only once
/// dest has the same bytes; a dest whose content does not match its name is replaced. If source is
/// a symbolic link, the contents are copied and the link is removed; the file that it names is
/// kept. Does nothing without a digest: source is then missing or unreadable. Fails silently.
void MoveToDigestName(const QString &source, const QString &dest, const QString &digest);

} // namespace Lw::HNodeClock
