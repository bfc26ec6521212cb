// Identities of the clocks on one screen. A clock's glyph files carry its identity in their names,
// so two clocks with one identity would draw with each other's glyphs.
#pragma once

#include <QVector>

namespace ClockProgram {

struct ClockId
{
    int number = 0;
    bool given = false; ///< written in the program rather than drawn by the plugin
};

/// The numbers to play with, in the order of the clocks and all different. A given number stays,
/// at its first clock; a drawn one stays unless it is taken. The others get the next free number,
/// which is sought upwards from their own through the range that plugins draw from.
QVector<int> DistinctIds(const QVector<ClockId> &ids);

} // namespace ClockProgram
