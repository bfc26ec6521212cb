// Puts the pictures of the areas together to one screen.
#pragma once

#include <QImage>
#include <QRect>
#include <QVector>

namespace ClockStage {

/// The colour that plugins fill their frames with where nothing is drawn: it is see-through.
constexpr QRgb kKeyColour = qRgb(1, 2, 1);

struct Layer
{
    QRect geometry; ///< pixels on the screen; the picture is clipped to it
    QImage image;   ///< from the geometry's top left; null shows nothing
};

/// A screen that shows nothing.
QImage BlackScreen(QSize size);

/// Draws the layers in their order, the last one on top, over black. Only the pixels of the region
/// are touched. Every pixel but those of the key colour covers what lies below it. The picture has
/// 32 bits per pixel without alpha, and the screen's top left at the origin.
void ComposeScreen(QImage &picture, const QVector<Layer> &layers, const QRect &region,
                   QPoint origin = QPoint());

/// Pixels that a magnified screen may have: 256 MiB.
constexpr qint64 kMaximumMagnifiedPixels = 64LL << 20;

/// The same picture with each pixel drawn as a square of so many pixels a side, at least 1. Null
/// when it would have too many pixels.
QImage Magnified(const QImage &screen, int times);

} // namespace ClockStage
