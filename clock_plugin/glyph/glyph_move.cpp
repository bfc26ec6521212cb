// glyph/: moves a glyph image to a directory under its digest's name.
#include "glyph/glyph_file.h"
#include "glyph/hmd5.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>

#include <sys/stat.h>

namespace Lw::HNodeClock {

namespace {

bool ReadStatus(const QString &path, struct stat *status)
{
    return stat(QFile::encodeName(path).constData(), status) == 0;
}

bool AreOneFile(const struct stat &file, const struct stat &other)
{
    return file.st_dev == other.st_dev && file.st_ino == other.st_ino;
}

/// Whether both paths name the same directory entry, according to the file system, as an entry has
/// many spellings: links, "..", bind mounts. Hard links are distinct entries.
bool AreOneEntry(const QString &path, const QString &other)
{
    struct stat status;
    struct stat otherStatus;
    if (!ReadStatus(path, &status) || !ReadStatus(other, &otherStatus)
        || !AreOneFile(status, otherStatus))
        return false;
    if (status.st_nlink == 1)
        return true;
    const QFileInfo entry(QFileInfo(path).canonicalFilePath());
    const QFileInfo otherEntry(QFileInfo(other).canonicalFilePath());
    return entry.fileName() == otherEntry.fileName() && ReadStatus(entry.path(), &status)
        && ReadStatus(otherEntry.path(), &otherStatus) && AreOneFile(status, otherStatus);
}

/// False for a path with a NUL, which the system would cut off.
bool HasNoNul(const QString &path)
{
    return !path.contains(QChar::Null);
}

/// The copy appears under its name only when it is complete on disk. The flush is explicit because
/// commit() does not detect a failure to write the last buffered bytes.
bool CopyWhole(const QString &source, const QString &dest)
{
    QFile in(source);
    QSaveFile out(dest);
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly))
        return false;
    constexpr qint64 kBlock = 64 * 1024;
    while (!in.atEnd()) {
        const QByteArray block = in.read(kBlock);
        if (block.isEmpty() || out.write(block) != block.size())
            return false;
    }
    return in.error() == QFile::NoError && out.flush() && out.commit();
}

/// Tries to rename. False if a copy is needed instead: dest is on another file system, or source is
/// a link (a relative one would break in another directory). True if it succeeded or failed for
/// good.
bool IsSettledByRename(const QString &source, const QString &dest)
{
    if (QFileInfo(source).isSymLink())
        return false;
    return std::rename(QFile::encodeName(source).constData(), QFile::encodeName(dest).constData())
        == 0
        || errno != EXDEV;
}

/// Renames, replacing dest, or copies and removes the original only after the copy was read back;
/// QFile::rename removes the original while the copy may still be in its buffer, so on a full
/// device both would be lost.
void MoveOver(const QString &source, const QString &dest, const QString &digest)
{
    QDir().rmdir(dest); // removes an empty directory only
    if (IsSettledByRename(source, dest))
        return;
    if (QFileInfo(dest).isSymLink())
        QFile::remove(dest); // the link, not its target
    if (CopyWhole(source, dest) && HMD5::FileDigest(dest) == digest)
        QFile::remove(source); // also removes a link
}

} // namespace

void MoveToDigestName(const QString &source, const QString &dest, const QString &digest)
{
    if (digest.isEmpty() || !HasNoNul(source) || !HasNoNul(dest) || AreOneEntry(source, dest))
        return;
    if (HMD5::FileDigest(dest) == digest)
        QFile::remove(source);
    else
        MoveOver(source, dest, digest);
}

} // namespace Lw::HNodeClock
