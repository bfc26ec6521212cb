#include "compose/glyph_strip.h"

#include "compose/picture_file.h"
#include "compose/piece_canvas.h"
#include "glyph/fresh_ink.h"

#include <QHash>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <optional>
#include <utility>

namespace Lw::HNodeClock {

namespace {

std::atomic<qint64> s_bytes {0};

// The pixels of the files that are loaded, by digest. Per thread: they are decoded without a lock.
using LoadedPixels = QHash<QByteArray, std::weak_ptr<GlyphPixels>>;
thread_local LoadedPixels t_loaded;

quint32 NewKey()
{
    static std::atomic<quint32> s_last {0};
    return ++s_last;
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

GlyphPixels::GlyphPixels(Ink ink) : GlyphPixels()
{
    TakeInk(std::move(ink));
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
    if (std::optional<Ink> ink = InkFrom(image))
        return TakeInk(std::move(*ink));
    m_ink.rows = RowsBetween(0, m_size.height());
    SetBytes(4LL * m_size.width() * m_size.height());
    m_pixmap = QPixmap::fromImage(std::move(image));
}

void GlyphPixels::TakeInk(Ink ink)
{
    m_size = ink.size;
    m_ink = std::move(ink);
    SetBytes(InkBytes(m_size));
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
    std::shared_ptr<GlyphPixels> pixels;
    if (std::optional<Ink> ink = FreshInk::OfThread().Take(file.SmallPng()))
        pixels = std::make_shared<GlyphPixels>(std::move(*ink));
    else if (isLazy)
        pixels = std::make_shared<GlyphPixels>(file.SmallPng(), bytes);
    else
        pixels = std::make_shared<GlyphPixels>(file.Read());
    if (!digest.isEmpty() && (isLazy || !pixels->Size().isEmpty()))
        Remember(digest, pixels);
    return GlyphStrip(pixels);
}

GlyphStrip GlyphStrip::Blank(const QSize &size)
{
    return size.isEmpty() ? GlyphStrip() : GlyphStrip(std::make_shared<GlyphPixels>(Ink(size)));
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
