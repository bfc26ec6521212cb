// tools/: clock_tool: checks, converts and exports programs; picks the subcommand.
#include "commands.h"

#include "command_support.h"
#include "output.h"
#include "suggestion.h"

#include <QGuiApplication>

namespace {

using namespace ClockTool;

struct Command
{
    const char *name;
    CommandResult (*run)(const QStringList &arguments);
    const char *summary;
};

constexpr Command kCommands[] = {
    {"lint", RunLint, "check programs, and report what their clocks would ignore or cut"},
    {"fit", RunFit, "write a program with the text sizes that fit all year"},
    {"sdk", RunSdk, "write the SDK XML of a program's clocks"},
    {"import", RunImport, "make a program from SDK XML"},
    {"export", RunExport, "write a program with its glyph files, ready to be copied"},
    {"glyphs", RunGlyphs, "list the glyph images of a program and the clocks that share them"},
    {"attributes", RunAttributes, "write the reference table of the clock's attributes"},
    {"fonts", RunFonts, "list the sizes at which the digits of a font are legible"},
    {"zone", RunZone, "write the settings for a time zone, and say whether they are exact"},
    {"self-test", RunSelfTest, "check calendars, daylight saving and drawing on this device"},
};

QString HelpText()
{
    QString text = QStringLiteral("Usage: clock_tool COMMAND [arguments]\n"
                                  "\n"
                                  "Checks, converts and exports content programs of clocks, with "
                                  "their glyph files.\n"
                                  "\n"
                                  "Commands:\n");
    for (const Command &command : kCommands)
        text += QStringLiteral("  %1 %2\n")
                    .arg(QLatin1String(command.name), -11)
                    .arg(QLatin1String(command.summary));
    return text
        + QStringLiteral(
               "\nRun \"clock_tool COMMAND --help\" for details. Messages go to standard error.\n"
               "\n"
               "Exit codes:\n"
               "  0  done; for lint: nothing found; for zone: exact\n"
               "  1  something failed, such as writing; for lint: something was found;\n"
               "     for zone: not exact, or no zone data; for self-test: a check failed\n"
               "  2  the command line is wrong\n"
               "  3  the input is missing or invalid; the message says where\n"
               "\n"
               "Environment:\n")
        + QLatin1String(ClockProgram::kSharedEnvironment);
}

/// Drops Qt's warnings about a missing desktop environment.
void KeepFatalMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        Say(message);
}

QStringList CommandNames()
{
    QStringList names;
    for (const Command &command : kCommands)
        names.append(QLatin1String(command.name));
    return names;
}

int Run(const QStringList &arguments)
{
    const QString first = arguments.value(1);
    if (first == QLatin1String("--help") || first == QLatin1String("-h"))
        return static_cast<int>(Deliver(QString(), HelpText().toLocal8Bit()));
    if (first == QLatin1String("--version") || first == QLatin1String("-v"))
        return static_cast<int>(Deliver(QString(), "clock_tool " CLOCK_TOOL_VERSION "\n"));
    for (const Command &command : kCommands) {
        if (first == QLatin1String(command.name))
            return static_cast<int>(command.run(arguments));
    }
    return static_cast<int>(Report(ClockProgram::UsageFailure(
        first.isEmpty() ? QStringLiteral("no command given")
                        : QStringLiteral("unknown command %1%2")
                              .arg(Quoted(first), Suggestion(first, CommandNames())))));
}

} // namespace

namespace ClockTool {

void Say(const QString &text)
{
    ClockProgram::PrintErrorLines("clock_tool", text);
}

CommandResult Report(const Failure &failure)
{
    Say(failure.text);
    return failure.code;
}

} // namespace ClockTool

int main(int argc, char **argv)
{
    ClockProgram::FixFontResolution();
    // Images and fonts need an application with a platform, but nothing is shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QtMessageHandler before = qInstallMessageHandler(KeepFatalMessages);
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(before);
    return Run(QCoreApplication::arguments());
}
