#include "compose/picture_file.h"

#include "compose/png_chunks.h"
#include "glyph/glyph_file.h"
#include "glyph/ink.h"
#include "image_bounds.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <iterator>

#include <fcntl.h>
#include <sys/stat.h>

namespace Lw::HNodeClock {

namespace {

// The largest file of a picture within the bounds: 64 bits per pixel uncompressed, plus overhead.
constexpr qint64 kMaxFileBytes = 2 * kGlyphBytes + kGlyphBytes / 8;
// A longer PNG is unlikely to have only one colour; it is counted as 32 bits per pixel without
// decoding.
constexpr qint64 kMaxInkFileBytes = 4 << 20;

// Formats whose header gives the decoded size (of a GIF, only of its first frame). Others do not:
// an icon's header may misstate the sizes of its pictures, and a vector drawing can have any size.
constexpr const char *kTrustedFormats[] = {"bmp", "gif",    "jpeg", "jpg",    "pbm", "pbmraw",
                                           "pgm", "pgmraw", "ppm",  "ppmraw", "xbm", "xpm"};

bool IsTrusted(const QByteArray &format)
{
    return std::find(std::begin(kTrustedFormats), std::end(kTrustedFormats), format)
        != std::end(kTrustedFormats);
}

// The logical screen size of a GIF: width and height as little-endian 16-bit numbers.
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

// Each scan of a progressive JPEG makes the decoder process the whole image again, so a small file
// could take very long to decode. Typical ones have about ten scans. The start-of-scan marker does
// not occur within scan data.
bool HasFewScans(QIODevice &jpeg)
{
    constexpr int kBlock = 64 << 10;
    constexpr int kMaxScans = 100;
    int scans = 0;
    for (QByteArray block = jpeg.read(kBlock); !block.isEmpty() && scans <= kMaxScans;
         block = block.right(1) + jpeg.read(kBlock)) {
        if (block.size() == 1)
            break;
        scans += block.count("\xff\xda");
    }
    return jpeg.seek(0) && scans <= kMaxScans;
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

/// Opens without blocking on a FIFO, then checks the opened file, because the path may meanwhile
/// name another one. A file of size 0 may be endless, as in /proc.
bool OpenRegular(QFile &file, const QString &path)
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
        && status.st_size <= kMaxFileBytes;
}

} // namespace

PictureFile::PictureFile(const QString &path) : m_png(ReadSmallFile(path))
{
    m_isPng = m_png.startsWith(kPngSignature);
    if (!m_isPng) {
        m_png = QByteArray();
        Open(path);
    }
    const QSize size = m_reader ? m_reader->size()
        : m_isPng               ? SizeOfPng(m_file ? m_file->peek(kPngHeaderEnd) : m_png)
                                : QSize();
    if (WithinBounds(size, kGlyphBytes))
        m_size = size;
}

PictureFile::~PictureFile() = default;

void PictureFile::Open(const QString &path)
{
    m_file = std::make_unique<QFile>();
    if (!OpenRegular(*m_file, path))
        return;
    m_isPng = m_file->peek(sizeof kPngSignature - 1) == kPngSignature;
    if (m_isPng)
        return;
    auto reader = std::make_unique<QImageReader>(m_file.get());
    const QByteArray format = reader->format();
    const bool isRead = IsTrusted(format)
        && (format != "gif" || WithinBounds(CanvasOfGif(*m_file), kGlyphBytes))
        && (format != "jpeg" || HasFewScans(*m_file));
    if (isRead)
        m_reader = std::move(reader);
}

QByteArray PictureFile::Digest()
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!m_file) {
        hash.addData(m_png);
        return hash.result();
    }
    const qint64 place = m_file->pos();
    const bool isRead = m_file->seek(0) && hash.addData(m_file.get());
    m_file->seek(place);
    return isRead ? hash.result() : QByteArray();
}

qint64 PictureFile::MaxBytes() const
{
    return 4LL * m_size.width() * m_size.height();
}

qint64 PictureFile::GlyphBytes()
{
    if (IsNull() || !m_isPng || (m_file && m_file->size() > kMaxInkFileBytes))
        return MaxBytes();
    if (!m_file)
        return GlyphBytesOfPng(m_png);
    const QByteArray png = m_file->readAll();
    m_file->seek(0);
    return GlyphBytesOfPng(png);
}

QImage PictureFile::Read()
{
    if (IsNull())
        return QImage();
    if (m_reader)
        return m_reader->read();
    return m_file ? ReadPng(*m_file) : DecodePng(m_png);
}

QImage ReadImageFile(const QString &path)
{
    return PictureFile(path).Read();
}

QPixmap ReadPixmapFile(const QString &path)
{
    QImage image = ReadImageFile(path);
    return image.isNull() ? QPixmap() : QPixmap::fromImage(std::move(image));
}

QImage DecodePng(const QByteArray &png)
{
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QBuffer::ReadOnly);
    return ReadPng(buffer);
}

// Decodes the image only to count its colours.
qint64 GlyphBytesOfPng(const QByteArray &png)
{
    const QSize size = SizeOfPng(png);
    const bool isInk = HasGlyphFormat(png) && InkColourOf(DecodePng(png)).has_value();
    return isInk ? InkBytes(size) : 4LL * size.width() * size.height();
}

} // namespace Lw::HNodeClock
