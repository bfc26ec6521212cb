// player/: the names of the player's own command-line options, and the text of --help
// for all options.
#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QCommandLineParser;
QT_END_NAMESPACE

namespace ClockPlayer {

inline constexpr char kFrames[] = "frames";
inline constexpr char kMagnify[] = "magnify";
inline constexpr char kLed[] = "led";
inline constexpr char kAt[] = "at";
inline constexpr char kSpeed[] = "speed";
inline constexpr char kStats[] = "stats";
inline constexpr char kWatch[] = "watch";
inline constexpr char kKiosk[] = "kiosk";
inline constexpr char kRequireTime[] = "require-time";
inline constexpr char kOffset[] = "offset";
inline constexpr char kRotate[] = "rotate";
inline constexpr char kStatusFile[] = "status-file";
inline constexpr char kPluginDir[] = "plugin-dir";
inline constexpr char kFilesDir[] = "files-dir";
inline constexpr char kUseFiles[] = "use-files";
inline constexpr char kPlatform[] = "platform";
// Hidden options for the script `run`: defaults for the program and the output directory.
inline constexpr char kDefaultProgram[] = "default-program";
inline constexpr char kDefaultOutput[] = "default-output";
inline constexpr char kCheckDisplay[] = "check-display";

/// The name of the positional argument.
inline constexpr char kProgramArgument[] = "PROGRAM.xml";

/// Adds the options, the description and the one argument.
void AddOptions(QCommandLineParser &parser);

} // namespace ClockPlayer
