// studio/text: the program's text and what replaces parts of it.
// Areas as texts that are copied, pasted and duplicated.
#pragma once

#include "program_reading.h"

#include <QPoint>
#include <QStringList>

namespace ClockStudio {

/// The areas of a text from the clipboard: one or more area elements, or a whole program. Empty
/// where it is neither.
QStringList AreasInText(const QString &text);

/// The same area for a program that has others: at another place, and with an identity of its own
/// where its text gives one. Identities that are taken are in the set, to which the new one is
/// added.
QString AreaForProgram(const QString &areaText, QPoint offset, QSet<int> &takenIds);

/// The identities that a program's text gives its clocks.
QSet<int> GivenIds(const ProgramReading &reading);

} // namespace ClockStudio
