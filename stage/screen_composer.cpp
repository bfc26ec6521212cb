#include "screen_composer.h"

#include <algorithm>

namespace ClockStage {

namespace {

constexpr QRgb kBlack = qRgb(0, 0, 0);

QRgb *RowOf(QImage &screen, int y, int x)
{
    return reinterpret_cast<QRgb *>(screen.scanLine(y)) + x;
}

bool HasColourWords(const QImage &image)
{
    return image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32;
}

void ComposeLayer(QImage &screen, const Layer &layer, const QRect &region)
{
    const QRect shown =
        QRect(layer.geometry.topLeft(), layer.image.size()) & layer.geometry & region;
    if (shown.isEmpty())
        return;
    const QImage image = HasColourWords(layer.image)
        ? layer.image
        : layer.image.convertToFormat(QImage::Format_ARGB32);
    const QPoint source = shown.topLeft() - layer.geometry.topLeft();
    for (int row = 0; row < shown.height(); ++row) {
        const auto *from =
            reinterpret_cast<const QRgb *>(image.constScanLine(source.y() + row)) + source.x();
        QRgb *to = RowOf(screen, shown.y() + row, shown.x());
        // Without a branch, so that it is done for several pixels at once.
        for (int column = 0; column < shown.width(); ++column) {
            const QRgb pixel = from[column] | 0xff000000U;
            to[column] = pixel != kKeyColour ? pixel : to[column];
        }
    }
}

} // namespace

QImage BlackScreen(QSize size)
{
    QImage screen(size, QImage::Format_RGB32);
    screen.fill(kBlack);
    return screen;
}

void ComposeScreen(QImage &screen, const QVector<Layer> &layers, const QRect &region)
{
    const QRect visible = region & screen.rect();
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
        QRgb *const row = RowOf(screen, y, visible.x());
        std::fill(row, row + visible.width(), kBlack);
    }
    for (const Layer &layer : layers)
        ComposeLayer(screen, layer, visible);
}

QImage Magnified(const QImage &screen, int times)
{
    const qint64 pixels = qint64(screen.width()) * screen.height() * times * times;
    if (pixels > kMaximumMagnifiedPixels)
        return QImage();
    return screen.scaled(screen.size() * times, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

} // namespace ClockStage
