#include "command_options.h"

#include "command_line.h"
#include "controls.h"
#include "led_screen.h"

#include "command_support.h"

#include <QCommandLineParser>

namespace ClockPlayer {

using namespace ClockProgram;
using namespace ClockStage;

namespace {

constexpr char kDescription[] =
    "Plays a content program: an XML file that places clocks on a screen.\n"
    "\n"
    "It plays in a window, whose title shows the instant, the time of a clock and its next "
    "change,\n"
    "or with --output writes PNG files, without a display and without waiting.\n"
    "A clock without a time zone shows UTC.\n"
    "\n"
    "Exit codes:\n"
    "  0  all frames written, or the window was closed\n"
    "  1  a plugin, the display, the frames or the glyph files failed\n"
    "  2  the command line is wrong\n"
    "  3  the program file is missing or invalid; the message says where\n"
    "\n"
    "Examples:\n"
    "  clock_player station.xml\n"
    "  clock_player station.xml -platform linuxfb\n"
    "  clock_player station.xml --output frames --frames 3 --at 2024-02-29T23:59:58+01:00\n"
    "  clock_player station.xml --led 6 --at 2024-03-31T00:59:00Z --speed 10\n"
    "\n"
    "Environment:\n"
    "  DISPLAY, WAYLAND_DISPLAY   the display, for platform plugins that need one\n"
    "  QT_QPA_PLATFORM            platform plugin without --platform; if neither is given,\n"
    "                             --output uses \"offscreen\"\n"
    "  QT_QPA_UPDATE_IDLE_TIME    milliseconds to collect changes before painting (default: 0)\n";

QString Indented(QString text)
{
    return QStringLiteral("  ") + text.replace(QLatin1Char('\n'), QStringLiteral("\n  "));
}

/// An option that --help lists.
struct OptionRow
{
    const char *name;
    const char *letter; ///< its short form; null: none
    const char *value;  ///< what its value is called; null: it takes none
    const char *help;
    double numbers[2] = {}; ///< inserted into the help for %1 and %2; 0: none
};

// clang-format off
constexpr OptionRow kOptions[] = {
    {kOutput, "o", "directory",
     "Write PNG frames frame_0001.png and so on to <directory>, one per second of the clocks' "
     "time, and print the directory's path."},
    {kFrames, nullptr, "number",
     "Number of frames to write, 1 to %1 (default %2).",
     {kMaximumFrames, kDefaultFrames}},
    {kMagnify, nullptr, "number",
     "Draw each pixel of the frames as a square with sides of <number> pixels, 1 to %1 (default 1). "
     "For LEDs see --led.",
     {kMaximumMagnification}},
    {kLed, nullptr, "pixels",
     "Preview the wall: draw each pixel as a round LED in a black mask, with a pitch of <pixels>, "
     "%1 to %2. In the window and in frames; not with --magnify.",
     {kMinimumLedPitch, kMaximumLedPitch}},
    {kAt, nullptr, "instant",
     "Start at <instant> instead of now: ISO 8601, such as 2024-03-31T02:59:58+01:00; UTC without "
     "an offset. The first frame shows the whole second at or before it."},
    {kSpeed, nullptr, "factor",
     "Run the clocks <factor> times as fast as real time, %1 to %2. Frames are then "
     "<factor> seconds apart.",
     {kMinimumSpeed, kMaximumSpeed}},
    {kStats, nullptr, nullptr,
     "At the end, print to standard error how long frames took to draw and how long after the "
     "whole second they appeared, in milliseconds. SIGUSR1 prints this at any time."},
    {kWatch, nullptr, nullptr,
     "Reload the program file whenever it changes or is replaced. While it is broken, the last "
     "good program keeps playing, and a message says why."},
    {kKiosk, nullptr, nullptr,
     "For unattended devices: full screen, no cursor, no keys. If a program cannot be played, "
     "the screen shows a notice with a short code, and the player tries again; SIGHUP reloads "
     "the program; a framebuffer is blanked if the clocks stop updating."},
    {kRequireTime, nullptr, nullptr,
     "Show a notice instead of clocks until the system clock is set. Needs --kiosk."},
    {kOffset, nullptr, "X,Y",
     "Place the picture X pixels from the left and Y pixels from the top of the window; either may "
     "be negative."},
    {kRotate, nullptr, "degrees", "Turn the picture clockwise by 0, 90, 180 or 270 degrees."},
    {kStatusFile, nullptr, "file",
     "Write the playback status as a JSON object to <file>, every minute, at each fault and on "
     "SIGUSR1 (default with --kiosk: status.json in RUNTIME_DIRECTORY, where that is set)."},
    {kLargeFrames, nullptr, nullptr,
     "Also play programs whose frames take more than 256 MiB of memory."},
    {kPluginDir, nullptr, "directory",
     "Load the plugins from <directory> (default: ../plugins, relative to the directory of "
     "clock_player)."},
    {kFilesDir, nullptr, "directory",
     "Write the glyph images to <directory> and leave them there (default: a temporary "
     "directory)."},
    {kUseFiles, nullptr, nullptr,
     "Play with the glyph images named by the program's <file> elements, and generate "
     "none."},
    {kPlatform, nullptr, "name",
     "Qt platform plugin to show the window with, such as xcb or linuxfb."},
};
// clang-format on

QString HelpOf(const OptionRow &row)
{
    QString help = QString::fromLatin1(row.help);
    for (const double number : row.numbers) {
        constexpr int kDigits = 7; // no exponent notation up to a million
        if (number != 0)
            help = help.arg(number, 0, 'g', kDigits);
    }
    return help;
}

QCommandLineOption OptionOf(const OptionRow &row)
{
    QStringList names {QLatin1String(row.name)};
    if (row.letter)
        names.prepend(QLatin1String(row.letter));
    return {names, HelpOf(row), QLatin1String(row.value)};
}

QCommandLineOption Hidden(const char *name, const QString &value)
{
    QCommandLineOption option(QLatin1String(name), QString(), value);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

} // namespace

void AddOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QString::fromLatin1(kDescription)
                                     + QLatin1String(kSharedEnvironment)
                                     + QStringLiteral("\nKeys:\n") + Indented(KeysText()));
    parser.addPositionalArgument(QLatin1String(kProgramArgument),
                                 QStringLiteral("The content program to play."));
    AddInformationOptions(parser);
    for (const OptionRow &row : kOptions)
        parser.addOption(OptionOf(row));
    AddLanguageOption(parser);
    for (const char *name : {kDefaultProgram, kDefaultOutput})
        parser.addOption(Hidden(name, QStringLiteral("value")));
    parser.addOption(Hidden(kCheckDisplay, QString()));
}

} // namespace ClockPlayer
