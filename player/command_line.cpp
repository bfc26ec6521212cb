#include "command_line.h"

#include "catalogues.h"
#include "instant.h"

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
    "  clock_player station.xml --output frames --frames 3 --at 2024-02-29T23:59:58+01:00";

const QString kOutput = QStringLiteral("output");
const QString kFrames = QStringLiteral("frames");
const QString kAt = QStringLiteral("at");
const QString kLanguage = QStringLiteral("language");
const QString kPluginDir = QStringLiteral("plugin-dir");
const QString kFilesDir = QStringLiteral("files-dir");
const QString kPlatform = QStringLiteral("platform");
// For scripts that start the player: what to play, and where to write, when nothing was said.
const QString kDefaultProgram = QStringLiteral("default-program");
const QString kDefaultOutput = QStringLiteral("default-output");
const QString kCheckDisplay = QStringLiteral("check-display");

Failure UsageFailure(const QString &text)
{
    return {ExitCode::UsageError, text + QStringLiteral(" (see --help)")};
}

QCommandLineOption Hidden(QCommandLineOption option)
{
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

QString LanguageList()
{
    return ClockCatalogues::Languages().join(QStringLiteral(", "));
}

void AddOptions(QCommandLineParser &parser)
{
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
    parser.addOption({kAt,
                      QStringLiteral("Begin at <instant> instead of now: ISO 8601, such as "
                                     "2024-03-31T02:59:58+01:00; UTC without an offset. Frames "
                                     "begin at its whole second."),
                      QStringLiteral("instant")});
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
    parser.addOption({kPlatform,
                      QStringLiteral("Qt platform plugin to show the window with, such as xcb or "
                                     "linuxfb."),
                      QStringLiteral("name")});
    const QString value = QStringLiteral("value");
    parser.addOption(Hidden({kDefaultProgram, QString(), value}));
    parser.addOption(Hidden({kDefaultOutput, QString(), value}));
    parser.addOption(Hidden(QCommandLineOption(kCheckDisplay)));
}

/// Checks what the options say, one after the other; the first thing wrong is kept.
class OptionReader
{
public:
    explicit OptionReader(const QCommandLineParser &parser) : m_parser(parser) { }

    CommandLine Read()
    {
        m_options.checkDisplay = m_parser.isSet(kCheckDisplay);
        m_options.platform = Text(kPlatform);
        m_options.pluginDirectory = Text(kPluginDir);
        m_options.filesDirectory = Text(kFilesDir);
        ReadProgramPath();
        ReadOutput();
        ReadInstant();
        ReadLanguage();
        if (m_failure)
            return *m_failure;
        return m_options;
    }

private:
    QString Text(const QString &option)
    {
        if (m_parser.isSet(option) && m_parser.value(option).isEmpty())
            Fail(QStringLiteral("--%1 needs a value").arg(option));
        return m_parser.value(option);
    }

    void ReadProgramPath()
    {
        const QStringList paths = m_parser.positionalArguments();
        m_options.programPath = paths.isEmpty() ? Text(kDefaultProgram) : paths.first();
        if (paths.size() > 1)
            Fail(QStringLiteral("only one program can be played, not also \"%1\"").arg(paths[1]));
        else if (m_options.programPath.isEmpty() && !m_options.checkDisplay)
            Fail(QStringLiteral("no program to play"));
    }

    void ReadOutput()
    {
        m_options.outputDirectory = Text(kOutput);
        if (!m_options.WritesFrames() && m_options.platform.isEmpty())
            m_options.outputDirectory = Text(kDefaultOutput);
        if (!m_parser.isSet(kFrames))
            return;
        bool isNumber = false;
        m_options.frames = m_parser.value(kFrames).toInt(&isNumber);
        if (!isNumber || m_options.frames < 1 || m_options.frames > kMaximumFrames)
            Fail(QStringLiteral("--frames needs a whole number from 1 to %1, not \"%2\"")
                     .arg(QString::number(kMaximumFrames), m_parser.value(kFrames)));
        else if (!m_options.WritesFrames())
            Fail(QStringLiteral("--frames needs --output"));
    }

    void ReadInstant()
    {
        if (!m_parser.isSet(kAt))
            return;
        m_options.startInstant = ParseInstant(m_parser.value(kAt));
        if (!m_options.startInstant)
            Fail(QStringLiteral("--at needs an instant such as 2024-03-31T01:59:58Z, not \"%1\"")
                     .arg(m_parser.value(kAt)));
    }

    void ReadLanguage()
    {
        m_options.language = m_parser.value(kLanguage);
        if (m_parser.isSet(kLanguage) && !ClockCatalogues::Languages().contains(m_options.language))
            Fail(QStringLiteral("no language \"%1\"; there are %2")
                     .arg(m_options.language, LanguageList()));
    }

    void Fail(const QString &text)
    {
        if (!m_failure)
            m_failure = UsageFailure(text);
    }

    const QCommandLineParser &m_parser;
    Options m_options;
    MaybeFailure m_failure;
};

} // namespace

CommandLine ParseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    // Qt's own options are written with one dash: -platform linuxfb.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(QString::fromLatin1(kDescription));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this text."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version."));
    parser.addOptions({help, version});
    parser.addPositionalArgument(QStringLiteral("program.xml"),
                                 QStringLiteral("The content program to play."));
    AddOptions(parser);
    if (!parser.parse(arguments))
        return UsageFailure(parser.errorText());
    if (parser.isSet(help))
        return Information {parser.helpText()};
    if (parser.isSet(version))
        return Information {QStringLiteral("clock_player " CLOCK_PLAYER_VERSION "\n")};
    return OptionReader(parser).Read();
}

} // namespace ClockPlayer
