// lint/: the checks of a whole program, each in a source file named for it.
#pragma once

#include "finding.h"

#include "node_maker.h"
#include "program_file.h"

#include <QByteArray>
#include <QDomDocument>

namespace ClockTool {

/// Checks structure, clocks and schema, as of an instant in milliseconds since 1970-01-01 UTC. The
/// document was read from the contents.
Findings LintProgram(const QDomDocument &document, const QByteArray &contents, const QString &path,
                     qint64 instant);

/// Reports areas wholly or partly off the screen. LintFit() reports them too, with the pixels.
void LintAreas(const ClockProgram::Program &program, Findings &findings);

/// Reports clocks whose glyph images have too many pixels to be drawn quickly or kept in memory.
/// Checks the glyph files that come with clocks, and for other clocks the sizes of the images they
/// would need; draws none. Changes the paths of the files recorded on the nodes.
void LintGlyphs(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                Findings &findings);

/// Reports picture clocks whose pictures cannot be read next to this program, where the player's
/// are too.
void LintStyles(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                Findings &findings);

/// Reports parts of clocks that are cut, covered, invisible or missing from their font in the year
/// that begins at an instant, in milliseconds since 1970-01-01 UTC.
void LintFit(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
             qint64 begin, Findings &findings);

/// Reports clocks that are wrong, or will be: by their daylight-saving rules or calendars. Warns
/// from 90 days before the end, as of an instant in UTC milliseconds. Before that a note says until
/// when the rules are right, if a zone is known to change them.
void LintValidity(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                  qint64 instant, Findings &findings);

} // namespace ClockTool
