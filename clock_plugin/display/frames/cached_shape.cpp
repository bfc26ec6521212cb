#include "display/frames/cached_shape.h"

#include <QPainter>
#include <QPixmap>
#include <QRgba64>
#include <QVarLengthArray>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace Lw::HNodeClock {

namespace {

constexpr int kMaxRun = 255; // a run's length is stored in one byte

// The four bytes of a pixel, spread so that products with a byte do not overlap.
constexpr quint64 kBytes = 0x00ff00ff00ff00ff;

constexpr quint64 Spread(QRgb pixel)
{
    return (pixel | static_cast<quint64>(pixel) << 24) & kBytes;
}

constexpr QRgb Joined(quint64 spread)
{
    return static_cast<QRgb>(spread | spread >> 24);
}

// Each byte times a / 255, rounded as QPainter does: with t = byte * a, (t + t / 256 + 128) / 256.
constexpr quint64 Times(quint64 spread, quint32 a)
{
    const quint64 t = spread * a;
    return (t + (t >> 8 & kBytes) + 0x0080008000800080) >> 8 & kBytes;
}

template<class Value>
Value Load(const char *from)
{
    Value value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

// The inks: what is stored per pixel, and how it blends onto an opaque pixel. A solid pixel hides
// what is below it.

// One colour with the coverage of each pixel by antialiasing: with source = colour * coverage /
// 255, result = source + below * (255 - coverage) / 255.
struct ColourInk
{
    using Soft = quint8;
    static constexpr int kPixelBytes = 4;
    static constexpr int kSolidBytes = 0;

    explicit ColourInk(QRgb plain) : colour(plain), spread(Spread(plain)) { }

    static Soft Read(const uchar *line, int x)
    {
        return static_cast<Soft>(qAlpha(reinterpret_cast<const QRgb *>(line)[x]));
    }
    static bool IsSolid(Soft coverage) { return coverage == 255; }
    QRgb Solid(const char *) const { return colour; }
    QRgb Over(Soft coverage, QRgb below) const
    {
        return Joined(Times(spread, coverage) + Times(Spread(below), 255u - coverage));
    }

    QRgb colour;
    quint64 spread;
};

// A premultiplied picture in 8 bits per channel: result = source + below * (255 - alpha) / 255.
struct PixelInk
{
    using Soft = QRgb;
    static constexpr int kPixelBytes = sizeof(Soft);
    static constexpr int kSolidBytes = sizeof(QRgb);

    static Soft Read(const uchar *line, int x) { return reinterpret_cast<const Soft *>(line)[x]; }
    static bool IsSolid(Soft soft) { return qAlpha(soft) == 255; }
    static QRgb Solid(const char *from) { return Load<QRgb>(from); }
    static QRgb Over(Soft soft, QRgb below)
    {
        return soft + Joined(Times(Spread(below), 255u - (soft >> 24)));
    }
};

// The same in 16 bits per channel. A byte below becomes below * 257, and the result is rounded to a
// byte by a division by 257:
// result = (source + below * 257 * (65535 - alpha) / 65535) / 257, where x / 65535 is
// (x + x / 65536 + 32768) / 65536, and x / 257 is (y - y / 256) / 256 with y = x + 128.
struct WidePixelInk
{
    using Soft = quint64; // a QRgba64: red in the lowest 16 bits, then green, blue and alpha
    static constexpr int kPixelBytes = sizeof(Soft);
    static constexpr int kSolidBytes = sizeof(QRgb);

    static Soft Read(const uchar *line, int x) { return reinterpret_cast<const Soft *>(line)[x]; }
    static bool IsSolid(Soft soft) { return Over(soft, 0xff000000) == Over(soft, 0xffffffff); }
    static QRgb Solid(const char *from) { return Load<QRgb>(from); }
    static QRgb Over(Soft soft, QRgb below)
    {
        const quint32 through = (65535u - static_cast<quint32>(soft >> 48)) * 257u;
        return 0xff000000 | Byte(soft & 0xffff, below >> 16 & 0xff, through) << 16
            | Byte(soft >> 16 & 0xffff, below >> 8 & 0xff, through) << 8
            | Byte(soft >> 32 & 0xffff, below & 0xff, through);
    }

private:
    static quint32 Byte(quint64 source, quint32 below, quint32 through)
    {
        const quint32 product = below * through; // at most 65535 * 65535
        const quint32 behind = (product + (product >> 16) + 0x8000u) >> 16;
        const quint32 sum = static_cast<quint32>(source) + behind + 128u;
        return (sum - (sum >> 8)) >> 8;
    }
};

using Buffer = QVarLengthArray<char, 4096>;

template<class Value>
char *Store(char *to, Value value)
{
    std::memcpy(to, &value, sizeof value);
    return to + sizeof value;
}

// Appends the soft pixels from begin on and the solid ones after them; returns where they end.
template<class Ink>
int AppendRun(const Ink &ink, const uchar *line, int begin, int end, Buffer &bytes)
{
    int solid = begin;
    while (solid < end && solid - begin < kMaxRun && !ink.IsSolid(Ink::Read(line, solid)))
        ++solid;
    int next = solid;
    while (next < end && next - solid < kMaxRun && ink.IsSolid(Ink::Read(line, next)))
        ++next;
    const int size = bytes.size();
    bytes.resize(size + 2 + (solid - begin) * int(sizeof(typename Ink::Soft))
                 + (next - solid) * Ink::kSolidBytes);
    char *to = bytes.data() + size;
    to = Store(to, static_cast<quint8>(solid - begin));
    to = Store(to, static_cast<quint8>(next - solid));
    for (int x = begin; x < solid; ++x)
        to = Store(to, Ink::Read(line, x));
    for (int x = solid; x < next && Ink::kSolidBytes > 0; ++x)
        to = Store(to, ink.Over(Ink::Read(line, x), 0xff000000));
    return next;
}

} // namespace

template<class Ink>
void CachedShape::Take(const Ink &ink, const QImage &painted, const QPoint &first, const QRect &box)
{
    Buffer bytes;
    m_spans.Clear(box.top());
    const uchar *line = painted.constBits() + qint64(first.y()) * painted.bytesPerLine()
        + first.x() * Ink::kPixelBytes;
    for (int y = 0; y < box.height(); ++y, line += painted.bytesPerLine()) {
        int begin = 0;
        int end = box.width();
        while (begin < end && Ink::Read(line, begin) == 0)
            ++begin;
        while (end > begin && Ink::Read(line, end - 1) == 0)
            --end;
        m_spans.AddRow(box.left() + begin, box.left() + end);
        while (begin < end)
            begin = AppendRun(ink, line, begin, end, bytes);
    }
    m_pixels = QByteArray(bytes.constData(), bytes.size());
}

template<class Ink>
void CachedShape::BlendInk(const Ink &ink, uchar *frame, int bytesPerLine) const
{
    using Soft = typename Ink::Soft;
    const char *from = m_pixels.constData();
    uchar *line = frame + static_cast<qint64>(m_spans.Top()) * bytesPerLine;
    for (const Spans::Row &row : m_spans.Rows()) {
        QRgb *pixel = reinterpret_cast<QRgb *>(line) + row.left;
        QRgb *const end = reinterpret_cast<QRgb *>(line) + row.right;
        while (pixel != end) {
            int soft = static_cast<uchar>(from[0]);
            int solid = static_cast<uchar>(from[1]);
            from += 2;
            for (; soft > 0; --soft, ++pixel, from += sizeof(Soft))
                *pixel = ink.Over(Load<Soft>(from), *pixel);
            for (; solid > 0; --solid, ++pixel, from += Ink::kSolidBytes)
                *pixel = ink.Solid(from);
        }
        line += bytesPerLine;
    }
}

CachedShape CachedShape::OfColour(const QImage &painted, const QRect &box, const QColor &colour)
{
    CachedShape shape;
    shape.m_kind = Kind::Colour;
    shape.m_colour = colour.rgb();
    shape.Take(ColourInk(shape.m_colour), painted, QPoint(0, 0), box);
    return shape;
}

CachedShape CachedShape::OfPicture(const QImage &painted, const QRect &box)
{
    CachedShape shape;
    if (painted.format() == QImage::Format_RGBA64_Premultiplied) {
        shape.m_kind = Kind::WidePixels;
        shape.Take(WidePixelInk(), painted, box.topLeft(), box);
    } else {
        shape.m_kind = Kind::Pixels;
        shape.Take(PixelInk(), painted, box.topLeft(), box);
    }
    return shape;
}

CachedShape CachedShape::AsShownOn(const QImage &frame) const
{
    CachedShape shown;
    shown.m_kind = Kind::Pixels;
    shown.m_spans = m_spans;
    Buffer bytes;
    const uchar *line = frame.constBits() + qint64(m_spans.Top()) * frame.bytesPerLine();
    for (const Spans::Row &row : m_spans.Rows()) {
        for (int x = row.left; x < row.right;)
            x = AppendRun(PixelInk(), line, x, row.right, bytes);
        line += frame.bytesPerLine();
    }
    shown.m_pixels = QByteArray(bytes.constData(), bytes.size());
    return shown;
}

void CachedShape::Blend(uchar *frame, int bytesPerLine) const
{
    switch (m_kind) {
    case Kind::None:
        break;
    case Kind::Colour:
        BlendInk(ColourInk(m_colour), frame, bytesPerLine);
        break;
    case Kind::Pixels:
        BlendInk(PixelInk(), frame, bytesPerLine);
        break;
    case Kind::WidePixels:
        BlendInk(WidePixelInk(), frame, bytesPerLine);
        break;
    }
}

namespace {

constexpr QSize kSample(24, 24);

// Paints a rotated and scaled picture of many colours and opacities.
void PaintSample(QImage &image)
{
    QImage picture(16, 16, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x)
            picture.setPixelColor(x, y, QColor(x * 17, y * 17, 255 - x * 16, 40 + y * 14));
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.translate(12, 12);
    painter.rotate(33);
    painter.scale(0.8, 0.9);
    painter.drawPixmap(-8, -8, QPixmap::fromImage(picture));
}

QImage SampleGround()
{
    QImage ground(kSample, QImage::Format_ARGB32);
    for (int y = 0; y < kSample.height(); ++y) {
        for (int x = 0; x < kSample.width(); ++x)
            ground.setPixel(x, y, qRgb(x * 10, y * 10, (x * 37 + y * 91) % 256));
    }
    return ground;
}

bool IsBlendedAsPainted(QImage::Format format)
{
    QImage alone(kSample, format);
    alone.fill(Qt::transparent);
    PaintSample(alone);
    QImage blended = SampleGround();
    CachedShape::OfPicture(alone, alone.rect()).Blend(blended.bits(), blended.bytesPerLine());
    QImage painted = SampleGround();
    PaintSample(painted);
    return blended == painted;
}

QImage::Format FittingFormat()
{
    for (const QImage::Format format :
         {QImage::Format_RGBA64_Premultiplied, QImage::Format_ARGB32_Premultiplied}) {
        if (IsBlendedAsPainted(format))
            return format;
    }
    return QImage::Format_Invalid;
}

} // namespace

QImage::Format CachedShape::PictureFormat()
{
    static const QImage::Format format = FittingFormat();
    return format;
}

CachedShape CachePicture(const QRect &box, const std::function<void(QPainter &)> &paint)
{
    const QImage::Format format = CachedShape::PictureFormat();
    if (format == QImage::Format_Invalid)
        return CachedShape();
    if (box.isEmpty())
        return CachedShape::OfPicture(QImage(), QRect());
    const int pixelBytes = format == QImage::Format_RGBA64_Premultiplied ? 8 : 4;
    const int line = (box.right() + 1) * pixelBytes;
    // A QImage that spans the frame up to the box's last row and column, but has memory only from
    // the box's first row on.
    const std::unique_ptr<uchar, decltype(&std::free)> rows(
        static_cast<uchar *>(
            std::malloc(static_cast<std::size_t>(box.height()) * static_cast<std::size_t>(line))),
        &std::free);
    if (!rows)
        return CachedShape();
    for (int y = 0; y < box.height(); ++y)
        std::memset(rows.get() + qint64(y) * line + box.left() * pixelBytes, 0,
                    static_cast<std::size_t>(box.width() * pixelBytes));
    const quintptr origin =
        reinterpret_cast<quintptr>(rows.get()) - static_cast<quintptr>(box.top()) * quintptr(line);
    QImage window(reinterpret_cast<uchar *>(origin), box.right() + 1, box.bottom() + 1, line,
                  format);
    QPainter painter(&window);
    painter.setClipRect(box);
    paint(painter);
    painter.end();
    return CachedShape::OfPicture(window, box);
}

CachedShape ColourCanvas::Cache(const QPolygonF &outline, const QColor &colour, bool smooth,
                                const QSize &frame,
                                const std::function<void(QPainter &, const QPoint &)> &paint)
{
    const QRect box = BoxAround(outline) & QRect(QPoint(0, 0), frame);
    if (box.isEmpty())
        return CachedShape::OfColour(QImage(), QRect(), colour);
    if (m_image.width() < box.width() || m_image.height() < box.height())
        m_image =
            QImage(box.size().expandedTo(m_image.size()), QImage::Format_ARGB32_Premultiplied);
    if (m_image.isNull())
        return CachedShape();
    for (int y = 0; y < box.height(); ++y)
        std::fill_n(reinterpret_cast<QRgb *>(m_image.scanLine(y)), box.width(), 0u);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing, smooth);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    paint(painter, box.topLeft());
    painter.end();
    return CachedShape::OfColour(m_image, box, colour);
}

} // namespace Lw::HNodeClock
