// lint/: reports which parts of a program's clocks are cut, covered, invisible or missing from
// their font within a year.
#pragma once

#include "finding.h"

#include "node_maker.h"

namespace ClockTool {

/// Checks the year that begins at an instant, in milliseconds since 1970-01-01 UTC.
void LintFit(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
             qint64 begin, Findings &findings);

} // namespace ClockTool
