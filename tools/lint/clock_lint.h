// lint/: checks one clock of a program against what the clock actually imports.
#pragma once

#include "finding.h"

#include "carried_files.h"

#include <QDomElement>

#include <optional>

namespace Lw::HNodeClock {
class HClockNode;
}

namespace ClockTool {

/// Warns about every word and value that the clock ignores or misreads, about carried files that
/// are missing or differ, and about settings that conflict, as of an instant in milliseconds since
/// 1970-01-01 UTC.
void LintClock(const QDomElement &clock, ClockProgram::CarriedFiles &files, qint64 instant,
               Findings &findings);

/// The Id that the program gives the clock, if any.
std::optional<int> GivenId(const QDomElement &clock);

// Steps of LintClock(), in kind_check.cpp and whole_clock.cpp.

/// The kind that a misspelt type was probably meant to name, by which the children are checked; -1
/// where it is near none.
int MeantKind(const QDomElement &clock);

/// Reports a kind that does not exist.
void LintUnreadKind(const QDomElement &clock, Findings &findings);

/// Reports an element that is read as one kind (readKind), but whose "attribute" children make the
/// clock another (shownKind).
void LintKinds(const QDomElement &clock, int readKind, int shownKind, Findings &findings);

/// Warns about settings that are valid individually but wrong together. The node has been set from
/// the element and its "attribute" children.
void LintWhole(const QDomElement &clock, Lw::HNodeClock::HClockNode &node, qint64 instant,
               Findings &findings);

} // namespace ClockTool
