// studio/text: area elements as text, for copy, paste and duplicate.
#pragma once

#include "parsed_program.h"

#include <QPoint>
#include <QStringList>

namespace ClockStudio {

/// The areas of a text from the clipboard: one or more area elements, or a whole program. Empty
/// where it is neither.
QStringList AreasInText(const QString &text);

/// The area for insertion into a program: moved by `offset`, and with a new Id if its text sets
/// one. The new Id is added to takenIds.
QString AreaForProgram(const QString &areaText, QPoint offset, QSet<int> &takenIds);

/// The Ids that a program's text sets.
QSet<int> GivenIds(const ParsedProgram &parsed);

} // namespace ClockStudio
