// compose/: an element of a clock: a canvas composed of pieces of glyph strips.
#pragma once

#include "compose/glyph_strip.h"
#include "image_bounds.h"

#include <QRect>
#include <QSize>

#include <algorithm>
#include <array>

namespace Lw::HNodeClock {

/// A full-height part of a strip and the x of its left edge in the element, in pixels. Compact, as
/// clocks hold many.
struct Piece
{
    const GlyphStrip *strip = nullptr; ///< valid until the next SetUp() of its composer
    quint32 stripKey = 0; ///< identifies the strip's contents, even after another SetUp()
    int sourceX = 0;
    quint16 width = 0;
    quint16 x = 0;
    GlyphRows rows; ///< of the strip that show anything

    bool operator==(const Piece &other) const
    {
        return stripKey == other.stripKey && sourceX == other.sourceX && width == other.width
            && x == other.x;
    }
    bool operator!=(const Piece &other) const { return !(*this == other); }
};

/// Pieces never overlap and are clipped to the canvas. At most twelve, including the lost ones.
class Element
{
public:
    Element() = default;
    /// Empty if the canvas would be larger than an image may be.
    Element(long long width, int height)
    {
        if (width > 0 && width <= kImageSide
            && WithinBounds({static_cast<int>(width), height}, kGlyphBytes))
            m_size = QSize(static_cast<int>(width), height);
    }
    /// A whole image as an element of its own.
    explicit Element(const GlyphStrip &image) : Element(image.Width(), image.Height())
    {
        Add(image, 0, image.Width());
    }

    int Width() const { return m_size.width(); }
    int Height() const { return m_size.height(); }
    const QSize &Size() const { return m_size; }
    int Count() const { return m_count; }
    const Piece &At(int index) const { return m_pieces[Index(index)]; }

    /// The pieces that are not shown at all, as they begin beyond the canvas.
    int LostCount() const { return m_lost; }
    const Piece &Lost(int index) const { return m_pieces[m_pieces.size() - 1 - Index(index)]; }

    /// Appends columns of a strip. Columns outside the strip are blank.
    void Add(const GlyphStrip &strip, int sourceX, int width)
    {
        if (width <= 0)
            return;
        if (!m_size.isEmpty() && sourceX >= 0 && sourceX < strip.Width() && HasRoom()) {
            const int present = std::min({width, strip.Width() - sourceX, kImageSide});
            const long long x = std::min<long long>(m_end, kImageSide); // clamps lost pieces only
            const bool visible = m_end < m_size.width();
            m_pieces[visible ? Index(m_count++) : m_pieces.size() - 1 - Index(m_lost++)] = {
                &strip,
                strip.Key(),
                sourceX,
                static_cast<quint16>(present),
                static_cast<quint16>(x),
                strip.ShownRows()};
        }
        m_end += width;
    }
    /// Appends one cell of a strip of equal cells.
    void AddCell(const GlyphStrip &strip, int cellWidth, int cell)
    {
        Add(strip, cell < 0 ? -1 : cell * cellWidth, cellWidth);
    }
    void Skip(int width) { m_end += width; }
    /// Clips the element at x and continues there.
    void ContinueAt(long long x)
    {
        m_end = x;
        for (; m_count > 0 && m_pieces[Index(m_count - 1)].x >= x; --m_count) {
            if (HasRoom())
                m_pieces[m_pieces.size() - 1 - Index(m_lost++)] = m_pieces[Index(m_count - 1)];
        }
        if (m_count > 0) {
            Piece &last = m_pieces[Index(m_count - 1)];
            last.width = static_cast<quint16>(qMin<long long>(last.width, x - last.x));
        }
    }

    bool operator==(const Element &other) const
    {
        return m_size == other.m_size && m_count == other.m_count
            && std::equal(m_pieces.begin(), m_pieces.begin() + m_count, other.m_pieces.begin());
    }
    bool operator!=(const Element &other) const { return !(*this == other); }

private:
    static std::size_t Index(int number) { return static_cast<std::size_t>(number); }
    bool HasRoom() const { return m_count + m_lost < static_cast<int>(m_pieces.size()); }

    QSize m_size {0, 0};
    long long m_end = 0; ///< where the next piece begins
    int m_count = 0;
    int m_lost = 0;
    std::array<Piece, 12> m_pieces; ///< shown ones from the front, lost ones from the back
};

} // namespace Lw::HNodeClock
