// lint/: reports clocks whose glyph images are too many pixels to be made quickly or kept in
// memory.
#pragma once

#include "finding.h"

#include "node_maker.h"

namespace ClockTool {

/// Looks at the files that clocks carry, and of the other clocks at the images that would be made.
/// None is made for it. Changes the paths of the files recorded on the nodes.
void LintGlyphs(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                Findings &findings);

} // namespace ClockTool
