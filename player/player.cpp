#include "player.h"

#include "frame_writer.h"
#include "player_time.h"
#include "player_window.h"
#include "plugins.h"
#include "quit_signals.h"
#include "stage.h"

#include "catalogues.h"
#include "happconfig.h"
#include "pictureplayer.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace ClockPlayer {

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

MaybeFailure UseTime(const Options &options)
{
    if (!options.startInstant && !options.WritesFrames())
        return std::nullopt;
    return SetTimeSource(&PlayerTime::Now);
}

MaybeFailure PlayInWindow(Stage &stage, const Options &options)
{
    QuitSignals quitSignals;
    QObject::connect(&quitSignals, &QuitSignals::Requested, qApp, &QCoreApplication::quit);
    PlayerWindow window(stage, QFileInfo(options.programPath).fileName());
    window.show();
    if (options.startInstant)
        PlayerTime::RunFrom(*options.startInstant);
    stage.Start();
    QGuiApplication::exec();
    return std::nullopt;
}

MaybeFailure PlayToFiles(Stage &stage, const Options &options)
{
    const QuitSignals quitSignals;
    // Nobody waits for the seconds: the frame writer has each picture drawn itself.
    Lw::pictureplayer::SetTimeScale(0);
    FrameRun run;
    run.directory = options.outputDirectory;
    run.count = options.frames;
    run.magnification = options.magnification;
    run.start = options.startInstant.value_or(PlayerTime::Now());
    run.isEnded = [] {
        QCoreApplication::processEvents();
        return QuitSignals::IsRequested();
    };
    if (const MaybeFailure failure = WriteFrames(stage, run))
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
    if (const MaybeFailure failure = UseTime(options))
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
    const MaybeFailure failure =
        stage.Build(program, options.usesFiles ? GlyphFiles::Carried : GlyphFiles::Made);
    warnings += stage.Warnings();
    for (const QString &warning : qAsConst(warnings))
        warn(warning);
    if (failure)
        return failure;
    return options.WritesFrames() ? PlayToFiles(stage, options) : PlayInWindow(stage, options);
}

} // namespace ClockPlayer
