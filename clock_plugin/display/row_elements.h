// The element that stands in each text row of a clock.
#pragma once

#include "compose/element_composer.h"
#include "display/row_layout.h"

#include <array>
#include <cstddef>

namespace Lw::HNodeClock {

struct RowElement
{
    Row row;
    const Element &(ElementComposer::*element)();

    const Element &Of(ElementComposer &elements) const { return (elements.*element)(); }
};

inline constexpr std::array<RowElement, 5> kRowElements = {{
    {&Rows::topText, &ElementComposer::TopText},
    {&Rows::date, &ElementComposer::Date},
    {&Rows::week, &ElementComposer::Week},
    {&Rows::time, &ElementComposer::Time},
    {&Rows::lunar, &ElementComposer::Lunar},
}};

constexpr RowElement ElementOf(Row row)
{
    std::size_t i = 0;
    while (kRowElements[i].row != row)
        ++i;
    return kRowElements[i];
}

constexpr std::array<RowElement, 5> ElementsIn(const RowOrder &order)
{
    return {{ElementOf(order[0]), ElementOf(order[1]), ElementOf(order[2]), ElementOf(order[3]),
             ElementOf(order[4])}};
}

/// The heights of the rows that are measured: the non-zero ones. The others are 0, and their
/// elements are not composed at all.
inline Rows HeightsOf(ElementComposer &elements, const Rows &measured)
{
    Rows heights;
    for (const RowElement &row : kRowElements) {
        if (measured.*row.row != 0)
            heights.*row.row = row.Of(elements).Height();
    }
    return heights;
}

} // namespace Lw::HNodeClock
