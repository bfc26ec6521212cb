// fit/: the glyph images of clocks, drawn in memory as the clock draws them, and cached.
#pragma once

#include "compose/clock_glyphs.h"
#include "compose/element.h"

#include <QHash>
#include <QString>

#include <array>

namespace ClockFit {

/// Font sizes in points, indexed by Lw::HNodeClock::GlyphFont.
using FontSizes = std::array<int, Lw::HNodeClock::kGlyphFontCount>;

/// A clock's font sizes; 0 for fonts its kind does not have.
FontSizes SizesOf(Lw::HNodeClock::HClockNode &node);

/// A cache for any number of clocks and sizes.
class GlyphImages
{
public:
    /// The images of a node's texts in these sizes, other settings unchanged; null images for
    /// elements that the clock does not show. The node and this object must outlive the source.
    Lw::HNodeClock::GlyphSource SourceFor(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes);

    /// Whether any shown text of this font has no image at its size, because it would be too large.
    bool LacksImages(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes,
                     Lw::HNodeClock::GlyphFont font);

    /// The text shown by an element composed of these images.
    QString TextOf(const Lw::HNodeClock::Element &element) const;
    /// The same of one of its pieces.
    QString TextOf(const Lw::HNodeClock::Piece &piece) const;
    /// The bounds of all ink that the font draws for a piece's text, in pixels of its image; it may
    /// extend beyond the image.
    QRect WholeInk(const Lw::HNodeClock::Piece &piece);

private:
    using GlyphStrip = Lw::HNodeClock::GlyphStrip;

    struct Drawn
    {
        QString text;
        int cells = 1; ///< cells of equal width, one character each; 1 for a text in one piece
        QString family;
        int points = 0;
        QSize size;          ///< of the image
        QVector<QRect> inks; ///< of each cell; filled lazily
        int CellWidth() const { return size.width() / cells; }
    };

    GlyphStrip Draw(const QString &family, int points, const QString &text, int cells);

    QHash<QString, GlyphStrip> m_strips; ///< by family, size and text
    QHash<quint32, Drawn> m_drawn;       ///< by the strip's key
};

} // namespace ClockFit
