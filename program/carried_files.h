// Glyph files that travel with a program: the "file" elements of its clocks name them, relative to
// the directory of the program file.
#pragma once

#include "node_maker.h"

#include <QStringList>

namespace ClockProgram {

/// Turns the paths of the files recorded on the nodes into absolute ones. Returns a warning for
/// each file that is missing, is not an ordinary file, or differs from its recorded digest or size,
/// and for each clock that needs images and names none.
QStringList ResolveCarriedFiles(const Program &program, MadeNodes &made);

} // namespace ClockProgram
