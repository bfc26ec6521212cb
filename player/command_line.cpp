#include "command_line.h"

#include "command_options.h"
#include "instant.h"
#include "led_screen.h"

#include "catalogues.h"

#include <QCommandLineParser>

namespace ClockPlayer {

namespace {

Failure UsageFailure(const QString &text)
{
    return {ExitCode::UsageError, text + QStringLiteral(" (see --help)")};
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
        ReadUseFiles();
        m_options.printsStats = m_parser.isSet(kStats);
        ReadOutput();
        ReadLedPitch();
        ReadInstant();
        ReadSpeed();
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

    void ReadUseFiles()
    {
        m_options.usesFiles = m_parser.isSet(kUseFiles);
        if (m_options.usesFiles && m_parser.isSet(kFilesDir))
            Fail(QStringLiteral("--files-dir is where images are made; --use-files makes none"));
    }

    void ReadOutput()
    {
        m_options.outputDirectory = Text(kOutput);
        if (!m_options.WritesFrames() && m_options.platform.isEmpty())
            m_options.outputDirectory = Text(kDefaultOutput);
        ReadFrameNumber(kFrames, kMaximumFrames, m_options.frames);
        ReadFrameNumber(kMagnify, kMaximumMagnification, m_options.magnification);
    }

    void ReadFrameNumber(const QString &option, int maximum, int &number)
    {
        ReadNumber(option, 1, maximum, number);
        if (m_parser.isSet(option) && !m_options.WritesFrames())
            Fail(QStringLiteral("--%1 needs --output").arg(option));
    }

    void ReadNumber(const QString &option, int minimum, int maximum, int &number)
    {
        if (!m_parser.isSet(option))
            return;
        bool isNumber = false;
        number = m_parser.value(option).toInt(&isNumber);
        if (!isNumber || number < minimum || number > maximum)
            Fail(QStringLiteral("--%1 needs a whole number from %2 to %3, not \"%4\"")
                     .arg(option, QString::number(minimum), QString::number(maximum),
                          m_parser.value(option)));
    }

    void ReadLedPitch()
    {
        ReadNumber(kLed, kMinimumLedPitch, kMaximumLedPitch, m_options.ledPitch);
        if (m_parser.isSet(kLed) && m_parser.isSet(kMagnify))
            Fail(QStringLiteral("--%1 and --%2 exclude each other").arg(kLed, kMagnify));
    }

    void ReadSpeed()
    {
        if (!m_parser.isSet(kSpeed))
            return;
        bool isNumber = false;
        m_options.speed = m_parser.value(kSpeed).toDouble(&isNumber);
        // What is not a number is not within the bounds either.
        if (!isNumber || !(m_options.speed >= kMinimumSpeed && m_options.speed <= kMaximumSpeed))
            Fail(QStringLiteral("--%1 needs a number from %2 to %3, not \"%4\"")
                     .arg(kSpeed, QString::number(kMinimumSpeed), QString::number(kMaximumSpeed),
                          m_parser.value(kSpeed)));
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
    AddOptions(parser);
    if (!parser.parse(arguments))
        return UsageFailure(parser.errorText());
    if (parser.isSet(kHelp))
        return Information {parser.helpText()};
    if (parser.isSet(kVersion))
        return Information {QStringLiteral("clock_player " CLOCK_PLAYER_VERSION "\n")};
    return OptionReader(parser).Read();
}

} // namespace ClockPlayer
