// display/: layout of a clock's text rows: the y of each row's top edge from heights, gap and
// order. Pure functions; in pixels, y grows downwards. All divisions by two round toward zero. Sums
// are computed in 64 bits and clamped, so that no gap overflows.
#pragma once

#include <array>

namespace Lw::HNodeClock {

enum class Row { TopText, Date, Week, Time, Lunar };

/// One number per row: a height, a position or a flag.
struct Rows
{
    int topText = 0;
    int date = 0;
    int week = 0;
    int time = 0;
    int lunar = 0;

    constexpr int operator[](Row row) const { return const_cast<Rows &>(*this)[row]; }
    constexpr int &operator[](Row row);
};

constexpr int &Rows::operator[](Row row)
{
    switch (row) {
    case Row::TopText:
        return topText;
    case Row::Date:
        return date;
    case Row::Week:
        return week;
    case Row::Time:
        return time;
    case Row::Lunar:
        break;
    }
    return lunar;
}

inline constexpr Rows kEveryRow {1, 1, 1, 1, 1};

/// The two orders of the rows, from top to bottom or from left to right.
using RowOrder = std::array<Row, 5>;
inline constexpr RowOrder kDateFirst = {Row::TopText, Row::Date, Row::Week, Row::Time, Row::Lunar};
inline constexpr RowOrder kWeekFirst = {Row::TopText, Row::Week, Row::Date, Row::Time, Row::Lunar};

/// What the rows of a digital clock are laid out from.
struct DigitalArea
{
    int height = 0; ///< of the area
    int space = 0;  ///< gap between neighbouring rows, in pixels; may be negative
    int swap = 0;   ///< 1 exchanges date and weekday
    Rows flags;     ///< which rows take part: the non-zero ones
    Rows heights;
};

/// What the rows of an analog clock are laid out from.
struct AnalogArea
{
    int width = 0;
    int height = 0;
    int space = 0; ///< gap between neighbouring rows; may be negative
    int swap = 0;  ///< exchanges date and weekday; see LayOutAnalogRows()
    Rows flags;    ///< which of the lower rows take part: the non-zero ones
    Rows heights;
};

/// How many rows of a digital clock take part in the layout: those with a non-zero flag.
int CountRows(const Rows &flags);

/// The rows of a digital clock around the middle of the area. The positions of rows that do not
/// take part stay as they are, except that a single row positions all five. The date is above the
/// weekday with two rows and below it with more; a swap of exactly 1 exchanges them. LayOutTwoRows
/// to LayOutFourRows do nothing if a different number of rows takes part.
void LayOutOneRow(const DigitalArea &area, Rows &positions);
void LayOutTwoRows(const DigitalArea &area, Rows &positions);
void LayOutThreeRows(const DigitalArea &area, Rows &positions);
void LayOutFourRows(const DigitalArea &area, Rows &positions);
void LayOutFiveRows(const DigitalArea &area, Rows &positions);

/// The rows that an analog clock has around its lower anchor; the others become 0.
constexpr Rows LowerRows(Rows rows)
{
    rows.topText = 0;
    rows.time = 0;
    return rows;
}

/// The rows of an analog clock: the top text always around the upper anchor (the vertical centre of
/// the upper texts); date, weekday and lunar date around the lower anchor, by their number. Swap
/// exchanges date and weekday: with two rows when it is exactly 1, with three when it is not 0. The
/// time row stays as it is.
void LayOutAnalogRows(const AnalogArea &area, Rows &positions);

/// The left edge of the first element on one line, given the sum of the widths of the elements that
/// take part and their number. Not clamped: even if it is far outside, a later element may be
/// within the area.
long long LineStart(int areaWidth, int space, long long widths, int count);

/// A position, clamped far outside every frame so that sums cannot overflow.
int ClampPosition(long long position);

} // namespace Lw::HNodeClock
