// The content plugins that the player has loaded.
#pragma once

#include "failure.h"
#include "program_names.h"

#include <QStringList>

namespace ClockPlayer {

/// Loads all plugins of a directory. Fails when not one could be loaded; files that were refused
/// beside good ones are reported as warnings.
MaybeFailure LoadPlugins(const QString &directory, QStringList &warnings);

/// Gives the plugins that know a time another source of it. Fails when none does.
MaybeFailure SetTimeSource(long long (*utcMilliseconds)());

} // namespace ClockPlayer
