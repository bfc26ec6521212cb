#include "compose/glyph_reading.h"

#include "image_bounds.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Lw::HNodeClock {

namespace {

constexpr char kPngSignature[] = "\x89PNG\r\n\x1a\n";
constexpr qint64 kSmall = 64 << 10;

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

// A set is some thirty files: the system is asked directly, which takes half the time of QFile.
QByteArray ReadSmallPng(const QString &path)
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
    return taken == content.size() && content.startsWith(kPngSignature) ? content : QByteArray();
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
