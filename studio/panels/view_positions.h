// studio/panels: converts positions between a text and the editor's copy, where every line end is
// one character.
#pragma once

#include <QString>

namespace ClockStudio {

/// A text as QPlainTextEdit holds it, with line feeds only.
QString InEditor(QString text);
/// Where a position of the text is in the editor.
int ToEditor(const QString &text, int position);
/// Where a position of the editor is in the text.
int FromEditor(const QString &text, int position);

} // namespace ClockStudio
