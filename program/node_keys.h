// The attributes that the player itself knows of a node. All others are between the program and
// the plugin.
#pragma once

#include <QString>

namespace ClockProgram {

/// Identity in the names of glyph files.
const QString kIdKey = QStringLiteral("Id");
/// Kind of clock.
const QString kClockTypeKey = QStringLiteral("ClockType");
/// The kind that elements cannot say: its settings are all given as attributes.
constexpr int kPictureClock = 2;

} // namespace ClockProgram
