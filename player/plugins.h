// The content plugins that the player has loaded.
#pragma once

#include "failure.h"
#include "node_maker.h"

#include <QStringList>

namespace ClockPlayer {

/// Loads all plugins of a directory. Fails when not one could be loaded; files that were refused
/// beside good ones are reported as warnings.
ClockProgram::MaybeFailure LoadPlugins(const QString &directory, QStringList &warnings);

/// Gives the plugins that know a time another source of it. Fails when none does.
ClockProgram::MaybeFailure SetTimeSource(long long (*utcMilliseconds)());

/// Finds among the loaded plugins the one that claims an element.
ClockProgram::PluginFinder LoadedPlugins();

} // namespace ClockPlayer
