// program/: the few attribute keys that player, tools and studio use themselves. All others concern
// only the program file and the plugin.
#pragma once

namespace ClockProgram {

/// The key of a clock's Id, which is part of the names of its glyph files.
inline constexpr char kIdKey[] = "Id";
inline constexpr char kClockTypeKey[] = "ClockType";
/// The clock kind that plugins do not import from an element.
inline constexpr int kPictureClock = 2;

} // namespace ClockProgram
