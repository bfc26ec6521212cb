// The glyph images of clocks, drawn in memory as the clock draws them, each text once.
#pragma once

#include "compose/clock_glyphs.h"
#include "compose/element.h"

#include <QHash>
#include <QString>

#include <array>

namespace ClockFit {

/// Sizes in points by the font, as Lw::HNodeClock::GlyphFont numbers them.
using FontSizes = std::array<int, Lw::HNodeClock::kGlyphFontCount>;

/// The sizes that a clock is set to; 0 for fonts that its kind does not have.
FontSizes SizesOf(Lw::HNodeClock::HClockNode &node);

/// Keeps what it has drawn, for any number of clocks and sizes.
class GlyphImages
{
public:
    /// The images of a node's texts in these sizes, other settings as they are. Of elements that
    /// the clock does not show there is none. The node and this must outlive the source.
    Lw::HNodeClock::GlyphSource SourceFor(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes);

    /// Whether a text of a font that the clock shows has no image in its size.
    bool LacksImages(Lw::HNodeClock::HClockNode &node, const FontSizes &sizes,
                     Lw::HNodeClock::GlyphFont font);

    /// What an element made of these images says.
    QString TextOf(const Lw::HNodeClock::Element &element) const;

private:
    using GlyphStrip = Lw::HNodeClock::GlyphStrip;

    struct Drawn
    {
        QString text;
        int cells = 1; ///< of equal width, one character each; 1 for a text as a whole
        int width = 0; ///< of the image
    };

    GlyphStrip Draw(const QString &family, int points, const QString &text, int cells);

    QHash<QString, GlyphStrip> m_strips; ///< by family, size and text
    QHash<quint32, Drawn> m_drawn;       ///< by the strip's key
};

} // namespace ClockFit
