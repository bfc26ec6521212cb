// player/: main() of clock_player: chooses the platform, reads the program and plays it.
#include "player.h"

#include "command_support.h"
#include "player_window.h"
#include "work_directory.h"

#include <QGuiApplication>
#include <QTimer>

#include <cstdlib>

#include <unistd.h>

namespace {

using namespace ClockPlayer;
using namespace ClockProgram;

constexpr unsigned int kRestartDelaySeconds = 2;
constexpr int kNoticeMilliseconds = 10000;

QtMessageHandler g_defaultHandler = nullptr;
char **g_kioskArguments = nullptr; // null: not a kiosk

void Say(const QString &text)
{
    PrintErrorLines("clock_player", text);
}

int Report(const Failure &failure)
{
    Say(failure.text);
    return static_cast<int>(failure.code);
}

// Restarts a kiosk's process after a pause, since what was missing may have appeared.
void RestartIfKiosk()
{
    if (!g_kioskArguments)
        return;
    RemoveWorkDirectory();
    ::sleep(kRestartDelaySeconds);
    ::execv("/proc/self/exe", g_kioskArguments);
}

void ShowNoticeBriefly(Notice notice)
{
    PlayerWindow window(QStringLiteral("clock_player"));
    window.ShowNotice(notice);
    window.ShowKiosk();
    QTimer::singleShot(kNoticeMilliseconds, qApp, &QCoreApplication::quit);
    QGuiApplication::exec();
}

int FailWithoutDisplay()
{
    Say(QStringLiteral("no display can be reached: set DISPLAY, choose another -platform, or write "
                       "frames with --output"));
    return static_cast<int>(ExitCode::RuntimeFailure);
}

// Without a display, Qt ends the process inside the application's constructor. Its
// earlier warnings are printed only in that case.
void HandleStartupMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    static QStringList complaints;
    complaints.append(message.section(QLatin1Char('\n'), 0, 0));
    if (type != QtFatalMsg)
        return;
    Say(complaints.join(QLatin1Char('\n')));
    FailWithoutDisplay();
    RestartIfKiosk();
    std::_Exit(static_cast<int>(ExitCode::RuntimeFailure));
}

// Once the application exists, Qt ends the process if it loses the display or on another fatal
// error.
void HandleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtFatalMsg) {
        g_defaultHandler(type, context, message);
        return;
    }
    Say(message);
    RemoveWorkDirectory();
    std::_Exit(static_cast<int>(ExitCode::RuntimeFailure));
}

CommandLine ReadCommandLine(int argc, char **argv)
{
    // A QGuiApplication needs a display, but --help must work without one.
    const QCoreApplication application(argc, argv);
    return ParseCommandLine(QCoreApplication::arguments());
}

void ChoosePlatform(const Options &options)
{
    if (!options.platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", options.platform.toLocal8Bit());
    else if (options.WritesFrames() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int RunApplication(int argc, char **argv, const Options &options, const Result<Program> &program,
                   const FileSignature &signature)
{
    ChoosePlatform(options);
    if (options.isKiosk) {
        qputenv("QT_QPA_FB_HIDECURSOR", "1");
        qputenv("QT_QPA_FB_DISABLE_INPUT", "1"); // no keyboard or mouse is even opened
    }
    g_defaultHandler = qInstallMessageHandler(HandleStartupMessage);
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(HandleMessage);
    if (!QGuiApplication::primaryScreen()) {
        FailWithoutDisplay();
        RestartIfKiosk();
        return static_cast<int>(ExitCode::RuntimeFailure);
    }
    if (options.checksDisplay)
        return static_cast<int>(ExitCode::Success);
    const MaybeFailure failure = Play(options, program, signature, Say);
    if (failure && options.isKiosk) {
        Say(failure->text);
        ShowNoticeBriefly(Notice::NoPlugin);
        RestartIfKiosk();
    }
    return failure ? Report(*failure) : static_cast<int>(ExitCode::Success);
}

int Run(int argc, char **argv)
{
    const CommandLine commandLine = ReadCommandLine(argc, argv);
    if (const auto *information = std::get_if<Information>(&commandLine)) {
        const MaybeFailure failure = PrintText(information->text);
        return failure ? Report(*failure) : static_cast<int>(ExitCode::Success);
    }
    if (const auto *failure = std::get_if<Failure>(&commandLine))
        return Report(*failure);
    const Options &options = std::get<Options>(commandLine);
    if (options.isKiosk)
        g_kioskArguments = argv;
    if (options.checksDisplay)
        return RunApplication(argc, argv, options, Program(), FileSignature());
    const FileSignature signature = SignatureOf(options.programPath);
    const Result<Program> program = options.isKiosk ? ReadRegularProgram(options.programPath)
                                                    : ReadProgram(options.programPath);
    if (!program && !options.isKiosk)
        return Report(program.Error());
    return RunApplication(argc, argv, options, program, signature);
}

} // namespace

int main(int argc, char **argv)
{
    PrepareEnvironment();
    return Run(argc, argv);
}
