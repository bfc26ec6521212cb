// A shape that was painted once and is only blended from then on: a hand that stays, one of the
// sixty positions of a second hand, the disc over the hands. Antialiasing a hand, or turning a
// picture, costs ten to twenty times as much as blending what comes of it.
//
// What is kept is what painting adds to transparent ground, so it can be blended over whatever is
// below. The formulas in kept_shape.cpp give the bytes that a painter gives.
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

/// For frames of ARGB32 whose pixels are opaque.
class KeptShape
{
public:
    /// Not made: not painted yet, or without memory.
    KeptShape() = default;
    /// The top left of a premultiplied image, onto which one shape of one opaque colour was
    /// painted, as the pixels of a box in the frame.
    static KeptShape OfColour(const QImage &painted, const QRect &box, const QColor &colour);
    /// The pixels of a box in an image of PictureFormat(), and in the frame.
    static KeptShape OfPicture(const QImage &painted, const QRect &box);
    /// The pixels of a frame where this shape is on it, to be put there again without blending:
    /// right for as long as what is below stays the same.
    KeptShape AsShownOn(const QImage &frame) const;

    /// The format in which a smoothly turned picture is painted to be kept: that of the numbers
    /// with which painters blend such pictures onto ARGB32. It depends on how Qt was built.
    /// Format_Invalid where the formulas here do not fit: then nothing can be kept.
    static QImage::Format PictureFormat();

    bool IsMade() const { return m_kind != Kind::None; }
    int Bytes() const { return m_pixels.size() + m_spans.Bytes(); }
    const Spans &Covered() const { return m_spans; }
    /// Blends the shape onto a frame, given by its first byte.
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
    // Of each row, runs of: how many soft pixels and how many solid ones, then the soft pixels,
    // then the solid ones as QRgb, unless they are of the one colour.
    QByteArray m_pixels;
};

/// Paints a picture as the frame's painter would, and keeps it. The painter that paint is given has
/// the coordinates of the frame, within which the picture covers only pixels of the box. (Painted
/// further left or up, onto a small image, some pixels would be rounded otherwise.)
KeptShape KeepPicture(const QRect &box, const std::function<void(QPainter &)> &paint);

/// Paints shapes of one opaque colour to keep them, onto an image that is used again and again.
class ColourCanvas
{
public:
    /// Keeps what of a shape is within a frame of a size. Paint is given a painter with brush and
    /// without pen, and how far to the left and up it has to paint. That is whole pixels and
    /// changes no coordinate's sign, so polygons and ellipses are rasterised as on the frame.
    KeptShape Keep(const QPolygonF &outline, const QColor &colour, bool smooth, const QSize &frame,
                   const std::function<void(QPainter &, const QPoint &)> &paint);

private:
    QImage m_image; // with it Qt keeps its paint engine
};

} // namespace Lw::HNodeClock
