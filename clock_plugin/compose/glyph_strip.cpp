#include "compose/glyph_strip.h"

#include "compose/picture_file.h"
#include "compose/piece_canvas.h"

#include <QHash>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <limits>

namespace Lw::HNodeClock {

namespace {

constexpr int kBits = 32; // of a word

std::atomic<qint64> s_bytes {0};

// The pixels of the files that are loaded, by digest. Per thread: they are decoded without a lock.
using LoadedPixels = QHash<QByteArray, std::weak_ptr<GlyphPixels>>;
thread_local LoadedPixels t_loaded;

quint32 NewKey()
{
    static std::atomic<quint32> s_last {0};
    return ++s_last;
}

int WordsFor(int width)
{
    return (width + kBits - 1) / kBits;
}

GlyphRows RowsBetween(int first, int end)
{
    constexpr int kMax = std::numeric_limits<quint16>::max();
    return {static_cast<quint16>(std::min(first, kMax)),
            static_cast<quint16>(std::min(end - first, kMax))};
}

// One spare word for two-word loads.
QVector<quint32> NoInk(const QSize &size)
{
    return QVector<quint32>(WordsFor(size.width()) * size.height() + 1);
}

// Expired entries are removed each time the table has doubled in size.
void Remember(const QByteArray &digest, const std::shared_ptr<GlyphPixels> &pixels)
{
    thread_local int t_limit = 128;
    if (t_loaded.size() >= t_limit) {
        for (auto entry = t_loaded.begin(); entry != t_loaded.end();)
            entry = entry->expired() ? t_loaded.erase(entry) : std::next(entry);
        t_limit = 128 + 2 * t_loaded.size();
    }
    t_loaded.insert(digest, pixels);
}

} // namespace

GlyphPixels::GlyphPixels() : m_key(NewKey()) { }

GlyphPixels::GlyphPixels(const QImage &image) : GlyphPixels()
{
    Take(image);
}

GlyphPixels::GlyphPixels(const QByteArray &png, qint64 bytes) : GlyphPixels()
{
    m_encoded = png;
    SetBytes(bytes);
}

GlyphPixels::~GlyphPixels()
{
    SetBytes(0);
}

std::shared_ptr<GlyphPixels> GlyphPixels::Blank(const QSize &size)
{
    const auto pixels = std::shared_ptr<GlyphPixels>(new GlyphPixels);
    pixels->m_size = size;
    pixels->m_wordsPerRow = WordsFor(size.width());
    pixels->m_ink = NoInk(size);
    pixels->SetBytes(InkBytes(size));
    return pixels;
}

void GlyphPixels::SetBytes(qint64 bytes)
{
    s_bytes += bytes - m_bytes;
    m_bytes = bytes;
}

void GlyphPixels::CountExactly()
{
    if (!m_encoded.isNull() && !m_isExact)
        SetBytes(std::min(m_bytes, GlyphBytesOfPng(m_encoded)));
    m_isExact = true;
}

void GlyphPixels::DecodeNow()
{
    QImage image = DecodePng(m_encoded);
    m_encoded = QByteArray();
    Take(std::move(image));
}

void GlyphPixels::Take(QImage image)
{
    m_size = image.isNull() ? QSize(0, 0) : image.size();
    if (image.isNull())
        return SetBytes(0);
    if (TakeInk(image))
        return SetBytes(InkBytes(m_size));
    m_rows = RowsBetween(0, m_size.height());
    SetBytes(4LL * m_size.width() * m_size.height());
    m_pixmap = QPixmap::fromImage(std::move(image));
}

// Only for the formats that transparent PNGs decode to: in these, converting to a pixmap does not
// change a pixel of alpha 0 or 255.
bool GlyphPixels::TakeInk(const QImage &image)
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
    int first = height;
    int end = 0;
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
            first = std::min(first, y);
            end = y + 1;
        }
    }
    m_rows = RowsBetween(std::min(first, end), end);
    m_ink = ink;
    m_wordsPerRow = words;
    m_colour = colour;
    return true;
}

const QPixmap &GlyphPixels::Pixmap()
{
    if (IsInk() && m_pixmap.isNull()) {
        QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
        if (image.isNull()) // out of memory
            return m_pixmap;
        image.fill(Qt::transparent);
        PieceCanvas(image).DrawInk(*this, QRect(QPoint(0, 0), m_size), QPoint(0, 0));
        m_pixmap = QPixmap::fromImage(image);
    }
    return m_pixmap;
}

GlyphStrip::GlyphStrip(const QImage &image) : m_pixels(std::make_shared<GlyphPixels>(image)) { }

GlyphStrip GlyphStrip::OfFile(const QString &path)
{
    PictureFile file(path);
    if (file.IsNull())
        return GlyphStrip();
    const GlyphStrip loaded = Loaded(file.Digest());
    return loaded.m_pixels ? loaded : OfFile(file, file.MaxBytes());
}

// A failed decode is not cached: it may have failed only for lack of memory.
GlyphStrip GlyphStrip::OfFile(PictureFile &file, qint64 bytes)
{
    const QByteArray digest = file.Digest();
    const bool isLazy = !file.SmallPng().isEmpty();
    const auto pixels = isLazy ? std::make_shared<GlyphPixels>(file.SmallPng(), bytes)
                               : std::make_shared<GlyphPixels>(file.Read());
    if (!digest.isEmpty() && (isLazy || !pixels->Size().isEmpty()))
        Remember(digest, pixels);
    return GlyphStrip(pixels);
}

GlyphStrip GlyphStrip::Blank(const QSize &size)
{
    return size.isEmpty() ? GlyphStrip() : GlyphStrip(GlyphPixels::Blank(size));
}

GlyphStrip GlyphStrip::Loaded(const QByteArray &digest)
{
    const std::shared_ptr<GlyphPixels> pixels = t_loaded.value(digest).lock();
    const bool isDamaged = pixels && pixels->IsDamaged();
    return isDamaged ? GlyphStrip() : GlyphStrip(pixels);
}

void GlyphStrip::CountExactly() const
{
    if (m_pixels)
        m_pixels->CountExactly();
}

qint64 GlyphBytesInProcess()
{
    return s_bytes;
}

void CountLoadedGlyphsExactly()
{
    for (const std::weak_ptr<GlyphPixels> &entry : qAsConst(t_loaded)) {
        if (const std::shared_ptr<GlyphPixels> pixels = entry.lock())
            pixels->CountExactly();
    }
}

} // namespace Lw::HNodeClock
