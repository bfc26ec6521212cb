// tools/: clock_tool lint, which checks programs.
#include "clock_finder.h"
#include "command_support.h"
#include "commands.h"
#include "lint/finding.h"
#include "lint/program_lint.h"
#include "tool_arguments.h"
#include "whole_file.h"
#include "xml_document.h"

#include "hnode.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace ClockTool {

namespace {

constexpr char kDescription[] =
    "Checks programs against the schema in docs/program.rng, and against what a clock actually\n"
    "reads: unknown words; malformed numbers, colours, time zones and daylight-saving\n"
    "rules; codes out of range, fonts that are not installed, clocks sharing an Id.\n"
    "Then it checks every text that the clocks show in a year: what is cut or covered, when "
    "first,\n"
    "and which size fits; what is hard to see; which characters a font lacks.\n"
    "It warns from 90 days before daylight-saving rules end or a calendar is wrong.\n"
    "\n"
    "Each finding is a line on standard error: file:line: warning: what, and what is accepted.\n"
    "Notes are informative and do not affect the exit code.\n"
    "\n"
    "With --format json each finding is one line with a JSON object on standard output: file, "
    "line,\n"
    "clock (from 1), element, attribute, severity (warning or note), text, suggestion.\n"
    "\n"
    "Exit codes: 0 no warning, 1 warnings, 2 wrong command line, 3 a file cannot be read or is\n"
    "not XML. All given programs are checked, and the highest code is returned.";

constexpr int kMaxShown = 1000;

void Show(const Findings &findings, const QString &path)
{
    const QVector<Finding> sorted = findings.ByLine();
    for (const Finding &finding : sorted.mid(0, kMaxShown)) {
        const char *kind = finding.severity == Severity::Note ? "note" : "warning";
        const QString place = finding.place.line > 0
            ? QStringLiteral("%1:%2").arg(path).arg(finding.place.line)
            : path;
        std::fprintf(stderr, "%s: %s: %s\n", qPrintable(place), kind, qPrintable(finding.text));
    }
    if (sorted.size() > kMaxShown)
        Say(QStringLiteral("%1: and %2 more")
                .arg(path, QString::number(sorted.size() - kMaxShown)));
}

MaybeFailure ShowAsJson(const Findings &findings, const QString &path)
{
    QByteArray lines;
    for (const Finding &finding : findings.ByLine())
        lines += FindingJson(finding, path);
    return ClockProgram::WriteStandardOutput(lines);
}

// The options of a lint run.
struct LintOptions
{
    qint64 begin = 0; ///< of the year to check, in UTC milliseconds
    bool checksFit = true;
    bool asJson = false;
    bool allowsLargeFrames = false;
    QString base; ///< the directory of the programs' glyph files; empty: that of each program
};

/// The path by which a program's glyph files are found.
QString BasePath(const QString &path, const LintOptions &options)
{
    return options.base.isEmpty() ? path : QDir(options.base).filePath(QFileInfo(path).fileName());
}

/// A program that cannot be played has none of these findings.
void LintClocks(const QDomDocument &document, const QString &path, const LintOptions &options,
                Findings &findings)
{
    const Result<ClockProgram::Program> program = ClockProgram::InterpretProgram(document, path);
    if (!program)
        return;
    const Result<ClockProgram::MadeNodes> made = ClockProgram::MakeNodes(*program, FindClockPlugin);
    if (!made)
        return LintAreas(*program, findings);
    LintGlyphs(*program, *made, findings);
    LintStyles(*program, *made, findings);
    LintValidity(*program, *made, options.begin, findings);
    const bool isLarge =
        ClockProgram::CheckFrameBytes(*program).has_value(); // which LintProgram() reports
    if (options.checksFit && (!isLarge || options.allowsLargeFrames))
        LintFit(*program, *made, options.begin, findings);
    else
        LintAreas(*program, findings);
}

CommandResult LintFile(const QString &path, const LintOptions &options)
{
    const Result<QByteArray> bytes = ClockProgram::ReadContents(path);
    if (!bytes)
        return Report(bytes.Error());
    const Result<QDomDocument> document = ClockProgram::ParseDocument(*bytes, path);
    if (!document)
        return Report(document.Error());
    const QString base = BasePath(path, options);
    Findings findings = LintProgram(*document, *bytes, base, options.begin);
    LintClocks(*document, base, options, findings);
    if (!options.asJson)
        Show(findings, path);
    else if (const MaybeFailure failure = ShowAsJson(findings, path))
        return Report(*failure);
    return findings.Warnings() == 0 ? ExitCode::Success : ExitCode::RuntimeFailure;
}

const QLatin1String kFormat("format");
const QLatin1String kNoFit("no-fit");
const QLatin1String kBase("base");
const QLatin1String kCatalogue("catalogue");

/// Installs the catalogue that translates findings, if one is given.
MaybeFailure InstallCatalogue(const ToolArguments &tool)
{
    static QTranslator translator;
    const QString path = tool.Value(kCatalogue);
    if (path.isEmpty())
        return std::nullopt;
    // QTranslator would try shorter names than that of a missing file.
    if (!QFileInfo(path).isFile() || !translator.load(path)
        || !QCoreApplication::installTranslator(&translator))
        return ClockProgram::Failure {ExitCode::ProgramError,
                                      path + QStringLiteral(": cannot be read as a catalogue")};
    return std::nullopt;
}

Result<LintOptions> ReadOptions(const ToolArguments &tool)
{
    const QString format = tool.Value(kFormat);
    if (format != QLatin1String("text") && format != QLatin1String("json"))
        return ClockProgram::UsageFailure(
            QStringLiteral("unknown format \"%1\"; accepted: text, json").arg(format));
    const Result<qint64> begin = tool.YearBegin();
    if (!begin)
        return begin.Error();
    LintOptions options;
    options.asJson = format == QLatin1String("json");
    options.allowsLargeFrames = tool.AllowsLargeFrames();
    options.begin = *begin;
    options.checksFit = !tool.IsSet(kNoFit);
    options.base = tool.Value(kBase);
    if (!options.base.isEmpty() && !QFileInfo(options.base).isDir())
        return ClockProgram::Failure {ExitCode::ProgramError,
                                      options.base + QStringLiteral(": is not a directory")};
    return options;
}

} // namespace

CommandResult RunLint(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("lint"), QString::fromLatin1(kDescription));
    tool.AddPositional(QStringLiteral("PROGRAM.xml..."), QStringLiteral("The programs to check."));
    tool.AddLanguage();
    tool.AddLargeFrames();
    tool.AddYear();
    tool.AddFlag(kNoFit, QStringLiteral("Skip the check of what the clocks show in a year."));
    tool.AddOption(
        {kBase},
        QStringLiteral(
            "Look for the programs' glyph files in this directory instead of beside each "
            "program."),
        QStringLiteral("directory"));
    tool.AddOption({kCatalogue}, QStringLiteral("Translate findings by a Qt catalogue (.qm)."),
                   QStringLiteral("file"));
    tool.AddOption({kFormat}, QStringLiteral("Output format of the findings: text or json."),
                   QStringLiteral("format"), QStringLiteral("text"));
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    if (const MaybeFailure failure = tool.InstallLanguage())
        return Report(*failure);
    if (const MaybeFailure failure = InstallCatalogue(tool))
        return Report(*failure);
    const Result<LintOptions> options = ReadOptions(tool);
    if (!options)
        return Report(options.Error());
    CommandResult worst = ExitCode::Success;
    const QStringList paths = tool.Positionals();
    for (const QString &path : paths)
        worst = std::max(worst, LintFile(path, *options));
    return worst;
}

} // namespace ClockTool
