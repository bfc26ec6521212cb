// lint/: the checks of a whole program, each in a source file named for it.
#pragma once

#include "finding.h"

#include "node_maker.h"
#include "program_file.h"

#include <QByteArray>
#include <QDomDocument>

namespace ClockTool {

/// Structure, clocks and schema. The contents are those that the document was read from.
Findings LintProgram(const QDomDocument &document, const QByteArray &contents, const QString &path);

/// Areas that are off the screen, or partly. LintFit() reports them too, with the pixels.
void LintAreas(const ClockProgram::Program &program, Findings &findings);

/// Clocks whose glyph images are too many pixels to be made quickly or kept in memory. Checks the
/// files that clocks bring along, and for other clocks the sizes of the images they would need;
/// draws none. Changes the paths of the files recorded on the nodes.
void LintGlyphs(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                Findings &findings);

/// Picture clocks whose pictures cannot be read beside this program, where the player's are too.
void LintStyles(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                Findings &findings);

/// Parts of clocks that are cut, covered, invisible or missing from their font in the year that
/// begins at an instant, in milliseconds since 1970-01-01 UTC.
void LintFit(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
             qint64 begin, Findings &findings);

/// Clocks that are wrong, or will be: by their daylight-saving rules or calendars. Warns from 90
/// days before the end on, at an instant in UTC milliseconds. Before that a note tells when rules
/// end that a zone is known to leave.
void LintValidity(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                  qint64 instant, Findings &findings);

} // namespace ClockTool
