// Where the text rows of a clock stand: the y of each row's top edge, from heights, gap and order.
// Pure functions of their arguments; pixels, y grows downwards. All halves are integer halves
// rounded toward zero. Sums are taken in 64 bits and clamped, so that no spacing overflows.
#pragma once

namespace Lw::HNodeClock {

/// One number a row: a height, a position or a flag.
struct Rows
{
    int topText = 0;
    int date = 0;
    int week = 0;
    int time = 0;
    int lunar = 0;
};

/// What the rows of a digital clock are laid out from.
struct DigitalArea
{
    int height = 0; ///< of the area
    int space = 0;  ///< gap between neighbouring rows; may be negative
    int swap = 0;
    Rows flags; ///< which rows take part: the non-zero ones
    Rows heights;
};

/// How many rows of a digital clock take part in the layout: those with a non-zero flag.
int CountRows(const Rows &flags);

/// The rows of a digital clock around the middle of the area. The positions of rows that do not
/// take part stay as they are, except that a single row positions all five. The date
/// stands above the week with two rows and below it with more; a swap of exactly 1 exchanges them.
/// Nothing changes when the number of rows taking part is not the function's own (one and five
/// rows do not ask).
void LayOutOneRow(const DigitalArea &area, Rows &positions);
void LayOutTwoRows(const DigitalArea &area, Rows &positions);
void LayOutThreeRows(const DigitalArea &area, Rows &positions);
void LayOutFourRows(const DigitalArea &area, Rows &positions);
void LayOutFiveRows(const DigitalArea &area, Rows &positions);

/// The rows of an analog clock: the top text around the upper anchor always; date, week and lunar
/// date around the lower anchor, by their number. Swap exchanges date and week: with two rows when
/// it is exactly 1, with three when it is not 0. The time row stays as it is.
void LayOutAnalogRows(int areaWidth, int areaHeight, int space, int swap, const Rows &flags,
                      const Rows &heights, Rows &positions);

/// The left edge of the first element on one line, given the sum of the widths of the elements
/// that count and their number. However far outside it lies, an element in the middle of others may
/// lie within the area: positions are clamped one by one.
long long LineStart(int areaWidth, int space, long long widths, int count);

/// A position plus distances, clamped to where nothing is drawn any more.
int ClampPosition(long long position);

} // namespace Lw::HNodeClock
