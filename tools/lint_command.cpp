// clock_tool lint: checks programs.
#include "commands.h"
#include "lint/program_lint.h"
#include "tool_arguments.h"
#include "xml_document.h"

#include <algorithm>
#include <cstdio>

namespace ClockTool {

namespace {

constexpr char kDescription[] =
    "Checks programs against the schema in docs/program.rng, and against what a clock really\n"
    "reads: unknown words, numbers, colours, time zones and daylight-saving rules that are not\n"
    "understood, codes outside their tables, fonts that are not installed, clocks with one Id.\n"
    "\n"
    "Each finding is a line on standard error: file:line: warning: what, and what is accepted.\n"
    "Notes tell what is worth knowing and count for nothing.\n"
    "\n"
    "Exit codes: 0 no warning, 1 warnings, 2 wrong command line, 3 a file cannot be read or is no\n"
    "XML. Of several programs each is checked, and the highest code counts.";

constexpr int kMostShown = 1000;

void Show(const Findings &findings, const QString &path)
{
    const QVector<Finding> sorted = findings.ByLine();
    for (const Finding &finding : sorted.mid(0, kMostShown)) {
        const char *kind = finding.severity == Severity::Note ? "note" : "warning";
        const QString place = finding.place.line > 0
            ? QStringLiteral("%1:%2").arg(path).arg(finding.place.line)
            : path;
        std::fprintf(stderr, "%s: %s: %s\n", qPrintable(place), kind, qPrintable(finding.text));
    }
    if (sorted.size() > kMostShown)
        Say(QStringLiteral("%1: and %2 more")
                .arg(path, QString::number(sorted.size() - kMostShown)));
}

CommandResult LintFile(const QString &path)
{
    const Result<QByteArray> contents = ClockProgram::ReadContents(path);
    if (const auto *failure = std::get_if<Failure>(&contents))
        return Report(*failure);
    const auto &bytes = std::get<QByteArray>(contents);
    const Result<QDomDocument> document = ClockProgram::ParseDocument(bytes, path);
    if (const auto *failure = std::get_if<Failure>(&document))
        return Report(*failure);
    const Findings findings = LintProgram(std::get<QDomDocument>(document), bytes, path);
    Show(findings, path);
    return findings.Warnings() == 0 ? ExitCode::Success : ExitCode::RuntimeFailure;
}

} // namespace

CommandResult RunLint(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("lint"), QString::fromLatin1(kDescription));
    tool.AddPositional(QStringLiteral("PROGRAM.xml..."), QStringLiteral("The programs to check."));
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    CommandResult worst = ExitCode::Success;
    const QStringList paths = tool.Positionals();
    for (const QString &path : paths)
        worst = std::max(worst, LintFile(path));
    return worst;
}

} // namespace ClockTool
