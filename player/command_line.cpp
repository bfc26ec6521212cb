#include "command_line.h"

#include "command_options.h"
#include "instant.h"
#include "led_screen.h"

#include "command_support.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace ClockPlayer {

using namespace ClockProgram;
using namespace ClockStage;

namespace {

/// Reads and checks the options in order; keeps the first error.
class OptionReader
{
public:
    explicit OptionReader(const QCommandLineParser &parser) : m_parser(parser) { }

    CommandLine Read()
    {
        m_options.checksDisplay = IsSet(kCheckDisplay);
        m_options.platform = Text(kPlatform);
        m_options.pluginDirectory = Text(kPluginDir);
        m_options.filesDirectory = Text(kFilesDir);
        ReadProgramPath();
        ReadUseFiles();
        m_options.printsStats = IsSet(kStats);
        m_options.allowsLargeFrames = IsSet(kLargeFrames);
        ReadOutput();
        ReadWatch();
        ReadLedPitch();
        ReadKiosk();
        ReadPlacing();
        ReadInstant();
        ReadSpeed();
        ReadLanguage();
        if (m_failure)
            return *m_failure;
        return m_options;
    }

private:
    bool IsSet(const char *option) const { return m_parser.isSet(QLatin1String(option)); }
    QString Value(const char *option) const { return m_parser.value(QLatin1String(option)); }

    QString Text(const char *option)
    {
        if (IsSet(option) && Value(option).isEmpty())
            Fail(QStringLiteral("--%1 needs a value").arg(QLatin1String(option)));
        return Value(option);
    }

    void ReadProgramPath()
    {
        const QStringList paths = m_parser.positionalArguments();
        m_options.programPath = paths.isEmpty() ? Text(kDefaultProgram) : paths.first();
        if (paths.size() > 1)
            Fail(QStringLiteral("only one program can be played; unexpected \"%1\"").arg(paths[1]));
        else if (m_options.programPath.isEmpty() && !m_options.checksDisplay)
            Fail(QStringLiteral("no program to play"));
    }

    void ReadUseFiles()
    {
        m_options.usesFiles = IsSet(kUseFiles);
        if (m_options.usesFiles && IsSet(kFilesDir))
            Fail(QStringLiteral(
                "--files-dir and --use-files exclude each other: --use-files generates no images"));
    }

    void ReadWatch()
    {
        m_options.watchesProgram = IsSet(kWatch);
        if (m_options.watchesProgram && m_options.WritesFrames())
            Fail(QStringLiteral("--%1 cannot be used with --%2")
                     .arg(QLatin1String(kWatch), QLatin1String(kOutput)));
    }

    void ReadOutput()
    {
        m_options.outputDirectory = Text(kOutput);
        if (!m_options.WritesFrames() && m_options.platform.isEmpty())
            m_options.outputDirectory = Text(kDefaultOutput);
        ReadFrameNumber(kFrames, kMaximumFrames, m_options.frames);
        ReadFrameNumber(kMagnify, kMaximumMagnification, m_options.magnification);
    }

    void ReadFrameNumber(const char *option, int maximum, int &number)
    {
        ReadNumber(option, 1, maximum, number);
        if (IsSet(option) && !m_options.WritesFrames())
            Fail(QStringLiteral("--%1 needs --output").arg(QLatin1String(option)));
    }

    void ReadNumber(const char *option, int minimum, int maximum, int &number)
    {
        if (!IsSet(option))
            return;
        bool isNumber = false;
        number = Value(option).toInt(&isNumber);
        if (!isNumber || number < minimum || number > maximum)
            Fail(QStringLiteral("--%1 needs a whole number from %2 to %3, not \"%4\"")
                     .arg(QLatin1String(option), QString::number(minimum), QString::number(maximum),
                          Value(option)));
    }

    void ReadLedPitch()
    {
        ReadNumber(kLed, kMinimumLedPitch, kMaximumLedPitch, m_options.ledPitch);
        if (IsSet(kLed) && IsSet(kMagnify))
            Fail(QStringLiteral("--%1 and --%2 exclude each other")
                     .arg(QLatin1String(kLed), QLatin1String(kMagnify)));
    }

    void ReadKiosk()
    {
        m_options.isKiosk = IsSet(kKiosk);
        m_options.requiresTime = IsSet(kRequireTime);
        m_options.statusFile = Text(kStatusFile);
        const QString runtime = qEnvironmentVariable("RUNTIME_DIRECTORY");
        if (m_options.isKiosk && m_options.statusFile.isEmpty() && !runtime.isEmpty())
            m_options.statusFile = runtime + QStringLiteral("/status.json");
        if (m_options.requiresTime && !m_options.isKiosk)
            Fail(QStringLiteral("--%1 needs --%2")
                     .arg(QLatin1String(kRequireTime), QLatin1String(kKiosk)));
        for (const char *option : {kKiosk, kOffset, kRotate, kStatusFile}) {
            if (IsSet(option) && m_options.WritesFrames())
                Fail(QStringLiteral("--%1 is for a window, not for --%2")
                         .arg(QLatin1String(option), QLatin1String(kOutput)));
        }
    }

    void ReadPlacing()
    {
        ReadTurn();
        if (!IsSet(kOffset))
            return;
        static const QRegularExpression form(QStringLiteral("\\A(-?[0-9]{1,5}),(-?[0-9]{1,5})\\z"));
        const QRegularExpressionMatch match = form.match(Value(kOffset));
        if (!match.hasMatch())
            Fail(QStringLiteral("--%1 needs two whole numbers such as 16,-8, not \"%2\"")
                     .arg(QLatin1String(kOffset), Value(kOffset)));
        m_options.offset = {match.captured(1).toInt(), match.captured(2).toInt()};
    }

    void ReadTurn()
    {
        static const QStringList turns {QStringLiteral("0"), QStringLiteral("90"),
                                        QStringLiteral("180"), QStringLiteral("270")};
        if (IsSet(kRotate) && !turns.contains(Value(kRotate)))
            Fail(QStringLiteral("--%1 needs 0, 90, 180 or 270, not \"%2\"")
                     .arg(QLatin1String(kRotate), Value(kRotate)));
        m_options.turn = Value(kRotate).toInt();
    }

    void ReadSpeed()
    {
        if (!IsSet(kSpeed))
            return;
        bool isNumber = false;
        m_options.speed = Value(kSpeed).toDouble(&isNumber);
        // Written so that NaN fails.
        if (!isNumber || !(m_options.speed >= kMinimumSpeed && m_options.speed <= kMaximumSpeed))
            Fail(QStringLiteral("--%1 needs a number from %2 to %3, not \"%4\"")
                     .arg(QLatin1String(kSpeed), QString::number(kMinimumSpeed),
                          QString::number(kMaximumSpeed), Value(kSpeed)));
    }

    void ReadInstant()
    {
        if (!IsSet(kAt))
            return;
        m_options.startInstant = ParseInstant(Value(kAt));
        if (!m_options.startInstant)
            Fail(QStringLiteral("--at needs an instant such as 2024-03-31T01:59:58Z, not \"%1\"")
                     .arg(Value(kAt)));
    }

    void ReadLanguage()
    {
        m_options.language = Value(kLanguage);
        if (IsSet(kLanguage))
            Keep(CheckLanguage(m_options.language));
    }

    void Fail(const QString &text) { Keep(UsageFailure(text)); }

    void Keep(const MaybeFailure &failure)
    {
        if (!m_failure)
            m_failure = failure;
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
    AddOptions(parser);
    if (!parser.parse(arguments))
        return UsageFailure(parser.errorText());
    if (parser.isSet(QLatin1String(kHelp)))
        return Information {HelpText(
            parser,
            QStringLiteral("clock_player [options] %1").arg(QLatin1String(kProgramArgument)))};
    if (parser.isSet(QLatin1String(kVersion)))
        return Information {QStringLiteral("clock_player " CLOCK_PLAYER_VERSION "\n")};
    return OptionReader(parser).Read();
}

} // namespace ClockPlayer
