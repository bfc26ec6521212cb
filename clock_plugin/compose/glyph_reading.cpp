#include "compose/glyph_reading.h"

#include "compose/png_chunks.h"
#include "glyph/glyph_file.h"
#include "image_bounds.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <iterator>

#include <fcntl.h>
#include <sys/stat.h>

namespace Lw::HNodeClock {

namespace {

// Of a picture within the bounds: 64 bits a pixel, uncompressed, and room for what stands between.
constexpr qint64 kLongest = 2 * kGlyphBytes + kGlyphBytes / 8;

// These tell the size of what they decode, the GIF of its first picture only. Others do not: an
// icon names sizes of its own for the pictures in it, and a drawing can be told any.
constexpr const char *kHonestFormats[] = {"bmp", "gif",    "jpeg", "jpg",    "pbm", "pbmraw",
                                          "pgm", "pgmraw", "ppm",  "ppmraw", "xbm", "xpm"};

bool IsHonest(const QByteArray &format)
{
    return std::find(std::begin(kHonestFormats), std::end(kHonestFormats), format)
        != std::end(kHonestFormats);
}

// The canvas of an animation, width and height as two bytes each, the lower one first.
QSize CanvasOfGif(QIODevice &gif)
{
    constexpr int kWidthAt = 6;
    constexpr int kHeightAt = 8;
    const QByteArray head = gif.peek(kHeightAt + 2);
    if (head.size() < kHeightAt + 2)
        return QSize();
    return {qFromLittleEndian<quint16>(head.constData() + kWidthAt),
            qFromLittleEndian<quint16>(head.constData() + kHeightAt)};
}

// A JPEG may have its whole area gone over again by a few bytes, any number of times. Ordinary ones
// have some ten scans. The mark of a scan does not occur within its data.
bool HasFewScans(QIODevice &jpeg)
{
    constexpr int kBlock = 64 << 10;
    constexpr int kMostScans = 100;
    int scans = 0;
    for (QByteArray block = jpeg.read(kBlock); !block.isEmpty() && scans <= kMostScans;
         block = block.right(1) + jpeg.read(kBlock)) {
        if (block.size() == 1)
            break;
        scans += block.count("\xff\xda");
    }
    return jpeg.seek(0) && scans <= kMostScans;
}

QImage ReadWithinBounds(QImageReader &reader)
{
    return WithinBounds(reader.size(), kGlyphBytes) ? reader.read() : QImage();
}

QImage ReadPng(QIODevice &png)
{
    QByteArray chunks = PixelChunks(png);
    QBuffer buffer(&chunks);
    buffer.open(QBuffer::ReadOnly);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    return ReadWithinBounds(reader);
}

/// Opened without waiting for a pipe's writer, and then asked what it is: what a name stands for
/// may change in between. A file without a size has no end either, where the system makes it up.
bool OpenOrdinary(QFile &file, const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status
    { };
    if (name.isEmpty() || name.contains('\0') || stat(name.constData(), &status) != 0
        || !S_ISREG(status.st_mode))
        return false;
    const int descriptor = open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0 || !file.open(descriptor, QFile::ReadOnly, QFile::AutoCloseHandle))
        return false;
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0
        && status.st_size <= kLongest;
}

} // namespace

QImage ReadImageFile(const QString &path)
{
    QFile file;
    if (!OpenOrdinary(file, path))
        return QImage();
    if (file.peek(sizeof kPngSignature - 1) == kPngSignature)
        return ReadPng(file);
    QImageReader reader(&file);
    const QByteArray format = reader.format();
    if (!IsHonest(format) || (format == "gif" && !WithinBounds(CanvasOfGif(file), kGlyphBytes)))
        return QImage();
    if (format == "jpeg" && !HasFewScans(file))
        return QImage();
    return ReadWithinBounds(reader);
}

QPixmap ReadPixmapFile(const QString &path)
{
    const QImage image = ReadImageFile(path);
    return image.isNull() ? QPixmap() : QPixmap::fromImage(image);
}

QByteArray ReadSmallPng(const QString &path)
{
    const QByteArray content = ReadSmallFile(path);
    return content.startsWith(kPngSignature) ? content : QByteArray();
}

QImage DecodePng(const QByteArray &png)
{
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QBuffer::ReadOnly);
    return ReadPng(buffer);
}

} // namespace Lw::HNodeClock
