// Checks a whole program.
#pragma once

#include "finding.h"

#include <QByteArray>
#include <QDomDocument>

namespace ClockTool {

/// Structure, clocks and schema. The contents are those that the document was read from.
Findings LintProgram(const QDomDocument &document, const QByteArray &contents, const QString &path);

} // namespace ClockTool
