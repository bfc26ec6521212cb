#include "player.h"

#include "deadline_meter.h"
#include "device_state.h"
#include "frame_writer.h"
#include "glyph_report.h"
#include "playback.h"
#include "plugins.h"
#include "process_signals.h"
#include "stage.h"
#include "time_travel.h"
#include "window_show.h"
#include "work_directory.h"

#include "catalogues.h"
#include "command_support.h"
#include "happconfig.h"
#include "hdata.h"
#include "pictureplayer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <unistd.h>

namespace ClockPlayer {

using namespace ClockProgram;
using namespace ClockStage;

namespace {

Failure RuntimeFailure(const QString &text)
{
    return {ExitCode::RuntimeFailure, text};
}

QString PluginDirectory(const Options &options)
{
    if (!options.pluginDirectory.isEmpty())
        return options.pluginDirectory;
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../plugins"));
}

MaybeFailure PrepareDirectory(const QString &path)
{
    errno = 0;
    if (QDir().mkpath(path) && ::access(QFile::encodeName(path).constData(), W_OK | X_OK) == 0)
        return std::nullopt;
    const QString reason = errno ? QStringLiteral(": ") + qt_error_string(errno) : QString();
    return RuntimeFailure(QStringLiteral("%1: cannot write to this directory%2").arg(path, reason));
}

// Glyph images go to --files-dir, or to a temporary directory.
MaybeFailure PrepareFiles(const Options &options)
{
    QString directory = options.filesDirectory;
    if (directory.isEmpty()) {
        const Result<QString> made = MakeWorkDirectory();
        if (!made)
            return made.Error();
        directory = *made;
    } else if (const MaybeFailure failure = PrepareDirectory(directory)) {
        return failure;
    }
    Lw::HAppConfig::SetClockOutputPath(QFileInfo(directory).absoluteFilePath());
    return std::nullopt;
}

Failure Interrupted()
{
    return RuntimeFailure(QStringLiteral("interrupted"));
}

// Generating the images of large texts takes seconds without returning to the event loop, so the
// service manager is told here that the process is alive.
void KeepAliveBetweenImages()
{
    constexpr int kNotifyInterval = 1000; // milliseconds
    static QElapsedTimer sinceNotified;
    if (!sinceNotified.isValid() || sinceNotified.hasExpired(kNotifyInterval)) {
        sinceNotified.start();
        NotifyService("EXTEND_TIMEOUT_USEC=60000000\nWATCHDOG=1");
    }
    if (!QuitSignals::IsRequested())
        return;
    RemoveWorkDirectory();
    std::_Exit(static_cast<int>(ExitCode::Success));
}

void QuitFramesBetweenImages()
{
    if (!QuitSignals::IsRequested())
        return;
    PrintErrorLines("clock_player", Interrupted().text);
    RemoveWorkDirectory();
    std::_Exit(static_cast<int>(Interrupted().code));
}

// If no plugin accepts a time source, the clocks can still show the present.
MaybeFailure InstallTimeSource(const Options &options, Playback::TimeControl &timeControl)
{
    const MaybeFailure failure = SetTimeSource(&StageTime::TellPlugin);
    timeControl = failure ? Playback::TimeControl::Impossible : Playback::TimeControl::Possible;
    const bool isNeeded = options.startInstant || options.speed != 1 || options.WritesFrames();
    return isNeeded ? failure : std::nullopt;
}

void BeginTravel(const Options &options)
{
    if (options.startInstant)
        StageTime::RunFrom(*options.startInstant);
    if (options.speed != 1)
        StageTime::Travel().SetSpeed(options.speed, StageTime::Real());
}

MaybeFailure PlayInWindow(const Options &options, const Result<Program> &program,
                          const FileSignature &signature, Playback::TimeControl timeControl,
                          const Warn &warn)
{
    Lw::HData::SetRecordObserver(KeepAliveBetweenImages);
    QuitSignals quitSignals(options.isKiosk ? QuitSignals::Losses::Ignore
                                            : QuitSignals::Losses::End);
    QObject::connect(&quitSignals, &QuitSignals::Requested, qApp, &QCoreApplication::quit);
    BeginTravel(options);
    WindowShow show(options, timeControl, warn);
    if (const MaybeFailure failure = show.Play(program, signature))
        return failure;
    QGuiApplication::exec();
    if (options.printsStats)
        show.PrintStats();
    return std::nullopt;
}

void PrintReport(const DeadlineMeter &meter, const Warn &warn)
{
    for (const QString &line : meter.Report())
        warn(line);
}

FrameRun FrameRunOf(const Options &options)
{
    FrameRun run;
    run.directory = options.outputDirectory;
    run.count = options.frames;
    run.magnification = options.magnification;
    run.ledPitch = options.ledPitch;
    run.speed = options.speed;
    run.start = options.startInstant.value_or(StageTime::Shown());
    run.shouldStop = [] {
        QCoreApplication::processEvents();
        return QuitSignals::IsRequested();
    };
    return run;
}

MaybeFailure PlayToFiles(const Options &options, const Program &program, const Warn &warn)
{
    Lw::HData::SetRecordObserver(QuitFramesBetweenImages);
    const QuitSignals quitSignals;
    if (const MaybeFailure failure = PrepareDirectory(options.outputDirectory))
        return failure;
    Stage stage;
    if (const MaybeFailure failure = BuildStage(stage, program, options, warn))
        return failure;
    DeadlineMeter meter;
    const SignalPipe reportSignal({SIGUSR1}, SignalPipe::Times::Always);
    const auto print = [&meter, &warn] { PrintReport(meter, warn); };
    QObject::connect(&reportSignal, &SignalPipe::Received, print);
    // No timers: WriteFrames() triggers each picture itself.
    Lw::pictureplayer::SetTimeScale(0);
    FrameRun run = FrameRunOf(options);
    run.meter = &meter;
    MaybeFailure faulty;
    run.onFirstFrame = [&] { faulty = CheckGlyphs(stage.Nodes(), program.path, warn); };
    const MaybeFailure failure = WriteFrames(stage, run);
    if (options.printsStats)
        print();
    if (failure)
        return failure;
    if (QuitSignals::IsRequested())
        return Interrupted();
    if (faulty)
        return faulty;
    return PrintText(QDir(run.directory).absolutePath() + QLatin1Char('\n'));
}

} // namespace

void PrepareEnvironment()
{
    FixFontResolution();
    // Shows changes immediately instead of after Qt's default delay of five milliseconds.
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME"))
        qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
}

MaybeFailure Play(const Options &options, const Result<Program> &program,
                  const FileSignature &signature, const Warn &warn)
{
    ClockCatalogues::InstallOrDefault(options.language);
    QStringList warnings;
    if (const MaybeFailure failure = LoadPlugins(PluginDirectory(options), warnings))
        return failure;
    for (const QString &warning : qAsConst(warnings))
        warn(warning);
    auto timeControl = Playback::TimeControl::Impossible;
    if (const MaybeFailure failure = InstallTimeSource(options, timeControl))
        return failure;
    if (const MaybeFailure failure = PrepareFiles(options))
        return failure;
    return options.WritesFrames() ? PlayToFiles(options, *program, warn)
                                  : PlayInWindow(options, program, signature, timeControl, warn);
}

} // namespace ClockPlayer
