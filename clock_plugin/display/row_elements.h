// display/: the element that each text row of a clock shows.
#pragma once

#include "compose/element_composer.h"
#include "display/row_layout.h"

namespace Lw::HNodeClock {

inline const Element &ElementIn(Row row, ElementComposer &elements)
{
    switch (row) {
    case Row::TopText:
        return elements.TopText();
    case Row::Date:
        return elements.Date();
    case Row::Week:
        return elements.Week();
    case Row::Time:
        return elements.Time();
    case Row::Lunar:
        break;
    }
    return elements.Lunar();
}

/// The heights of the rows whose entry in `measured` is not 0. The others are 0, and their elements
/// are not composed at all.
inline Rows HeightsOf(ElementComposer &elements, const Rows &measured)
{
    Rows heights;
    for (const Row row : kDateFirst) {
        if (measured[row] != 0)
            heights[row] = ElementIn(row, elements).Height();
    }
    return heights;
}

} // namespace Lw::HNodeClock
