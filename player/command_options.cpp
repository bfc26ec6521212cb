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
    "In a window, whose title tells the instant, the time of a clock and its next change;\n"
    "or with --output as PNG files, without a display and without waiting.\n"
    "A clock that names no time zone shows UTC.\n"
    "\n"
    "Exit codes:\n"
    "  0  played to its end, or closed\n"
    "  1  a plugin, the display, the frames or the glyph files failed\n"
    "  2  the command line is wrong\n"
    "  3  the program file is missing or wrong; the message says where\n"
    "\n"
    "Examples:\n"
    "  clock_player station.xml\n"
    "  clock_player station.xml -platform linuxfb\n"
    "  clock_player station.xml --output frames --frames 3 --at 2024-02-29T23:59:58+01:00\n"
    "  clock_player station.xml --led 6 --at 2024-03-31T00:59:00Z --speed 10\n"
    "\n"
    "Environment:\n"
    "  DISPLAY, WAYLAND_DISPLAY   the display, for the platform plugins that have one\n"
    "  QT_QPA_PLATFORM            platform plugin where --platform names none; where it is\n"
    "                             unset too, frames are written with \"offscreen\"\n"
    "  QT_QPA_UPDATE_IDLE_TIME    milliseconds to gather changes for; 0 where it is unset\n";

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
     "Write PNG frames frame_0001.png and so on to <directory>, one for each second of the clocks' "
     "time, and print the directory's path."},
    {kFrames, nullptr, "number",
     "Number of frames to write, 1 to %1 (default %2).",
     {kMaximumFrames, kDefaultFrames}},
    {kMagnify, nullptr, "number",
     "Draw each pixel of the frames as a square of so many pixels a side, 1 to %1 (default 1). For "
     "diodes see --led.",
     {kMaximumMagnification}},
    {kLed, nullptr, "pixels",
     "Preview the wall: draw each pixel as a round diode in a black mask, <pixels> from one to the "
     "next, %1 to %2. In the window and in frames; not with --magnify.",
     {kMinimumLedPitch, kMaximumLedPitch}},
    {kAt, nullptr, "instant",
     "Begin at <instant> instead of now: ISO 8601, such as 2024-03-31T02:59:58+01:00; UTC without "
     "an offset. Frames begin at its whole second."},
    {kSpeed, nullptr, "factor",
     "Let the clocks' time run <factor> times as fast as real time, %1 to %2. Frames then lie so "
     "many seconds apart.",
     {kMinimumSpeed, kMaximumSpeed}},
    {kStats, nullptr, nullptr,
     "Print at the end to standard error how long frames took to draw and how long after the whole "
     "second they were seen, in milliseconds. SIGUSR1 prints it meanwhile."},
    {kWatch, nullptr, nullptr,
     "Play the program file again whenever it changes or is replaced. While it is broken the last "
     "good program plays on, and a message says why."},
    {kKiosk, nullptr, nullptr,
     "For devices that nobody attends: the whole screen, no cursor, no keys. What cannot be played "
     "gives a notice with a short code on the screen and is tried again; SIGHUP reads the program "
     "again; a framebuffer is blanked when no more seconds come."},
    {kRequireTime, nullptr, nullptr,
     "Show a notice instead of clocks until the device's clock is set. With --kiosk."},
    {kOffset, nullptr, "X,Y",
     "Place the picture that many pixels from the left and the top of the window; either may be "
     "negative."},
    {kRotate, nullptr, "degrees", "Turn the picture clockwise by 90, 180 or 270 degrees."},
    {kStatusFile, nullptr, "file",
     "Keep a JSON object about what plays in <file>, replaced each minute, at each fault and on "
     "SIGUSR1 (default with --kiosk: status.json in RUNTIME_DIRECTORY, where that is set)."},
    {kLargeFrames, nullptr, nullptr,
     "Play a program whose frames take more than 256 MiB of memory too."},
    {kPluginDir, nullptr, "directory",
     "Load the plugins of <directory> (default: \"plugins\" beside the directory that clock_player "
     "lies in)."},
    {kFilesDir, nullptr, "directory",
     "Write the glyph images to <directory> and leave them there (default: a temporary "
     "directory)."},
    {kUseFiles, nullptr, nullptr,
     "Play with the glyph images that came with the program, named by its <file> elements, and "
     "make none."},
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
