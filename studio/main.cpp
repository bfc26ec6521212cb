// studio: clock_studio, the editor for walls of clocks. main().
#include "window/main_window.h"
#include "window/studio_application.h"

#include "calendar/device_clock.h"
#include "command_support.h"
#include "time_travel.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QStandardPaths>

#include <cstdlib>

namespace {

using namespace ClockStudio;

QString RecoveryDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
        + QStringLiteral("/recovery");
}

/// The program to open; empty if none is given.
QString ProgramFrom(const QApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("An editor for walls of clocks."));
    ClockProgram::AddInformationOptions(parser);
    parser.addPositionalArgument(QStringLiteral("PROGRAM.xml"),
                                 QStringLiteral("The program file to open."),
                                 QStringLiteral("[PROGRAM.xml]"));
    parser.process(application);
    return parser.positionalArguments().value(0);
}

} // namespace

int main(int argc, char **argv)
{
    if (!HasDisplay(argc, argv)) {
        ClockProgram::SayAs("clock_studio", QStringLiteral("no display: the studio needs one"));
        return EXIT_FAILURE;
    }
    ClockProgram::FixFontResolution();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    SetUpApplication(application);
    const QString program = ProgramFrom(application);
    clock_set_time_source(ClockStage::StageTime::TellPlugin);
    int code = EXIT_SUCCESS;
    {
        MainWindow window(RecoveryDirectory());
        window.show();
        if (!program.isEmpty())
            window.Open(program);
        code = QApplication::exec();
    }
    clock_set_time_source(nullptr);
    return code;
}
