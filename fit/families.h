// The installed font families.
#pragma once

#include <QString>
#include <QStringList>

namespace ClockFit {

/// In alphabetical order; read once for the process.
const QStringList &InstalledFamilies();
/// In letters of any case.
bool IsInstalled(const QString &family);
/// The family that Qt uses in place of one; the same where it is installed. An empty one is the
/// application's default font.
QString FamilyUsed(const QString &family);

} // namespace ClockFit
