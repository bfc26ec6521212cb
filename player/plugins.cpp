#include "plugins.h"

#include "stage.h"

#include "hpluginmanager.h"

#include <QLibrary>

namespace ClockPlayer {

using namespace ClockProgram;
using namespace ClockStage;

namespace {

const char kTimeSourceSymbol[] = "clock_set_time_source";
using SetTimeSourceFunction = void (*)(long long (*)());

} // namespace

MaybeFailure LoadPlugins(const QString &directory, QStringList &warnings)
{
    Lw::HPluginManager &manager = *Lw::HPluginManager::instance();
    manager.LoadDirectory(directory);
    const QStringList refusals = manager.Refusals();
    if (manager.PluginCount() > 0) {
        warnings += refusals;
        return std::nullopt;
    }
    if (!refusals.isEmpty())
        return Failure {ExitCode::RuntimeFailure, refusals.join(QLatin1Char('\n'))};
    return Failure {ExitCode::RuntimeFailure,
                    QStringLiteral("%1: no plugins in this directory").arg(directory)};
}

MaybeFailure SetTimeSource(long long (*utcMilliseconds)())
{
    Lw::HPluginManager &manager = *Lw::HPluginManager::instance();
    bool given = false;
    for (int i = 0; i < manager.PluginCount(); ++i) {
        const auto setSource = reinterpret_cast<SetTimeSourceFunction>(
            QLibrary::resolve(manager.PluginPath(i), kTimeSourceSymbol));
        if (!setSource)
            continue;
        setSource(utcMilliseconds);
        given = true;
    }
    if (given)
        return std::nullopt;
    return Failure {ExitCode::RuntimeFailure,
                    QStringLiteral("the time cannot be set: no plugin exports %1")
                        .arg(QLatin1String(kTimeSourceSymbol))};
}

PluginFinder LoadedPluginFinder()
{
    return [](QDomElement &element) { return Lw::HPluginManager::instance()->PluginFor(element); };
}

MaybeFailure BuildStage(Stage &stage, const Program &program, const Options &options,
                        const Warn &warn)
{
    if (const MaybeFailure large = CheckFrameBytes(program); large && !options.allowsLargeFrames)
        return large;
    const MaybeFailure failure = stage.Build(
        program, LoadedPluginFinder(), options.usesFiles ? GlyphFiles::Carried : GlyphFiles::Made);
    for (const QString &warning : stage.Warnings())
        warn(warning);
    return failure;
}

} // namespace ClockPlayer
