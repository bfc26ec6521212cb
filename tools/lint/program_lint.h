// lint/: lints a whole program: structure, clocks and schema.
#pragma once

#include "finding.h"

#include "program_file.h"

#include <QByteArray>
#include <QDomDocument>

namespace ClockTool {

/// Structure, clocks and schema. The contents are those that the document was read from.
Findings LintProgram(const QDomDocument &document, const QByteArray &contents, const QString &path);

/// Areas that are off the screen, or partly. LintFit() reports them too, with the pixels.
void LintAreas(const ClockProgram::Program &program, Findings &findings);

} // namespace ClockTool
