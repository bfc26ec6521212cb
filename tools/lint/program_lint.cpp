#include "program_lint.h"

#include "clock_lint.h"
#include "schema_check.h"
#include "suggestion.h"

#include "clock_sdk_tables.h"
#include "node_keys.h"

#include <QHash>

namespace ClockTool {

namespace {

using namespace ClockProgram;

/// Warns of what prevents playback, or needs too much memory. The failure's text begins with
/// path and line.
void CheckStructure(const QDomDocument &document, const QString &path, Findings &findings)
{
    const Result<Program> program = InterpretProgram(document, path);
    const MaybeFailure failure = program ? CheckFrameBytes(*program) : program.Error();
    if (!failure)
        return;
    const QString located = failure->text.mid(path.size() + 1);
    const int colon = located.indexOf(QLatin1Char(':'));
    findings.Warn({located.left(colon).toInt(), {}, {}, 0}, located.mid(colon + 2));
}

class ClockWalk
{
public:
    ClockWalk(const QString &path, qint64 instant, Findings &findings)
        : m_files(path), m_instant(instant), m_findings(findings)
    { }

    /// The element of an area; areas count from 1.
    void Check(int area, const QDomElement &element)
    {
        const QString tag = QLatin1String(Lw::HNodeClock::Sdk::kClock);
        if (element.tagName() != tag) {
            m_findings.Warn(
                At(element),
                QStringLiteral("no plugin claims <%1>; accepted: <%2>").arg(element.tagName(), tag),
                tag);
            return;
        }
        Findings found;
        LintClock(element, m_files, m_instant, found);
        CheckId(element, found);
        m_findings.AddOfClock(area, found);
    }

private:
    void CheckId(const QDomElement &clock, Findings &findings)
    {
        const std::optional<int> id = GivenId(clock);
        if (!id)
            return;
        const auto other = m_lines.constFind(*id);
        if (other == m_lines.constEnd())
            m_lines.insert(*id, clock.lineNumber());
        else
            findings.Warn(
                At(clock, QLatin1String(kIdKey)),
                QStringLiteral("the Id %1 is already used by the clock in line %2, whose glyph "
                               "files it would share; accepted: any other number")
                    .arg(*id)
                    .arg(*other));
    }

    CarriedFiles m_files;
    qint64 m_instant;
    Findings &m_findings;
    QHash<int, int> m_lines; // of the first clock with an Id
};

void CheckClocks(const QDomDocument &document, const QString &path, qint64 instant,
                 Findings &findings)
{
    ClockWalk walk(path, instant, findings);
    int number = 0;
    for (QDomElement area = document.documentElement().firstChildElement(kAreaTag); !area.isNull();
         area = area.nextSiblingElement(kAreaTag)) {
        ++number;
        const QDomElement element = area.firstChildElement();
        if (!element.isNull())
            walk.Check(number, element);
    }
}

/// Adds schema errors for lines that have no other warning.
void CheckSchema(const QByteArray &contents, Findings &findings)
{
    const SchemaReport report = CheckAgainstSchema(contents);
    if (report.isVague && findings.Warnings() > 0)
        return;
    for (const Finding &fault : report.faults) {
        if (!findings.HasWarning(fault.place.line))
            findings.Add(fault);
    }
}

} // namespace

Findings LintProgram(const QDomDocument &document, const QByteArray &contents, const QString &path,
                     qint64 instant)
{
    Findings findings;
    CheckStructure(document, path, findings);
    CheckClocks(document, path, instant, findings);
    CheckSchema(contents, findings);
    return findings;
}

void LintAreas(const Program &program, Findings &findings)
{
    const QRect screen(QPoint(0, 0), program.size);
    for (const ProgramArea &area : program.areas) {
        const QDomElement element = area.element.parentNode().toElement();
        if (!screen.intersects(area.geometry))
            findings.Warn(At(element),
                          QStringLiteral("the area is outside the screen of %1 x %2 pixels")
                              .arg(program.size.width())
                              .arg(program.size.height()));
        else if (!screen.contains(area.geometry))
            findings.Note(At(element), QStringLiteral("the area extends beyond the screen"));
    }
}

} // namespace ClockTool
