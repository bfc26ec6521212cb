// fit/: a bit mask of the ink pixels of a picture, with its position.
#pragma once

#include "compose/element.h"

#include <QHash>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QVector>

namespace ClockFit {

/// Ink within a box. Coordinates are pixels of the clock's area.
class InkMask
{
public:
    InkMask() = default;
    /// A mask without ink.
    explicit InkMask(const QRect &box);
    /// Every pixel of an image that has this colour.
    InkMask(const QImage &image, const QPoint &topLeft, QRgb colour);
    /// Every pixel of a picture that is not fully transparent.
    static InkMask OfPicture(const QImage &picture, const QPoint &topLeft);
    /// The ink of an element's pieces, or only of the chosen ones.
    InkMask(const Lw::HNodeClock::Element &element, const QPoint &topLeft,
            const QVector<bool> &chosen = {});

    const QRect &Box() const { return m_box; }
    /// The smallest rectangle around the ink; empty where there is none.
    QRect Bounds() const;
    int Count() const;
    bool HasInkIn(const QRect &rect) const;
    /// How many pixels are ink in both.
    int Common(const InkMask &other) const;
    /// Adds the other's ink; the box grows.
    void Unite(const InkMask &other);
    void MoveBy(const QPoint &distance) { m_box.translate(distance); }

private:
    const quint32 *Row(int y) const { return m_bits.constData() + (y - m_box.top()) * m_words; }
    /// Up to 32 columns from x on, the first as the lowest bit. Columns outside are not ink.
    quint32 Columns(int y, int x) const;
    void AddStrip(const Lw::HNodeClock::GlyphStrip &strip, const QRect &source,
                  const QPoint &target);
    template<typename IsInk>
    void AddImage(const QImage &image, const QPoint &target, IsInk isInk);

    QRect m_box;
    int m_words = 0; ///< per row
    QVector<quint32> m_bits;
};

/// Computes ink bounds of many elements made of the same strips; the bounds of each part of a strip
/// are cached.
class InkBounds
{
public:
    /// In the element's own pixels.
    QRect Of(const Lw::HNodeClock::Element &element, const QVector<bool> &chosen = {});

private:
    const QRect &OfPiece(const Lw::HNodeClock::Piece &piece, int height);

    QHash<quint64, QRect> m_known; ///< within the piece; by strip, first column and width
};

} // namespace ClockFit
