#include "glyph/glyph_file.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Lw::HNodeClock {

namespace {

constexpr qint64 kSmall = 64 << 10;

QByteArray Sha1(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

/// The content of a regular file, else null. The size is compared only if it is above kSmall; of
/// smaller files the caller compares the content.
QByteArray ReadFileOfSize(const QString &path, qint64 size)
{
    if (size <= kSmall)
        return ReadSmallFile(path);
    QFile file(path);
    const QFileInfo info(path);
    const bool fits = info.isFile() && info.size() == size && file.open(QFile::ReadOnly);
    return fits ? file.readAll() : QByteArray();
}

/// Leftovers of a power failure, FIFOs and links are removed first. Fails for a non-empty
/// directory.
int OpenNew(const QByteArray &name)
{
    const auto open = [&name] {
        return ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    };
    const int handle = open();
    if (handle < 0 && errno == EEXIST && std::remove(name.constData()) == 0)
        return open();
    return handle;
}

// These return 0 or an errno value.

int WriteAll(int handle, const QByteArray &bytes)
{
    for (int written = 0; written < bytes.size();) {
        const ssize_t count = write(handle, bytes.constData() + written,
                                    static_cast<std::size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR)
            return errno;
        if (count == 0)
            return ENOSPC;
        written += static_cast<int>(std::max<ssize_t>(count, 0));
    }
    return 0;
}

int WriteAndClose(int handle, const QByteArray &bytes, Durability durability)
{
    int error = WriteAll(handle, bytes);
    if (error == 0 && durability == Durability::Synced && fsync(handle) != 0)
        error = errno;
    if (close(handle) != 0 && error == 0)
        error = errno;
    return error;
}

/// Writes next to the target and renames: a rename within one directory is atomic.
int WriteAsideAndRename(const QByteArray &to, const QByteArray &bytes, Durability durability)
{
    const QByteArray aside = to + ".part";
    const int handle = OpenNew(aside);
    if (handle < 0)
        return errno;
    int error = WriteAndClose(handle, bytes, durability);
    if (error == 0 && std::rename(aside.constData(), to.constData()) != 0)
        error = errno;
    if (error != 0)
        std::remove(aside.constData());
    return error;
}

bool IsWriteProtected(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && !file.isWritable();
}

} // namespace

// A set has about fifty files; direct system calls take half the time of QFile.
QByteArray ReadSmallFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status
    { };
    // The system ends a path at its first NUL and would open another file.
    if (name.isEmpty() || name.contains('\0') || stat(name.constData(), &status) != 0
        || !S_ISREG(status.st_mode) || status.st_size > kSmall)
        return QByteArray();
    const int file = open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return QByteArray();
    // The path may name another file by now.
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > kSmall)
        status.st_size = 0;
    QByteArray content(static_cast<int>(status.st_size), Qt::Uninitialized);
    const ssize_t taken = read(file, content.data(), static_cast<std::size_t>(content.size()));
    close(file);
    return taken == content.size() ? content : QByteArray();
}

bool FileHolds(const QString &path, const QByteArray &bytes)
{
    return !bytes.isEmpty() && ReadFileOfSize(path, bytes.size()) == bytes;
}

bool FileHolds(const QString &path, qint64 size, const QByteArray &digest)
{
    const QByteArray content = ReadFileOfSize(path, size);
    return content.size() == size && Sha1(content) == digest;
}

int WriteImageFile(const QString &path, const QByteArray &bytes, Durability durability)
{
    const QByteArray name = QFile::encodeName(path);
    if (name.contains('\0'))
        return EINVAL;
    return IsWriteProtected(path) ? EACCES : WriteAsideAndRename(name, bytes, durability);
}

void RemoveImageFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status
    { };
    if (name.contains('\0') || lstat(name.constData(), &status) != 0
        || !(S_ISREG(status.st_mode) || S_ISLNK(status.st_mode)) || IsWriteProtected(path))
        return;
    unlink(name.constData());
}

} // namespace Lw::HNodeClock
