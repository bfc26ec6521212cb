// Draws parts of glyph strips into an image of 32 bits a pixel.
//
// What is ink is written row by row, which for the small cells of a clock costs a tenth of a
// painter's call; anything else is drawn by a painter, begun when it is first needed. The pixels
// are those that a painter makes.
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
    /// For ARGB32 images whose pixels are opaque, and for premultiplied ones. The image is written
    /// from now on until the canvas is gone, and by nobody else.
    explicit PieceCanvas(QImage &image)
        : m_image(image), m_pixels(image.bits()), m_line(image.bytesPerLine())
    { }

    /// The rectangle lies within the image. The colour is written as it is, not blended.
    void Fill(const QRect &rect, QRgb colour);
    /// The part of an element within a clip, which lies within the image. A strip is drawn no
    /// further down than its element reaches.
    void Draw(const Element &element, const QPoint &topLeft, const QRect &clip);
    /// The source lies within the strip, and the target, as large, within the image.
    void Draw(const GlyphStrip &strip, const QRect &source, const QPoint &target);

private:
    QRgb *At(int x, int y)
    {
        return reinterpret_cast<QRgb *>(m_pixels + static_cast<qint64>(y) * m_line) + x;
    }
    void DrawInk(const GlyphStrip &strip, const QRect &source, const QPoint &target);

    QImage &m_image;
    uchar *m_pixels;
    int m_line;
    std::optional<QPainter> m_painter;
};

} // namespace Lw::HNodeClock
