#include "glyph/glyph_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Lw::HNodeClock {

namespace {

constexpr qint64 kSmall = 64 << 10;

QByteArray EncodePng(const QPixmap &pixmap)
{
    QByteArray png;
    QBuffer buffer(&png);
    const bool encoded = buffer.open(QBuffer::WriteOnly) && pixmap.save(&buffer, "png");
    return encoded ? png : QByteArray();
}

bool Holds(const QString &path, const QByteArray &bytes)
{
    if (bytes.size() <= kSmall)
        return ReadSmallFile(path) == bytes;
    QFile file(path);
    const QFileInfo info(path);
    return info.isFile() && info.size() == bytes.size() && file.open(QFile::ReadOnly)
        && file.readAll() == bytes;
}

/// What a power failure left under the name gives way, and so does a pipe, which opening would wait
/// for, or a link, behind which stands the file of somebody else. A filled directory refuses.
bool OpenNew(QFile &file, const QByteArray &name)
{
    const auto open = [&name] {
        return ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    };
    int handle = open();
    if (handle < 0 && errno == EEXIST && std::remove(name.constData()) == 0)
        handle = open();
    return handle >= 0
        && file.open(handle, QFile::WriteOnly | QFile::Unbuffered, QFile::AutoCloseHandle);
}

bool Write(QFile &file, const QByteArray &bytes, Durability durability)
{
    const bool written = file.write(bytes) == bytes.size()
        && (durability == Durability::Ordinary || fsync(file.handle()) == 0);
    file.close();
    return written && file.error() == QFile::NoError;
}

/// Within one directory a rename replaces the older file in one step.
void WriteAsideAndRename(const QString &path, const QByteArray &bytes, Durability durability)
{
    const QByteArray to = QFile::encodeName(path);
    const QByteArray from = to + ".part";
    QFile aside;
    if (to.contains('\0') || !OpenNew(aside, from))
        return;
    if (!Write(aside, bytes, durability) || std::rename(from.constData(), to.constData()) != 0)
        std::remove(from.constData());
}

bool IsWriteProtected(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && !file.isWritable();
}

} // namespace

// A set is some fifty files: the system is asked directly, which takes half the time of QFile.
QByteArray ReadSmallFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status
    { };
    // The system ends a path at its first character 0 and would take another file for it.
    if (name.isEmpty() || name.contains('\0') || stat(name.constData(), &status) != 0
        || !S_ISREG(status.st_mode) || status.st_size > kSmall)
        return QByteArray();
    const int file = open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return QByteArray();
    // Its name may stand for another file by now.
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > kSmall)
        status.st_size = 0;
    QByteArray content(static_cast<int>(status.st_size), Qt::Uninitialized);
    const ssize_t taken = read(file, content.data(), static_cast<std::size_t>(content.size()));
    close(file);
    return taken == content.size() ? content : QByteArray();
}

void SavePng(const QPixmap &pixmap, const QString &path, Durability durability)
{
    const QByteArray png = EncodePng(pixmap);
    if (png.isEmpty() || Holds(path, png))
        return;
    if (!IsWriteProtected(path))
        WriteAsideAndRename(path, png, durability);
}

void RemovePng(const QString &path)
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
