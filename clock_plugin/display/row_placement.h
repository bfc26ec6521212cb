// Where the texts of a clock stand in its frame, from its settings and its elements. The drawers
// paint what these place, and checks look at the same.
#pragma once

#include "clock_node.h"
#include "compose/element_composer.h"
#include "display/frames/placements.h"
#include "display/row_layout.h"

#include <QSize>

namespace Lw::HNodeClock {

/// What a digital clock is drawn by, read from its node once for all uses in a frame.
struct DigitalSettings
{
    explicit DigitalSettings(HClockNode &node);

    QSize area;
    /// An element counts in the layout when its flag is not 0; it is drawn when it is 1.
    Rows flags;
    int space = 0;
    int swap = 0;
    bool onOneLine = false;
};

/// Works out the top edges of a digital clock's rows as the layout of that many rows, 0 to 5, with
/// the gap given. Tops that the layout leaves alone stay.
void LayOutDigital(const DigitalSettings &settings, int count, int space, ElementComposer &elements,
                   Rows &tops);
/// The elements that are drawn, in the order of drawing: on one line, or at the tops given.
Placements PlaceDigital(const DigitalSettings &settings, ElementComposer &elements,
                        const Rows &tops);

/// The same for an analog clock's texts.
void LayOutAnalog(HClockNode &node, ElementComposer &elements, Rows &tops);
Placements PlaceAnalog(HClockNode &node, ElementComposer &elements, const Rows &tops);

} // namespace Lw::HNodeClock
