#include "tool_arguments.h"

#include "catalogues.h"

#include <cstdio>

namespace ClockTool {

namespace {

const QString kOutput = QStringLiteral("output");
const QString kLanguage = QStringLiteral("language");
const QString kHelp = QStringLiteral("help");
const QString kVersion = QStringLiteral("version");

Failure UsageFailure(const QString &text)
{
    return {ExitCode::UsageError, text + QStringLiteral(" (see --help)")};
}

QString Languages()
{
    return ClockCatalogues::Languages().join(QStringLiteral(", "));
}

} // namespace

ToolArguments::ToolArguments(const QString &name, const QString &description) : m_name(name)
{
    m_parser.setApplicationDescription(description);
    m_parser.addOption({{QStringLiteral("h"), kHelp}, QStringLiteral("Show this text.")});
    m_parser.addOption({{QStringLiteral("v"), kVersion}, QStringLiteral("Show the version.")});
}

void ToolArguments::AddPositional(const QString &name, const QString &description)
{
    m_positionals.append(name);
    m_parser.addPositionalArgument(name, description);
}

void ToolArguments::AddOption(const QStringList &names, const QString &description,
                              const QString &value)
{
    m_parser.addOption({names, description, value});
}

void ToolArguments::AddOutput()
{
    m_writesOutput = true;
    AddOption({QStringLiteral("o"), kOutput},
              QStringLiteral("Write to <file> instead of standard output."),
              QStringLiteral("file"));
}

void ToolArguments::AddLanguage()
{
    AddOption({kLanguage},
              QStringLiteral("Language of the clocks' wording: %1 (default: the locale's).")
                  .arg(Languages()),
              QStringLiteral("language"));
}

std::optional<CommandResult> ToolArguments::Parse(const QStringList &arguments)
{
    QStringList own = arguments;
    own.removeAt(1);
    if (!m_parser.parse(own))
        return Report(UsageFailure(m_parser.errorText()));
    if (m_parser.isSet(kHelp)) {
        std::fputs(qPrintable(HelpText()), stdout);
        return ExitCode::Success;
    }
    if (m_parser.isSet(kVersion)) {
        std::puts("clock_tool " CLOCK_TOOL_VERSION);
        return ExitCode::Success;
    }
    const QStringList given = m_parser.positionalArguments();
    if (given.size() < m_positionals.size())
        return Report(
            UsageFailure(QStringLiteral("%1 needs %2").arg(m_name, m_positionals[given.size()])));
    if (given.size() > m_positionals.size())
        return Report(UsageFailure(
            QStringLiteral("%1 has no use for \"%2\"").arg(m_name, given[m_positionals.size()])));
    if (m_writesOutput && m_parser.isSet(kOutput) && Output().isEmpty())
        return Report(UsageFailure(QStringLiteral("-o needs a file")));
    return std::nullopt;
}

/// Qt's first line knows nothing of subcommands.
QString ToolArguments::HelpText() const
{
    const QString text = m_parser.helpText();
    return QStringLiteral("Usage: clock_tool %1 [options] %2")
               .arg(m_name, m_positionals.join(QLatin1Char(' ')))
               .trimmed()
        + text.mid(text.indexOf(QLatin1Char('\n')));
}

QString ToolArguments::Output() const
{
    return m_parser.value(kOutput);
}

MaybeFailure ToolArguments::InstallLanguage() const
{
    const QString language = m_parser.value(kLanguage);
    if (ClockCatalogues::InstallChosen(language))
        return std::nullopt;
    return UsageFailure(
        QStringLiteral("no language \"%1\"; there are %2").arg(language, Languages()));
}

} // namespace ClockTool
