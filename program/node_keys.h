// What the programs themselves know of a node's attributes and of an element's words. All others
// are between the program file and the plugin.
#pragma once

namespace ClockProgram {

/// Identity in the names of glyph files.
inline constexpr char kIdKey[] = "Id";
/// Kind of clock.
inline constexpr char kClockTypeKey[] = "ClockType";
/// The kind that plugins do not read from an element.
inline constexpr int kPictureClock = 2;

// The words of a program that name this kind.
inline constexpr char kTypeWord[] = "type";
inline constexpr char kPictureWord[] = "picture";
inline constexpr char kOlderForm[] = "clockCom";
inline constexpr char kOlderTypeWord[] = "clockType";

} // namespace ClockProgram
