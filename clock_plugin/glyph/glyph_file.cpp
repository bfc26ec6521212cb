#include "glyph/glyph_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>

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
    QFile aside(path + QLatin1String(".part"));
    if (!aside.open(QFile::WriteOnly | QFile::Unbuffered))
        return;
    const QByteArray from = QFile::encodeName(aside.fileName());
    const QByteArray to = QFile::encodeName(path);
    if (!Write(aside, bytes, durability) || std::rename(from.constData(), to.constData()) != 0)
        aside.remove();
}

} // namespace

// A set is some fifty files: the system is asked directly, which takes half the time of QFile.
QByteArray ReadSmallFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status
    { };
    if (name.isEmpty() || stat(name.constData(), &status) != 0 || !S_ISREG(status.st_mode)
        || status.st_size > kSmall)
        return QByteArray();
    const int file = open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return QByteArray();
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
    const QFileInfo old(path);
    const bool writeProtected = old.exists() && !old.isWritable();
    if (!writeProtected)
        WriteAsideAndRename(path, png, durability);
}

} // namespace Lw::HNodeClock
