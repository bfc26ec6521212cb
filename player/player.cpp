#include "player.h"

#include "deadline_meter.h"
#include "frame_writer.h"
#include "led_screen.h"
#include "playback.h"
#include "player_window.h"
#include "plugins.h"
#include "process_signals.h"
#include "stage.h"
#include "time_travel.h"

#include "catalogues.h"
#include "happconfig.h"
#include "pictureplayer.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>

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
    if (QDir().mkpath(path) && QFileInfo(path).isWritable())
        return std::nullopt;
    return RuntimeFailure(QStringLiteral("%1: cannot write to this directory").arg(path));
}

// Without a time source in any plugin the clocks can still show the present.
MaybeFailure InstallTimeSource(const Options &options, Playback::Travelling &travelling)
{
    const MaybeFailure failure = SetTimeSource(&StageTime::TellPlugin);
    travelling = failure ? Playback::Travelling::Impossible : Playback::Travelling::Possible;
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

void PrintStats(const DeadlineMeter &meter, const Warn &warn)
{
    for (const QString &line : meter.Report())
        warn(line);
}

std::optional<LedScreen> Leds(const Options &options)
{
    return options.ledPitch ? std::optional(LedScreen(options.ledPitch)) : std::nullopt;
}

MaybeFailure PlayInWindow(Stage &stage, const Options &options, Playback::Travelling travelling,
                          const Warn &warn)
{
    const int scale = qMax(1, options.ledPitch);
    if (qMax(stage.Size().width(), stage.Size().height()) * scale > kMaximumSide)
        return RuntimeFailure(
            QStringLiteral("the screen is too large to be magnified %1 times").arg(scale));
    QuitSignals quitSignals;
    QObject::connect(&quitSignals, &QuitSignals::Requested, qApp, &QCoreApplication::quit);
    const SignalPipe reportSignal({SIGUSR1}, SignalPipe::Times::Always);
    PlayerWindow window(stage, QFileInfo(options.programPath).fileName(), Leds(options));
    Playback playback(stage, window, travelling);
    const auto print = [&playback, &warn] { PrintStats(playback.Meter(), warn); };
    QObject::connect(&playback, &Playback::StatsWanted, print);
    QObject::connect(&reportSignal, &SignalPipe::Received, print);
    window.show();
    BeginTravel(options);
    playback.Start();
    QGuiApplication::exec();
    if (options.printsStats)
        print();
    return std::nullopt;
}

MaybeFailure PlayToFiles(Stage &stage, const Options &options, const Warn &warn)
{
    const QuitSignals quitSignals;
    const SignalPipe reportSignal({SIGUSR1}, SignalPipe::Times::Always);
    DeadlineMeter meter;
    const auto print = [&meter, &warn] { PrintStats(meter, warn); };
    QObject::connect(&reportSignal, &SignalPipe::Received, print);
    // Nobody waits for the seconds: the frame writer has each picture drawn itself.
    Lw::pictureplayer::SetTimeScale(0);
    FrameRun run;
    run.directory = options.outputDirectory;
    run.count = options.frames;
    run.magnification = options.magnification;
    run.ledPitch = options.ledPitch;
    run.speed = options.speed;
    run.meter = &meter;
    run.start = options.startInstant.value_or(StageTime::Shown());
    run.isEnded = [] {
        QCoreApplication::processEvents();
        return QuitSignals::IsRequested();
    };
    const MaybeFailure failure = WriteFrames(stage, run);
    if (options.printsStats)
        print();
    if (failure)
        return failure;
    if (QuitSignals::IsRequested())
        return RuntimeFailure(QStringLiteral("interrupted"));
    std::printf("%s\n", qPrintable(QDir(run.directory).absolutePath()));
    return std::nullopt;
}

} // namespace

MaybeFailure Play(const Options &options, const Program &program, const Warn &warn)
{
    ClockCatalogues::InstallChosen(options.language);
    QStringList warnings;
    if (const MaybeFailure failure = LoadPlugins(PluginDirectory(options), warnings))
        return failure;
    auto travelling = Playback::Travelling::Impossible;
    if (const MaybeFailure failure = InstallTimeSource(options, travelling))
        return failure;

    const QTemporaryDir temporary;
    if (!temporary.isValid())
        return RuntimeFailure(temporary.errorString());
    const QString files =
        options.filesDirectory.isEmpty() ? temporary.path() : options.filesDirectory;
    for (const QString &directory : {files, options.outputDirectory}) {
        if (directory.isEmpty())
            continue;
        if (const MaybeFailure failure = PrepareDirectory(directory))
            return failure;
    }
    Lw::HAppConfig::SetClockOutputPath(QFileInfo(files).absoluteFilePath());

    Stage stage;
    const MaybeFailure failure = stage.Build(
        program, LoadedPlugins(), options.usesFiles ? GlyphFiles::Carried : GlyphFiles::Made);
    warnings += stage.Warnings();
    for (const QString &warning : qAsConst(warnings))
        warn(warning);
    if (failure)
        return failure;
    return options.WritesFrames() ? PlayToFiles(stage, options, warn)
                                  : PlayInWindow(stage, options, travelling, warn);
}

} // namespace ClockPlayer
