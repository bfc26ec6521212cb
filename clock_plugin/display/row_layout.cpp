#include "display/row_layout.h"

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

// The rows shown, from top to bottom; elements from `count` on are unused.
struct Shown
{
    RowOrder rows = {};
    int count = 0;
};

Shown ShownRows(const RowOrder &order, const Rows &flags)
{
    Shown shown;
    for (const Row row : order) {
        if (flags[row] != 0)
            shown.rows[static_cast<std::size_t>(shown.count++)] = row;
    }
    return shown;
}

const RowOrder &OrderOfThreeOrMore(int swap)
{
    return swap == 1 ? kDateFirst : kWeekFirst;
}

int OddPixel(int space)
{
    return space % 2 != 0 ? 1 : 0;
}

// The extra pixel of an odd gap is above the centre line if the upper row is weekday or time; the
// top text, the date and a weekday moved up by the swap do not get it.
int UpperRowPixel(Row upper, bool swapped, int space)
{
    const bool takesIt = (upper == Row::Week && !swapped) || upper == Row::Time;
    return takesIt ? OddPixel(space) : 0;
}

} // namespace

int ClampPosition(long long position)
{
    constexpr long long kLimit = 1 << 24;
    return static_cast<int>(std::clamp(position, -kLimit, kLimit));
}

int CountRows(const Rows &flags)
{
    return ShownRows(kDateFirst, flags).count;
}

void LayOutOneRow(const DigitalArea &area, Rows &positions)
{
    for (const Row row : kDateFirst)
        positions[row] = area.height / 2 - area.heights[row] / 2;
}

void LayOutTwoRows(const DigitalArea &area, Rows &positions)
{
    Shown shown = ShownRows(kDateFirst, area.flags);
    if (shown.count != 2)
        return;
    const bool swapped = area.swap == 1 && shown.rows[0] == Row::Date && shown.rows[1] == Row::Week;
    if (swapped)
        std::swap(shown.rows[0], shown.rows[1]);
    const Row upper = shown.rows[0];
    const long long middle = area.height / 2;
    positions[upper] = ClampPosition(middle - area.space / 2 - area.heights[upper]
                                     - UpperRowPixel(upper, swapped, area.space));
    positions[shown.rows[1]] = ClampPosition(middle + area.space / 2);
}

void LayOutThreeRows(const DigitalArea &area, Rows &positions)
{
    const Shown shown = ShownRows(OrderOfThreeOrMore(area.swap), area.flags);
    if (shown.count != 3)
        return;
    const auto [upper, middle, lower, unused4, unused5] = shown.rows;
    const long long centre = area.height / 2;
    const long long middleTop = centre - area.heights[middle] / 2;
    positions[middle] = ClampPosition(middleTop);
    positions[upper] = ClampPosition(middleTop - area.space - area.heights[upper]);
    positions[lower] = ClampPosition(centre + area.space + area.heights[middle] / 2);
}

void LayOutFourRows(const DigitalArea &area, Rows &positions)
{
    const Shown shown = ShownRows(OrderOfThreeOrMore(area.swap), area.flags);
    if (shown.count != 4)
        return;
    const auto [first, second, third, fourth, unused] = shown.rows;
    const long long centre = area.height / 2;
    const long long secondTop = centre - area.space / 2 - area.heights[second];
    const long long thirdTop = centre + area.space / 2;
    positions[second] = ClampPosition(secondTop);
    positions[third] = ClampPosition(thirdTop);
    positions[first] = ClampPosition(secondTop - area.space - area.heights[first]);
    positions[fourth] = ClampPosition(thirdTop + area.heights[third] + area.space);
}

void LayOutFiveRows(const DigitalArea &area, Rows &positions)
{
    const auto &[first, second, third, fourth, fifth] = OrderOfThreeOrMore(area.swap);
    const long long centre = area.height / 2;
    const long long thirdTop = centre - area.heights[third] / 2;
    const long long secondTop = thirdTop - area.space - area.heights[second];
    const long long fourthTop = area.space + centre + area.heights[third] / 2;
    positions[third] = ClampPosition(thirdTop);
    positions[second] = ClampPosition(secondTop);
    positions[first] = ClampPosition(secondTop - area.space - area.heights[first]);
    positions[fourth] = ClampPosition(fourthTop);
    positions[fifth] = ClampPosition(fourthTop + area.space + area.heights[fourth]);
}

namespace {

// Two rows of an analog clock: the gap is centred on the anchor, and its odd pixel is above.
void StackTwo(long long anchor, int space, Row upper, Row lower, const Rows &heights,
              Rows &positions)
{
    positions[upper] = ClampPosition(anchor - space / 2 - heights[upper] - OddPixel(space));
    positions[lower] = ClampPosition(anchor + space / 2);
}

// Three rows: the middle one centred on the anchor, the lunar date above it, `lower` below it.
void StackThree(long long anchor, int space, Row middle, Row lower, const Rows &heights,
                Rows &positions)
{
    const long long middleTop = anchor - heights[middle] / 2;
    positions[middle] = ClampPosition(middleTop);
    positions.lunar = ClampPosition(middleTop - space - heights.lunar);
    positions[lower] = ClampPosition(anchor + space + heights[middle] / 2);
}

} // namespace

void LayOutAnalogRows(const AnalogArea &area, Rows &positions)
{
    const auto &[width, height, space, swap, flags, heights] = area;
    const bool upright = width < height;
    const int upperAnchor = upright ? height / 2 - width / 4 : height / 4;
    const int lowerAnchor = upright ? height / 2 + width / 4 : 3 * (height / 4);
    positions.topText = upperAnchor - heights.topText / 2;

    const int count = CountRows(LowerRows(flags));
    if (count == 1) {
        positions.date = lowerAnchor - heights.date / 2;
        positions.week = lowerAnchor - heights.week / 2;
        positions.lunar = lowerAnchor - heights.lunar / 2;
    } else if (count == 2 && flags.lunar != 0) {
        StackTwo(lowerAnchor, space, Row::Lunar, flags.week != 0 ? Row::Week : Row::Date, heights,
                 positions);
    } else if (count == 2 && swap == 1) {
        StackTwo(lowerAnchor, space, Row::Week, Row::Date, heights, positions);
    } else if (count == 2) {
        StackTwo(lowerAnchor, space, Row::Date, Row::Week, heights, positions);
    } else if (count == 3 && swap != 0) {
        StackThree(lowerAnchor, space, Row::Week, Row::Date, heights, positions);
    } else if (count == 3) {
        StackThree(lowerAnchor, space, Row::Date, Row::Week, heights, positions);
    }
}

long long LineStart(int areaWidth, int space, long long widths, int count)
{
    const long long total = widths + static_cast<long long>(space) * (count - 1);
    return areaWidth / 2 - total / 2;
}

} // namespace Lw::HNodeClock
