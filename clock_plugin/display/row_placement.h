// display/: positions of a clock's texts in its frame, from its settings and elements. Used by the
// drawers and by the checks in fit/.
#pragma once

#include "clock_node.h"
#include "compose/element_composer.h"
#include "display/frames/placements.h"
#include "display/row_layout.h"

#include <QSize>

namespace Lw::HNodeClock {

/// The settings of a digital clock, read from its node once per frame.
struct DigitalSettings
{
    explicit DigitalSettings(HClockNode &node);

    QSize area;
    /// An element takes part in the layout if its flag is not 0, and is drawn if it is 1.
    Rows flags;
    int space = 0;
    int swap = 0;
    bool onOneLine = false;
};

/// The element that a text row shows.
const Element &ElementIn(Row row, ElementComposer &elements);

/// Computes the top edges of a digital clock's rows with the layout for `count` rows, 0 to 5, and
/// the given gap. Tops that the layout does not set are unchanged.
void LayOutDigital(const DigitalSettings &settings, int count, int space, ElementComposer &elements,
                   Rows &tops);
/// The elements that are drawn, in the order of drawing: on one line, or at the tops given.
Placements PlaceDigital(const DigitalSettings &settings, ElementComposer &elements,
                        const Rows &tops);

/// The same for an analog clock's texts.
void LayOutAnalog(HClockNode &node, ElementComposer &elements, Rows &tops);
Placements PlaceAnalog(HClockNode &node, ElementComposer &elements, const Rows &tops);

} // namespace Lw::HNodeClock
