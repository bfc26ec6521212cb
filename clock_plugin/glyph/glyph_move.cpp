#include "glyph/glyph_move.h"

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

/// Whether both paths lead to one entry of one directory, by what the file system says, for an
/// entry has many spellings: links, "..", bind mounts. Hard links are entries of their own.
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

/// The system ends a path at its first character 0 and would take another file for it.
bool IsWhole(const QString &path)
{
    return !path.contains(QChar::Null);
}

/// The copy appears under its name only when it is complete and on the disk. The flush is asked
/// for by hand: commit() does not look at the bytes that closing the file still has to write.
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

/// Whether the rename was made, or failed for good: only a copy leads to another file system, and
/// to what a link names, for a relative link names nothing in another directory.
bool IsSettledByRename(const QString &source, const QString &dest)
{
    if (QFileInfo(source).isSymLink())
        return false;
    return std::rename(QFile::encodeName(source).constData(), QFile::encodeName(dest).constData())
        == 0
        || errno != EXDEV;
}

/// A rename that also replaces dest, or a copy whose original is removed only after the copy was
/// read back; QFile::rename removes the original while the copy may still be in its
/// buffer, and a full device then has neither.
void MoveOver(const QString &source, const QString &dest, const QString &digest)
{
    QDir().rmdir(dest); // an empty directory holds nothing; any other entry refuses
    if (IsSettledByRename(source, dest))
        return;
    if (QFileInfo(dest).isSymLink())
        QFile::remove(dest); // the link, not what it leads to
    if (CopyWhole(source, dest) && HMD5::FileDigest(dest) == digest)
        QFile::remove(source); // of a link the link, too
}

} // namespace

void MoveToDigestName(const QString &source, const QString &dest, const QString &digest)
{
    if (digest.isEmpty() || !IsWhole(source) || !IsWhole(dest) || AreOneEntry(source, dest))
        return;
    if (HMD5::FileDigest(dest) == digest)
        QFile::remove(source);
    else
        MoveOver(source, dest, digest);
}

} // namespace Lw::HNodeClock
