// player/: loads the content plugins, gives them the time, and builds stages with them.
#pragma once

#include "command_line.h"
#include "failure.h"
#include "node_maker.h"

#include <QStringList>

namespace ClockStage {
class Stage;
}

namespace ClockPlayer {

/// Loads all plugins of a directory. Fails if none could be loaded; rejected files
/// beside good ones are reported as warnings.
ClockProgram::MaybeFailure LoadPlugins(const QString &directory, QStringList &warnings);

/// Sets the time source of all plugins that support one. Fails if none does.
ClockProgram::MaybeFailure SetTimeSource(long long (*utcMilliseconds)());

/// A function that returns the loaded plugin that claims an element.
ClockProgram::PluginFinder LoadedPluginFinder();

/// Builds a stage from a program with the loaded plugins; passes on its warnings.
ClockProgram::MaybeFailure BuildStage(ClockStage::Stage &stage,
                                      const ClockProgram::Program &program, const Options &options,
                                      const Warn &warn);

} // namespace ClockPlayer
