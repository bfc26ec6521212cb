#include "screen_composer.h"

#include <algorithm>

// Compiles a function twice; the one for the processor's vectors is taken when the program is
// loaded.
#ifdef __x86_64__
#define CLOCK_WIDE_VECTORS __attribute__((target_clones("avx2", "default")))
#else
#define CLOCK_WIDE_VECTORS
#endif

namespace ClockStage {

namespace {

constexpr QRgb kBlack = qRgb(0, 0, 0);

/// The rows of a picture; bits() is called only once.
class Rows
{
public:
    Rows(QImage &picture, QPoint origin)
        : m_first(reinterpret_cast<QRgb *>(picture.bits())),
          m_length(picture.bytesPerLine() / int(sizeof(QRgb))), m_origin(origin)
    { }

    QRgb *At(int x, int y) const
    {
        return m_first + qptrdiff(m_length) * (y + m_origin.y()) + x + m_origin.x();
    }

private:
    QRgb *const m_first;
    const int m_length;
    const QPoint m_origin;
};

bool HasColourWords(const QImage &image)
{
    return image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32;
}

// Branch-free, so that the compiler vectorises it.
CLOCK_WIDE_VECTORS void CoverBlack(const QRgb *from, QRgb *to, int count)
{
    for (int i = 0; i < count; ++i) {
        const QRgb pixel = from[i] | 0xff000000U;
        to[i] = pixel ^ (pixel == kKeyColour ? kKeyColour ^ kBlack : 0);
    }
}

CLOCK_WIDE_VECTORS void CoverOthers(const QRgb *from, QRgb *to, int count)
{
    for (int i = 0; i < count; ++i) {
        const QRgb pixel = from[i] | 0xff000000U;
        to[i] = pixel != kKeyColour ? pixel : to[i];
    }
}

void FillBlack(const Rows &screen, const QRect &region)
{
    for (int y = region.top(); y <= region.bottom(); ++y) {
        QRgb *const row = screen.At(region.x(), y);
        std::fill(row, row + region.width(), kBlack);
    }
}

void CoverWith(const Layer &layer, const Rows &screen, const QRect &region,
               void (*coverRow)(const QRgb *, QRgb *, int))
{
    const QImage image = HasColourWords(layer.image)
        ? layer.image
        : layer.image.convertToFormat(QImage::Format_ARGB32);
    const QPoint source = region.topLeft() - layer.geometry.topLeft();
    const uchar *line = image.constScanLine(source.y()) + source.x() * int(sizeof(QRgb));
    for (int y = region.top(); y <= region.bottom(); ++y, line += image.bytesPerLine())
        coverRow(reinterpret_cast<const QRgb *>(line), screen.At(region.x(), y), region.width());
}

// A quick test, which is enough for most layers.
bool IsBeside(const QRect &a, const QRect &b)
{
    return a.left() > b.right() || a.right() < b.left() || a.top() > b.bottom()
        || a.bottom() < b.top();
}

QRect ShownPart(const Layer &layer, const QRect &region)
{
    return QRect(layer.geometry.topLeft(), layer.image.size()) & layer.geometry & region;
}

} // namespace

QImage BlackScreen(QSize size)
{
    QImage screen(size, QImage::Format_RGB32);
    screen.fill(kBlack);
    return screen;
}

void ComposeScreen(QImage &picture, const QVector<Layer> &layers, const QRect &region,
                   QPoint origin)
{
    const QRect visible = region & picture.rect().translated(-origin);
    if (visible.isEmpty())
        return;
    const Rows screen(picture, origin);
    bool isBegun = false; // most regions have one layer, and are touched once
    for (const Layer &layer : layers) {
        if (IsBeside(layer.geometry, visible))
            continue;
        const QRect shown = ShownPart(layer, visible);
        if (shown.isEmpty())
            continue;
        if (!isBegun && shown != visible)
            FillBlack(screen, visible);
        CoverWith(layer, screen, shown, isBegun || shown != visible ? CoverOthers : CoverBlack);
        isBegun = true;
    }
    if (!isBegun)
        FillBlack(screen, visible);
}

QImage Magnified(const QImage &screen, int times)
{
    const qint64 pixels = qint64(screen.width()) * screen.height() * times * times;
    if (pixels > kMaximumMagnifiedPixels)
        return QImage();
    return screen.scaled(screen.size() * times, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

} // namespace ClockStage
