#include "tool_arguments.h"

#include "output.h"

#include "calendar/system_time.h"
#include "catalogues.h"
#include "command_support.h"
#include "instant.h"

namespace ClockTool {

namespace {

using namespace ClockProgram;

const QLatin1String kMore("...");
const QLatin1String kAt("at");

} // namespace

ToolArguments::ToolArguments(const QString &name, const QString &description) : m_name(name)
{
    m_parser.setApplicationDescription(description);
    AddInformationOptions(m_parser);
}

void ToolArguments::AddPositional(const QString &name, const QString &description)
{
    m_positionals.append(name);
    m_parser.addPositionalArgument(name, description);
}

void ToolArguments::AddOption(const QStringList &names, const QString &description,
                              const QString &value, const QString &defaultValue)
{
    m_parser.addOption({names, description, value, defaultValue});
}

void ToolArguments::AddFlag(const QString &name, const QString &description)
{
    m_parser.addOption({name, description});
}

void ToolArguments::AddAlternative(const QString &name, const QString &description)
{
    m_alternative = name;
    m_parser.addOption({name, description});
}

void ToolArguments::AddOutput()
{
    m_writesOutput = true;
    AddOption({QStringLiteral("o"), QLatin1String(kOutput)},
              QStringLiteral("Write to <file> instead of standard output."),
              QStringLiteral("file"));
}

void ToolArguments::AddLanguage()
{
    AddLanguageOption(m_parser);
}

void ToolArguments::AddYear()
{
    AddOption({kAt},
              QStringLiteral("Start of the year to check, ISO 8601, UTC unless an offset is "
                             "given (default: now)."),
              QStringLiteral("instant"));
}

Result<qint64> ToolArguments::YearBegin() const
{
    if (!IsSet(kAt))
        return Lw::HNodeClock::SystemMilliseconds();
    const std::optional<qint64> instant = ClockStage::ParseInstant(Value(kAt));
    if (!instant)
        return UsageFailure(
            QStringLiteral("--at needs an instant such as 2026-09-01T12:00:00Z, not \"%1\"")
                .arg(Value(kAt)));
    return *instant;
}

void ToolArguments::AddLargeFrames()
{
    AddFlag(QLatin1String(ClockProgram::kLargeFrames),
            QStringLiteral("Also draw programs whose frames take more than 256 MiB of memory."));
}

bool ToolArguments::AllowsLargeFrames() const
{
    return m_parser.isSet(QLatin1String(ClockProgram::kLargeFrames));
}

std::optional<CommandResult> ToolArguments::Parse(const QStringList &arguments)
{
    QStringList own = arguments;
    own.removeAt(1);
    if (!m_parser.parse(own))
        return Report(UsageFailure(m_parser.errorText()));
    if (IsSet(QLatin1String(kHelp))) {
        const QString usage = QStringLiteral("clock_tool %1 [options] %2")
                                  .arg(m_name, m_positionals.join(QLatin1Char(' ')));
        return Deliver(QString(), HelpText(m_parser, usage.trimmed()).toLocal8Bit());
    }
    if (IsSet(QLatin1String(kVersion)))
        return Deliver(QString(), "clock_tool " CLOCK_TOOL_VERSION "\n");
    if (const MaybeFailure failure = CheckGiven())
        return Report(*failure);
    return std::nullopt;
}

MaybeFailure ToolArguments::CheckGiven() const
{
    const QStringList given = Positionals();
    const bool isAlternative = !m_alternative.isEmpty() && IsSet(m_alternative);
    if (isAlternative && !given.isEmpty())
        return UsageFailure(
            QStringLiteral("--%1 takes no argument, got \"%2\"").arg(m_alternative, given[0]));
    if (!isAlternative && given.size() < m_positionals.size()
        && !m_positionals[given.size()].startsWith(QLatin1Char('[')))
        return UsageFailure(QStringLiteral("%1 needs %2")
                                .arg(m_name, QString(m_positionals[given.size()]).remove(kMore)));
    const bool takesMore = !m_positionals.isEmpty() && m_positionals.last().endsWith(kMore);
    if (given.size() > m_positionals.size() && !takesMore)
        return UsageFailure(QStringLiteral("%1: unexpected argument \"%2\"")
                                .arg(m_name, given[m_positionals.size()]));
    if (m_writesOutput && IsSet(QLatin1String(kOutput)) && Output().isEmpty())
        return UsageFailure(QStringLiteral("-o needs a file"));
    return std::nullopt;
}

QString ToolArguments::Output() const
{
    return Value(QLatin1String(kOutput));
}

MaybeFailure ToolArguments::InstallLanguage() const
{
    const QLatin1String option(kLanguage);
    if (IsSet(option)) {
        if (const MaybeFailure failure = CheckLanguage(Value(option)))
            return failure;
    }
    ClockCatalogues::InstallOrDefault(Value(option));
    return std::nullopt;
}

} // namespace ClockTool
