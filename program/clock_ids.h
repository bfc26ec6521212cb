// Identities of the clocks on one screen. A clock's glyph files carry its identity in their names,
// so two clocks with one identity would draw with each other's glyphs.
#pragma once

#include <QVector>

namespace ClockProgram {

struct ClockId
{
    int number = 0;
    bool given = false; ///< written in the program
};

/// The number of the clock at a place of the program, from 0, that is given none. It depends on
/// nothing else, so that a program has the same glyph files whenever it is played.
int IdOfPlace(int place);

/// The numbers to play with, in the order of the clocks and all different. A given number stays,
/// at its first clock; another one stays unless it is taken. Clocks that cannot keep theirs get
/// what the others leave free: the next number upwards from their own, within the range that
/// plugins draw from as long as that has one.
QVector<int> DistinctIds(const QVector<ClockId> &ids);

} // namespace ClockProgram
