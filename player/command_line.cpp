#include "command_line.h"

#include "command_options.h"
#include "instant.h"

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
        if (!m_parser.isSet(option))
            return;
        bool isNumber = false;
        number = m_parser.value(option).toInt(&isNumber);
        if (!isNumber || number < 1 || number > maximum)
            Fail(QStringLiteral("--%1 needs a whole number from 1 to %2, not \"%3\"")
                     .arg(option, QString::number(maximum), m_parser.value(option)));
        else if (!m_options.WritesFrames())
            Fail(QStringLiteral("--%1 needs --output").arg(option));
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
