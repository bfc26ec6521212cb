// tools/: clock_tool self-test: checks calendars and drawing on this device.
#include "commands.h"
#include "output.h"
#include "self_test/checks.h"
#include "tool_arguments.h"
#include "work_directory.h"

#include <cstdio>

namespace ClockTool {

namespace {

constexpr char kDescription[] =
    "Tests the clocks' own code on this device: the lunar calendar on every day that it covers, "
    "the\n"
    "Persian calendar and its leap years, daylight saving at changes that have happened, and a\n"
    "frame of each kind of clock, drawn from generated glyph images that need no fonts. One\n"
    "line per check. Picture clocks are tested with the pictures installed beside this "
    "program.\n"
    "\n"
    "Exit codes: 0 all checks passed, 1 a check failed, 2 wrong command line.";

const char *TextOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Ok:
        return "ok";
    case Outcome::Failed:
        return "FAILED";
    case Outcome::NotChecked:
        return "not checked";
    }
    return "";
}

/// Prints the results of a group of checks; true if none failed.
bool Tell(const QVector<CheckResult> &results)
{
    bool passed = true;
    for (const CheckResult &result : results) {
        const QString why = result.why.isEmpty() ? QString() : QStringLiteral(": ") + result.why;
        std::printf("%s ... %s%s\n", qPrintable(result.what), TextOf(result.outcome),
                    qPrintable(why));
        passed = passed && result.outcome != Outcome::Failed;
    }
    std::fflush(stdout);
    return passed;
}

} // namespace

CommandResult RunSelfTest(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("self-test"), QString::fromLatin1(kDescription));
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    const WorkDirectory work; // without it the frame checks fail and say so
    const bool passed[] = {Tell(CheckCalendars()), Tell(CheckDaylightSaving()),
                           Tell(CheckFrames(work.Fault() ? QString() : work.Path()))};
    // Results are printed one by one; on a full device only the first ones are written.
    if (std::ferror(stdout) != 0)
        return Report(
            {ExitCode::RuntimeFailure, QStringLiteral("cannot write to standard output")});
    for (const bool well : passed) {
        if (!well)
            return ExitCode::RuntimeFailure;
    }
    return ExitCode::Success;
}

} // namespace ClockTool
