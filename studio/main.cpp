// studio/: main() of clock_studio, the editor for walls of clocks.
#include "qt_names.h"
#include "window/main_window.h"
#include "window/studio_application.h"

#include "calendar/device_clock.h"
#include "command_support.h"
#include "time_travel.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QStandardPaths>

#include <cstdlib>
#include <optional>

namespace {

using namespace ClockStudio;

QString RecoveryDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
        + QStringLiteral("/recovery");
}

void Describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QStringLiteral("An editor for walls of clocks."));
    // Qt's own options begin with one dash.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    ClockProgram::AddInformationOptions(parser);
    parser.addPositionalArgument(QStringLiteral("PROGRAM.xml"),
                                 QStringLiteral("The program file to open."),
                                 QStringLiteral("[PROGRAM.xml]"));
}

/// What --help or --version print; they need no display.
std::optional<QString> InformationFor(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    Describe(parser);
    parser.parse(QCoreApplication::arguments());
    if (parser.isSet(QLatin1String(ClockProgram::kHelp)))
        return ClockProgram::HelpText(parser, QStringLiteral("clock_studio [PROGRAM.xml]"));
    if (parser.isSet(QLatin1String(ClockProgram::kVersion)))
        return QStringLiteral("clock_studio " CLOCK_STUDIO_VERSION "\n");
    return std::nullopt;
}

/// The program to open; empty if none is given.
QString ProgramFrom(const QApplication &application)
{
    QCommandLineParser parser;
    Describe(parser);
    parser.process(application);
    return parser.positionalArguments().value(0);
}

int Print(const QString &text)
{
    const ClockProgram::MaybeFailure failure = ClockProgram::PrintText(text);
    if (!failure)
        return EXIT_SUCCESS;
    ClockProgram::PrintErrorLines("clock_studio", failure->text);
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    if (const std::optional<QString> information = InformationFor(argc, argv))
        return Print(*information);
    if (!HasDisplay(argc, argv)) {
        ClockProgram::PrintErrorLines("clock_studio",
                                      QStringLiteral("no display found; the studio needs one"));
        return EXIT_FAILURE;
    }
    ClockProgram::FixFontResolution();
    ScaleForScreen();
    QApplication application(argc, argv);
    const QString problem = SetUpApplication(application);
    const QString program = ProgramFrom(application);
    clock_set_time_source(ClockStage::StageTime::TellPlugin);
    int code = EXIT_SUCCESS;
    {
        MainWindow window(RecoveryDirectory());
        if (!problem.isEmpty()) {
            ClockProgram::PrintErrorLines("clock_studio", problem);
            window.Warn(problem);
        }
        window.show();
        if (!program.isEmpty())
            window.Open(program);
        code = QApplication::exec();
    }
    clock_set_time_source(nullptr);
    return code;
}
