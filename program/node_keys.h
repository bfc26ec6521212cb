// The attributes that the player itself knows of a node. All others are between the program and
// the plugin.
#pragma once

namespace ClockProgram {

/// Identity in the names of glyph files.
inline constexpr char kIdKey[] = "Id";
/// Kind of clock.
inline constexpr char kClockTypeKey[] = "ClockType";
/// The kind that elements cannot say: its settings are all given as attributes.
inline constexpr int kPictureClock = 2;

} // namespace ClockProgram
