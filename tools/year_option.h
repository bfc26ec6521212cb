// tools/: the option --at: the start of the year that lint and fit check.
#pragma once

#include "tool_arguments.h"

namespace ClockTool::YearOption {

void Add(ToolArguments &tool);

/// UTC milliseconds; now without the option. Fails if the value is not an instant.
Result<qint64> Read(const ToolArguments &tool);

} // namespace ClockTool::YearOption
