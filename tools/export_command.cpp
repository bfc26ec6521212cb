// tools/: clock_tool export: writes a program and its glyph files to a self-contained directory.
#include "commands.h"
#include "export_directory.h"
#include "glyph_export.h"
#include "tool_arguments.h"

#include "compose/element_layout.h"
#include "glyph/glyph_set.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <unistd.h>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

constexpr char kDescription[] =
    "Writes a program with its glyph files to a directory that can be copied to a player:\n"
    "\n"
    "  program.xml  the program; every setting is an \"attribute\", every image a \"file\" of its\n"
    "               clock, named relative to program.xml\n"
    "  files/       the glyph images, named by their MD5 digests\n"
    "  files.tsv    what to send: path, MD5 digest and size in bytes, tab-separated, with a\n"
    "               header line\n"
    "\n"
    "Play it with: clock_player --use-files DIR/program.xml\n"
    "\n"
    "The directory must be missing or empty, or contain an earlier export whose program is\n"
    "unchanged. Leftovers of an interrupted export are removed. Only one export at a time\n"
    "writes to it, and links within it are never followed.\n"
    "\n"
    "The image of the minus is not exported: a date of type 8 has no minus on the player. The\n"
    "pictures of picture clocks are those installed with the player.";

/// Fails if the export would overwrite the program itself.
MaybeFailure CheckProgramIsElsewhere(const QString &directory, const QString &program)
{
    const QString there = QFileInfo(QDir(directory).filePath(kExportedProgram)).canonicalFilePath();
    if (there.isEmpty() || there != QFileInfo(program).canonicalFilePath())
        return std::nullopt;
    return Failure {ExitCode::RuntimeFailure,
                    QStringLiteral("%1: the program itself is in this directory; export to "
                                   "another one")
                        .arg(directory)};
}

const QLatin1String kProgress("progress");

int DateTypeOf(HClockNode &clock)
{
    const bool isDigital = clock.ClockType() == DigitalClock;
    return clock.GetAttributeToInt(
        Key(isDigital ? Attribute::DigitalDateType : Attribute::AnalogDateType));
}

void NoteMissingMinus(const ProgramClocks &clocks)
{
    for (int i = 0; i < clocks.Count(); ++i) {
        HClockNode &clock = clocks.Clock(i);
        if (clock.ClockType() != PictureClock && DateTypeOf(clock) == DateWithMinus)
            Say(ClockProgram::AtElement(
                clocks.program.path, clocks.program.areas[i].element,
                QStringLiteral("note: the minus of date type 8 is not exported")));
    }
}

void ShowProgress(int clock, int count)
{
    if (!isatty(STDERR_FILENO))
        return;
    std::fprintf(stderr, "\rclock %d of %d", clock, count);
    if (clock == count)
        std::fputc('\n', stderr);
}

/// For programs that show it as a bar.
void SayPercentage(int percentage)
{
    std::printf("%d%%\n", percentage);
    std::fflush(stdout);
}

} // namespace

CommandResult RunExport(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("export"), QString::fromLatin1(kDescription));
    tool.AddPositional(QStringLiteral("PROGRAM.xml"), QStringLiteral("The program to export."));
    tool.AddPositional(QStringLiteral("DIR"), QStringLiteral("The directory to write to."));
    tool.AddLanguage();
    tool.AddFlag(kProgress, QStringLiteral("Print the progress on standard output, in percent."));
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    if (const MaybeFailure failure = tool.InstallLanguage())
        return Report(*failure);
    const Result<ProgramClocks> read = ReadClocks(tool.Positional(0));
    if (!read)
        return Report(read.Error());
    const ProgramClocks &clocks = *read;
    const QString directory = QFileInfo(tool.Positional(1)).absoluteFilePath();
    if (const MaybeFailure failure = CheckProgramIsElsewhere(directory, clocks.program.path))
        return Report(*failure);
    NoteMissingMinus(clocks);
    const bool saysPercentage = tool.IsSet(kProgress);
    const auto progress = [&clocks, saysPercentage](int clock) {
        saysPercentage ? SayPercentage(100 * (clock - 1) / clocks.Count())
                       : ShowProgress(clock, clocks.Count());
    };
    if (const MaybeFailure failure = ExportProgram(clocks, directory, progress))
        return Report(*failure);
    if (saysPercentage)
        SayPercentage(100);
    return ExitCode::Success;
}

} // namespace ClockTool
