#include "compose/glyph_reading.h"

#include "glyph/glyph_file.h"
#include "image_bounds.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace Lw::HNodeClock {

namespace {

constexpr char kPngSignature[] = "\x89PNG\r\n\x1a\n";

QImage ReadWithinBounds(QImageReader &reader)
{
    return WithinBounds(reader.size(), kGlyphBytes) ? reader.read() : QImage();
}

bool IsOrdinaryFile(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isFile();
}

} // namespace

QImage ReadImageFile(const QString &path)
{
    if (!IsOrdinaryFile(path))
        return QImage();
    QImageReader reader(path);
    return ReadWithinBounds(reader);
}

QPixmap ReadGlyphFile(const QString &path)
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
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    return ReadWithinBounds(reader);
}

} // namespace Lw::HNodeClock
