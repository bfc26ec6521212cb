// display/frames/: a shape that is painted once and then only blended: a hand that does not move
// for a minute, one of the sixty positions of a second hand, the centre cap. Antialiasing a hand,
// or rotating a picture, costs ten to twenty times as much as blending the result.
//
// It stores what painting adds to a transparent background, so it can be blended over whatever is
// below. The formulas in cached_shape.cpp are bit-exact with QPainter.
#pragma once

#include "display/frames/spans.h"

#include <QByteArray>
#include <QColor>
#include <QImage>

#include <functional>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

/// For opaque ARGB32 frames.
class CachedShape
{
public:
    /// Not made: not painted yet, or out of memory.
    CachedShape() = default;
    /// The shape of one opaque colour painted at the top left of a premultiplied image, covering
    /// `box` in the frame.
    static CachedShape OfColour(const QImage &painted, const QRect &box, const QColor &colour);
    /// The pixels in `box` of an image in PictureFormat(); the box has the same position in the
    /// frame.
    static CachedShape OfPicture(const QImage &painted, const QRect &box);
    /// The frame's pixels under this shape as a new shape that needs no blending; valid as long as
    /// the content below does not change.
    CachedShape AsShownOn(const QImage &frame) const;

    /// The format in which rotated pictures are painted for OfPicture(): the one in which QPainter
    /// blends such pictures onto ARGB32, which depends on how Qt was built. Format_Invalid if the
    /// formulas do not match this build of Qt: pictures cannot be cached then.
    static QImage::Format PictureFormat();

    bool IsMade() const { return m_kind != Kind::None; }
    int Bytes() const { return m_pixels.size() + m_spans.Bytes(); }
    const Spans &Covered() const { return m_spans; }
    /// Blends the shape onto a frame; `frame` points to its first byte.
    void Blend(uchar *frame, int bytesPerLine) const;

private:
    enum class Kind : quint8 { None, Colour, Pixels, WidePixels };

    template<class Ink>
    void Take(const Ink &ink, const QImage &painted, const QPoint &first, const QRect &box);
    template<class Ink>
    void BlendInk(const Ink &ink, uchar *frame, int bytesPerLine) const;

    Kind m_kind = Kind::None;
    QRgb m_colour = 0;
    Spans m_spans;
    // Per row, runs: the counts of soft (translucent) and solid pixels, one byte each, the soft
    // pixels, then the solid ones as QRgb, unless they are of the one colour.
    QByteArray m_pixels;
};

/// Paints a picture exactly as on the frame and stores it. The painter passed to paint() uses frame
/// coordinates; the picture is clipped to the box. (Painted with an offset onto a small image,
/// some pixels would round differently.)
CachedShape CachePicture(const QRect &box, const std::function<void(QPainter &)> &paint);

/// Paints shapes of one opaque colour for OfColour(), on a reused image.
class ColourCanvas
{
public:
    /// Caches the part of a shape within a frame of this size. `paint` gets a painter with a brush
    /// and no pen, and the offset by which to shift left and up. The offset is whole pixels and
    /// changes no coordinate's sign, so polygons and ellipses are rasterised as on the frame.
    CachedShape Cache(const QPolygonF &outline, const QColor &colour, bool smooth,
                      const QSize &frame,
                      const std::function<void(QPainter &, const QPoint &)> &paint);

private:
    QImage m_image; // reused, so that Qt keeps its paint engine
};

} // namespace Lw::HNodeClock
