// fit/: the installed font families, whether a clock's fonts have the characters it shows, and
// whether its texts can be drawn at all.
#pragma once

#include "clock_year.h"
#include "fit.h"

#include <QString>
#include <QStringList>

namespace ClockFit {

/// Whether any font is installed; InstalledFamilies() has names of Qt's own if not.
bool HasFonts();
/// The installed font families in alphabetical order; read once per process.
const QStringList &InstalledFamilies();
/// Case-insensitive.
bool IsInstalled(const QString &family);
/// The family Qt actually uses for a requested one: the same if installed. An empty name means the
/// application's default font.
QString FamilyUsed(const QString &family);

/// The characters that the clock shows in the year and its families lack.
QVector<MissingCharacters> MissingOf(ClockYear &clock, Lw::HNodeClock::HClockNode &node,
                                     const GlyphImages &images);

/// The texts whose images would be too large.
QVector<TooLarge> TooLargeOf(Lw::HNodeClock::HClockNode &node, GlyphImages &images);

} // namespace ClockFit
