#include "year_option.h"

#include "calendar/system_time.h"
#include "command_support.h"
#include "instant.h"

namespace ClockTool::YearOption {

namespace {

const QLatin1String kAt("at");

} // namespace

void Add(ToolArguments &tool)
{
    tool.AddOption({kAt},
                   QStringLiteral("Start of the year to check, ISO 8601, UTC unless an offset is "
                                  "given (default: now)."),
                   QStringLiteral("instant"));
}

Result<qint64> Read(const ToolArguments &tool)
{
    if (!tool.IsSet(kAt))
        return Lw::HNodeClock::SystemMilliseconds();
    const std::optional<qint64> instant = ClockStage::ParseInstant(tool.Value(kAt));
    if (!instant)
        return ClockProgram::UsageFailure(
            QStringLiteral("--at needs an instant such as 2026-09-01T12:00:00Z, not \"%1\"")
                .arg(tool.Value(kAt)));
    return *instant;
}

} // namespace ClockTool::YearOption
