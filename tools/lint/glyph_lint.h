// lint/: reports clocks whose glyph images are too many pixels to be made quickly or kept in
// memory.
#pragma once

#include "finding.h"

#include "node_maker.h"

namespace ClockTool {

/// Checks the files that clocks bring along, and for other clocks the sizes of the images they
/// would need; draws none. Changes the paths of the files recorded on the nodes.
void LintGlyphs(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                Findings &findings);

} // namespace ClockTool
