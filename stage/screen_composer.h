// stage/: composes the pictures of the areas into one screen.
#pragma once

#include "key_colour.h"

#include <QImage>
#include <QRect>
#include <QVector>

namespace ClockStage {

/// The host's key colour as a pixel.
constexpr QRgb kKeyColour =
    qRgb(Lw::RedOf(Lw::kKeyColour), Lw::GreenOf(Lw::kKeyColour), Lw::BlueOf(Lw::kKeyColour));

struct Layer
{
    QRect geometry; ///< pixels on the screen; the picture is clipped to it
    QImage image;   ///< from the geometry's top left; null shows nothing
};

/// A screen that shows nothing.
QImage BlackScreen(QSize size);

/// Draws the layers in order, the last one on top, over black. Only the pixels of the region
/// are touched. Pixels of the key colour are transparent, all others opaque. The picture has
/// 32 bits per pixel without alpha, and the screen's top left at the origin.
void ComposeScreen(QImage &picture, const QVector<Layer> &layers, const QRect &region,
                   QPoint origin = QPoint());

/// The most pixels that a magnified screen may have: 64 Mi, which take 256 MiB.
constexpr qint64 kMaximumMagnifiedPixels = 64LL << 20;

/// The picture magnified `times` (at least 1) without smoothing. Null when it would have
/// too many pixels.
QImage Magnified(const QImage &screen, int times);

} // namespace ClockStage
