// lint/: reports clocks that are wrong, or will be: by their daylight-saving rules or calendars.
#pragma once

#include "finding.h"

#include "node_maker.h"

namespace ClockTool {

/// Warns from 90 days before the end on, at an instant in UTC milliseconds. Before that a note
/// tells when rules end that a zone is known to leave.
void LintValidity(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                  qint64 instant, Findings &findings);

} // namespace ClockTool
