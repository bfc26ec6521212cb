// program/: the few attribute keys and XML names that the programs themselves use. All others
// concern only the program file and the plugin.
#pragma once

namespace ClockProgram {

/// Identity in the names of glyph files.
inline constexpr char kIdKey[] = "Id";
inline constexpr char kClockTypeKey[] = "ClockType";
/// The clock kind that plugins do not import from an element.
inline constexpr int kPictureClock = 2;

// The words of a program that name this kind.
inline constexpr char kTypeWord[] = "type";
inline constexpr char kPictureWord[] = "picture";
inline constexpr char kOlderForm[] = "clockCom";
inline constexpr char kOlderTypeWord[] = "clockType";

} // namespace ClockProgram
