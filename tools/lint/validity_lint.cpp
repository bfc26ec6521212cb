// lint/: reports clocks that are wrong, or will be: by their daylight-saving rules or calendars.
#include "program_lint.h"

#include "clock_terms.h"

#include "hnode.h"

namespace ClockTool {

namespace {

using namespace ClockZones;

void Tell(const QDomElement &clock, const Validity &validity, qint64 instant, Findings &findings)
{
    const bool isRules = validity.end == ValidityEnd::Rules;
    QString advice;
    if (isRules)
        advice = FindingWords::tr("; \"clock_tool zone --refresh\" updates them")
            + (instant < validity.until ? FindingWords::tr(" from then on") : QString());
    if (IsDue(validity, instant))
        findings.Warn(At(clock), TextOf(validity) + advice);
    else if (isRules)
        findings.Note(At(clock), TextOf(validity));
}

} // namespace

void LintValidity(const ClockProgram::Program &program, const ClockProgram::MadeNodes &made,
                  qint64 instant, Findings &findings)
{
    RulesEnds rules;
    for (int i = 0; i < program.areas.size(); ++i) {
        const auto terms = ClockStage::TermsOf(made.nodes[static_cast<std::size_t>(i)].node.get());
        const auto validity = terms ? ValidityOf(*terms, instant, rules) : std::nullopt;
        if (!validity)
            continue;
        Findings found;
        Tell(program.areas[i].element, *validity, instant, found);
        findings.AddOfClock(i + 1, found);
    }
}

} // namespace ClockTool
