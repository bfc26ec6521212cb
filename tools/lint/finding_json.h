// lint/: findings for programs that read them.
#pragma once

#include "finding.h"

#include <QByteArray>

namespace ClockTool {

/// One JSON object on one line, with a newline. The keys are stable; others may be added.
///
///     file        the program, as it was named
///     line        of the element, from 1; 0 for the file
///     clock       counted from 1 in the order of the areas; 0 outside all clocks
///     element     the element's name; empty for the file
///     attribute   the XML attribute, or the key of an "attribute" child; empty for neither
///     severity    "warning" or "note"
///     text        a sentence for people, which may change
///     suggestion  what to write in place of the attribute's value or of the name; empty for none
QByteArray FindingJson(const Finding &finding, const QString &file);

} // namespace ClockTool
