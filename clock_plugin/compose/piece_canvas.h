// compose/: draws parts of glyph strips into an image of 32 bits per pixel.
//
// Ink is written row by row, which for the small cells of a clock takes a tenth of the time of a
// QPainter call; everything else is drawn by a QPainter, created lazily. The result is identical to
// QPainter's.
#pragma once

#include "compose/element.h"
#include "compose/glyph_strip.h"

#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRect>

#include <optional>

namespace Lw::HNodeClock {

class PieceCanvas
{
public:
    /// For opaque ARGB32 images, and for premultiplied ones. Nothing else may write to the image
    /// while the canvas exists.
    explicit PieceCanvas(QImage &image)
        : m_image(image), m_pixels(image.bits()), m_line(image.bytesPerLine())
    { }

    /// The rectangle must be within the image. The colour is written as it is, not blended.
    void Fill(const QRect &rect, QRgb colour);
    /// The part of an element within a clip, which must be within the image. Strips are cut off at
    /// the element's height.
    void Draw(const Element &element, const QPoint &topLeft, const QRect &clip);
    /// `source` must be within the strip, and a rectangle of its size at `target` within the image.
    void Draw(const GlyphStrip &strip, const QRect &source, const QPoint &target);
    void DrawInk(const GlyphPixels &ink, const QRect &source, const QPoint &target);

private:
    QRgb *At(int x, int y)
    {
        return reinterpret_cast<QRgb *>(m_pixels + static_cast<qint64>(y) * m_line) + x;
    }
    QImage &m_image;
    uchar *m_pixels;
    int m_line;
    std::optional<QPainter> m_painter;
};

} // namespace Lw::HNodeClock
