// fit/: the texts of one clock and their positions at any instant, as the drawer would paint them.
#pragma once

#include "fit.h"
#include "ink_mask.h"

#include "compose/element_composer.h"
#include "display/row_placement.h"

#include <optional>
#include <vector>

namespace ClockFit {

struct PlacedPart
{
    Part part;
    const Lw::HNodeClock::Element *element; ///< valid until the next call of the scene
    QPoint topLeft;
};

class ClockScene
{
public:
    ClockScene(Lw::HNodeClock::HClockNode &node, const Lw::HNodeClock::GlyphSource &source);

    /// The texts in the order of drawing.
    std::vector<PlacedPart> TextsAt(qint64 utc);
    /// The element of one text part; null if it is not drawn.
    const Lw::HNodeClock::Element *TextAt(qint64 utc, Part part);
    /// The time element of a digital clock, even if the clock hides it.
    const Lw::HNodeClock::Element &TimeAt(qint64 utc);
    /// Whether an analog clock's badge shows AM.
    bool IsMorningAt(qint64 utc);

private:
    Lw::HNodeClock::HClockNode &m_node;
    std::optional<Lw::HNodeClock::DigitalSettings> m_digital; ///< of a digital clock only
    Lw::HNodeClock::ElementComposer m_composer;
    Lw::HNodeClock::Rows m_tops;
};

} // namespace ClockFit
