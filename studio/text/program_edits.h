// studio/text: minimal edits to a program's elements that keep the text's own indentation and line
// ends.
#pragma once

#include "parsed_program.h"

#include <QRect>

namespace ClockStudio {

/// The first line ending in a text; "\n" if it has none.
QString LineEndOf(const QString &text);

/// Sets an attribute of an element; a new one is added after the existing ones.
TextEdit SetAttributeEdit(const ParsedProgram &parsed, int element, const QString &name,
                          const QString &value);

/// Removes an attribute; an empty edit if there is none.
TextEdit RemoveAttributeEdit(const ParsedProgram &parsed, int element, const QString &name);

/// Appends a child element. `xml` uses line feeds and is indented as if it were at the left margin.
TextEdit AppendChildEdit(const ParsedProgram &parsed, int parent, const QString &xml);

/// Removes an element, and its line if nothing else is on it.
TextEdit RemoveElementEdit(const ParsedProgram &parsed, int element);

/// The edits that move and resize an area; empty if nothing changes.
TextEdits GeometryEdits(const ParsedProgram &parsed, int area, const QRect &geometry);

TextEdits ScreenSizeEdits(const ParsedProgram &parsed, QSize size);

/// An area's text without its indentation, with line feeds.
QString PortableAreaText(const ParsedProgram &parsed, int area);

} // namespace ClockStudio
