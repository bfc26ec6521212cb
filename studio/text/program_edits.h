// studio/text: the program's text and what replaces parts of it.
// The smallest edits that make a change to elements of a program, in the text's own style: its
// indentation, its line ends.
#pragma once

#include "program_reading.h"

#include <QRect>

namespace ClockStudio {

/// The line end that a text uses first; a line feed where it has none.
QString LineEndOf(const QString &text);

/// Sets an attribute of an element, after its others where it is new.
TextEdit SetAttributeEdit(const ProgramReading &reading, int element, const QString &name,
                          const QString &value);

/// Takes an attribute away; nothing is removed where there is none.
TextEdit RemoveAttributeEdit(const ProgramReading &reading, int element, const QString &name);

/// Puts an element behind the last child. Its lines are separated by line feeds and indented as if
/// it stood at the margin.
TextEdit AppendChildEdit(const ProgramReading &reading, int parent, const QString &xml);

/// Removes an element, with its line where it has one of its own.
TextEdit RemoveElementEdit(const ProgramReading &reading, int element);

/// The edits that move and resize an area; empty where it is there already.
TextEdits GeometryEdits(const ProgramReading &reading, int area, const QRect &geometry);

TextEdits ScreenSizeEdits(const ProgramReading &reading, QSize size);

/// An area's text as if it stood at the margin, with line feeds.
QString PortableAreaText(const ProgramReading &reading, int area);

} // namespace ClockStudio
