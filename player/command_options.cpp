#include "command_options.h"

#include "command_line.h"
#include "controls.h"
#include "led_screen.h"

#include "catalogues.h"

#include <QCommandLineParser>

namespace ClockPlayer {

namespace {

const char kDescription[] =
    "Plays a content program: an XML file that places clocks on a screen.\n"
    "\n"
    "In a window, or with --output as PNG files, without a display and without waiting.\n"
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
    "Keys in the window, whose title tells the instant, the time of a clock and its next change:\n";

QString Indented(QString text)
{
    return QStringLiteral("  ") + text.replace(QLatin1Char('\n'), QStringLiteral("\n  "));
}

QCommandLineOption Hidden(QCommandLineOption option)
{
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

} // namespace

QString LanguageList()
{
    return ClockCatalogues::Languages().join(QStringLiteral(", "));
}

void AddOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QString::fromLatin1(kDescription) + Indented(KeysText()));
    parser.addPositionalArgument(QStringLiteral("program.xml"),
                                 QStringLiteral("The content program to play."));
    parser.addOption({{QStringLiteral("h"), kHelp}, QStringLiteral("Show this text.")});
    parser.addOption({{QStringLiteral("v"), kVersion}, QStringLiteral("Show the version.")});
    parser.addOption({{QStringLiteral("o"), kOutput},
                      QStringLiteral("Write PNG frames frame_0001.png and so on to <directory>, "
                                     "one for each second of the clocks' time, and print the "
                                     "directory's path."),
                      QStringLiteral("directory")});
    parser.addOption({kFrames,
                      QStringLiteral("Number of frames to write, 1 to %1 (default %2).")
                          .arg(kMaximumFrames)
                          .arg(kDefaultFrames),
                      QStringLiteral("number")});
    parser.addOption({kMagnify,
                      QStringLiteral("Draw each pixel of the frames as a square of so many pixels "
                                     "a side, 1 to %1 (default 1). For diodes see --led.")
                          .arg(kMaximumMagnification),
                      QStringLiteral("number")});
    parser.addOption(
        {kLed,
         QStringLiteral("Preview the wall: draw each pixel as a round diode in a black "
                        "mask, <pixels> from one to the next, %1 to %2. In the window "
                        "and in frames; not with --magnify.")
             .arg(kMinimumLedPitch)
             .arg(kMaximumLedPitch),
         QStringLiteral("pixels")});
    parser.addOption({kAt,
                      QStringLiteral("Begin at <instant> instead of now: ISO 8601, such as "
                                     "2024-03-31T02:59:58+01:00; UTC without an offset. Frames "
                                     "begin at its whole second."),
                      QStringLiteral("instant")});
    parser.addOption(
        {kSpeed,
         QStringLiteral("Let the clocks' time run <factor> times as fast as real time, "
                        "%1 to %2. Frames then lie so many seconds apart.")
             .arg(kMinimumSpeed)
             .arg(kMaximumSpeed),
         QStringLiteral("factor")});
    parser.addOption({kStats,
                      QStringLiteral("Print at the end to standard error how long frames took to "
                                     "draw and how long after the whole second they were seen, in "
                                     "milliseconds. SIGUSR1 prints it meanwhile.")});
    parser.addOption({kLanguage,
                      QStringLiteral("Language of the clocks' wording: %1 (default: the "
                                     "locale's).")
                          .arg(LanguageList()),
                      QStringLiteral("language")});
    parser.addOption({kPluginDir,
                      QStringLiteral("Load the plugins of <directory> (default: \"plugins\" "
                                     "beside the directory that clock_player lies in)."),
                      QStringLiteral("directory")});
    parser.addOption({kFilesDir,
                      QStringLiteral("Write the glyph images to <directory> and leave them there "
                                     "(default: a temporary directory)."),
                      QStringLiteral("directory")});
    parser.addOption({kUseFiles,
                      QStringLiteral("Play with the glyph images that came with the program, named "
                                     "by its <file> elements, and make none.")});
    parser.addOption({kPlatform,
                      QStringLiteral("Qt platform plugin to show the window with, such as xcb or "
                                     "linuxfb."),
                      QStringLiteral("name")});
    const QString value = QStringLiteral("value");
    parser.addOption(Hidden({kDefaultProgram, QString(), value}));
    parser.addOption(Hidden({kDefaultOutput, QString(), value}));
    parser.addOption(Hidden(QCommandLineOption(kCheckDisplay)));
}

} // namespace ClockPlayer
