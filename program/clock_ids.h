// program/: assigns distinct Ids to the clocks of a program. A clock's Id is part of its glyph
// files' names, so two clocks with the same Id would overwrite each other's glyphs.
#pragma once

#include <QVector>

namespace ClockProgram {

struct ClockId
{
    int number = 0;
    bool given = false; ///< written in the program
};

/// The default Id of the clock at an index in the program, from 0. It depends on nothing else, so
/// that a program uses the same glyph files each time it is played.
int DefaultIdAt(int index);

/// Distinct Ids in the order of the clocks. The first clock with a given number keeps it; a default
/// number is kept unless taken. Clocks that cannot keep theirs get the next free number above their
/// own, within the range that plugins choose from (1000 to 1999) while that has one, else above it.
QVector<int> DistinctIds(const QVector<ClockId> &ids);

} // namespace ClockProgram
