#include "compose/glyph_strip.h"

#include "compose/glyph_reading.h"
#include "compose/piece_canvas.h"
#include "compose/png_chunks.h"

#include <atomic>

namespace Lw::HNodeClock {

namespace {

constexpr int kBits = 32; // of a word

quint32 NewKey()
{
    static std::atomic<quint32> s_last {0};
    return ++s_last;
}

int WordsFor(int width)
{
    return (width + kBits - 1) / kBits;
}

// Whoever reads two words at a time may read past the last.
QVector<quint32> NoInk(const QSize &size)
{
    return QVector<quint32>(WordsFor(size.width()) * size.height() + 1);
}

} // namespace

GlyphStrip::GlyphStrip(const QImage &image) : m_key(NewKey())
{
    Take(image);
}

GlyphStrip GlyphStrip::OfFile(const QString &path)
{
    const QByteArray png = ReadSmallPng(path);
    if (png.isNull())
        return GlyphStrip(ReadImageFile(path));
    GlyphStrip strip;
    strip.m_key = NewKey();
    strip.m_encoded = png;
    strip.m_isEncoded = true;
    strip.m_size = QSize();
    return strip;
}

GlyphStrip GlyphStrip::Blank(const QSize &size)
{
    GlyphStrip strip;
    if (size.isEmpty())
        return strip;
    strip.m_key = NewKey();
    strip.m_size = size;
    strip.m_wordsPerRow = WordsFor(size.width());
    strip.m_ink = NoInk(size);
    return strip;
}

void GlyphStrip::DecodeNow() const
{
    const QImage image = DecodePng(m_encoded);
    m_encoded = QByteArray();
    m_isEncoded = false;
    Take(image);
}

void GlyphStrip::FindSize() const
{
    m_size = SizeOfIntactPng(m_encoded);
    if (!m_size.isValid())
        DecodeNow();
}

void GlyphStrip::Take(const QImage &image) const
{
    m_size = image.isNull() ? QSize(0, 0) : image.size();
    if (!image.isNull() && !TakeInk(image))
        m_pixmap = QPixmap::fromImage(image);
}

// Only of the formats in which transparent glyphs are read: in them a pixel of alpha 0 or 255 is
// the same before and after it becomes part of a pixmap.
bool GlyphStrip::TakeInk(const QImage &image) const
{
    if (image.format() != QImage::Format_ARGB32
        && image.format() != QImage::Format_ARGB32_Premultiplied)
        return false;
    const int width = image.width();
    const int height = image.height();
    const int words = WordsFor(width);
    QVector<quint32> ink = NoInk(image.size());
    quint32 *row = ink.data();
    QRgb colour = 0;
    for (int y = 0; y < height; ++y, row += words) {
        const auto *const pixels = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < width; ++x) {
            if (qAlpha(pixels[x]) == 0)
                continue;
            if (colour == 0)
                colour = pixels[x];
            if (pixels[x] != colour || qAlpha(colour) != 255)
                return false;
            row[x / kBits] |= 1u << x % kBits;
        }
    }
    m_ink = ink;
    m_wordsPerRow = words;
    m_colour = colour;
    return true;
}

const QPixmap &GlyphStrip::Pixmap() const
{
    if (IsInk() && m_pixmap.isNull()) {
        QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
        if (image.isNull()) // there is no memory
            return m_pixmap;
        image.fill(Qt::transparent);
        PieceCanvas(image).Draw(*this, QRect(QPoint(0, 0), m_size), QPoint(0, 0));
        m_pixmap = QPixmap::fromImage(image);
    }
    return m_pixmap;
}

} // namespace Lw::HNodeClock
