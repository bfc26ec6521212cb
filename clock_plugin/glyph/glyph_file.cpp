#include "glyph/glyph_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>

#include <cstdio>

#include <unistd.h>

namespace Lw::HNodeClock {

namespace {

QByteArray EncodePng(const QPixmap &pixmap)
{
    QByteArray png;
    QBuffer buffer(&png);
    const bool encoded = buffer.open(QBuffer::WriteOnly) && pixmap.save(&buffer, "png");
    return encoded ? png : QByteArray();
}

bool Holds(const QFileInfo &info, const QByteArray &bytes)
{
    QFile file(info.filePath());
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

void SavePng(const QPixmap &pixmap, const QString &path, Durability durability)
{
    const QByteArray png = EncodePng(pixmap);
    const QFileInfo old(path);
    const bool writeProtected = old.exists() && !old.isWritable();
    if (!png.isEmpty() && !writeProtected && !Holds(old, png))
        WriteAsideAndRename(path, png, durability);
}

} // namespace Lw::HNodeClock
