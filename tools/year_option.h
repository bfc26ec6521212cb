// The option --at: from when on a year of clocks is looked at.
#pragma once

#include "tool_arguments.h"

namespace ClockTool::YearOption {

void Add(ToolArguments &tool);

/// UTC milliseconds; now where the option is not given. Fails for what is no instant.
Result<qint64> Read(const ToolArguments &tool);

} // namespace ClockTool::YearOption
