// tools/: writes a command's result to a file or standard output.
#pragma once

#include "commands.h"

#include <QByteArray>

namespace ClockTool {

/// Writes a result to a file, or to standard output if the path is empty; reports failures.
/// Links are followed.
CommandResult Deliver(const QString &path, const QByteArray &contents);

/// While it exists, what the clocks print about their files is discarded, so that standard output
/// holds results only.
class QuietOutput
{
public:
    QuietOutput();
    ~QuietOutput();
    QuietOutput(const QuietOutput &) = delete;
    QuietOutput &operator=(const QuietOutput &) = delete;

private:
    int m_kept;
};

} // namespace ClockTool
