// fit/: the installed font families, and the one that Qt uses instead of a missing one.
#pragma once

#include <QString>
#include <QStringList>

namespace ClockFit {

/// In alphabetical order; read once per process.
const QStringList &InstalledFamilies();
/// Case-insensitive.
bool IsInstalled(const QString &family);
/// The family Qt actually uses for a requested one: the same if installed. An empty name means the
/// application's default font.
QString FamilyUsed(const QString &family);

} // namespace ClockFit
