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

/// How many rows of a digital clock take part in the layout: those with a non-zero flag.
int CountRows(const Rows &flags);

/// The rows of a digital clock around the middle of the area. Flags say which rows take part; the
/// positions of the others stay as they are, except that a single row positions all five. The date
/// stands above the week with two rows and below it with more; a swap of exactly 1 exchanges them.
/// Nothing changes when the number of rows taking part is not the function's own (one and five
/// rows do not ask).
void LayOutOneRow(int areaHeight, const Rows &heights, Rows &positions);
void LayOutTwoRows(int areaHeight, int space, int swap, const Rows &flags, const Rows &heights,
                   Rows &positions);
void LayOutThreeRows(int areaHeight, int space, int swap, const Rows &flags, const Rows &heights,
                     Rows &positions);
void LayOutFourRows(int areaHeight, int space, int swap, const Rows &flags, const Rows &heights,
                    Rows &positions);
void LayOutFiveRows(int areaHeight, int space, int swap, const Rows &heights, Rows &positions);

/// The rows of an analog clock: the top text around the upper anchor always; date, week and lunar
/// date around the lower anchor, by their number. Swap exchanges date and week: with two rows when
/// it is exactly 1, with three when it is not 0. The time row stays as it is.
void LayOutAnalogRows(int areaWidth, int areaHeight, int space, int swap, const Rows &flags,
                      const Rows &heights, Rows &positions);

/// The left edge of the first element on one line, given the sum of the widths of the elements
/// that count and their number.
int LineStart(int areaWidth, int space, long long widths, int count);

/// A position plus distances, clamped to where nothing is drawn any more.
int ClampPosition(long long position);

} // namespace Lw::HNodeClock
