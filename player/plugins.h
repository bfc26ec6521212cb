// The content plugins that the player has loaded.
#pragma once

#include "command_line.h"
#include "failure.h"
#include "node_maker.h"

#include <QStringList>

namespace ClockStage {
class Stage;
}

namespace ClockPlayer {

/// Loads all plugins of a directory. Fails when not one could be loaded; files that were refused
/// beside good ones are reported as warnings.
ClockProgram::MaybeFailure LoadPlugins(const QString &directory, QStringList &warnings);

/// Gives the plugins that know a time another source of it. Fails when none does.
ClockProgram::MaybeFailure SetTimeSource(long long (*utcMilliseconds)());

/// Finds among the loaded plugins the one that claims an element.
ClockProgram::PluginFinder LoadedPlugins();

/// Makes a program's nodes by the loaded plugins, and passes on what is to be warned of.
ClockProgram::MaybeFailure BuildStage(ClockStage::Stage &stage,
                                      const ClockProgram::Program &program, const Options &options,
                                      const Warn &warn);

} // namespace ClockPlayer
