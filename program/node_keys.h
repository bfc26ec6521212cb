// program/: the few attribute keys that player and tools use themselves. All others concern only
// the program file and the plugin.
#pragma once

namespace ClockProgram {

/// Identity in the names of glyph files.
inline constexpr char kIdKey[] = "Id";
inline constexpr char kClockTypeKey[] = "ClockType";
/// The clock kind that plugins do not import from an element.
inline constexpr int kPictureClock = 2;

} // namespace ClockProgram
