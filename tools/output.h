// Where results go.
#pragma once

#include "commands.h"

#include <QByteArray>

namespace ClockTool {

/// Writes a result to a file, or to standard output where the path is empty, and says what failed.
/// Links are followed.
CommandResult Deliver(const QString &path, const QByteArray &contents);

/// While it lives, what the clocks print about their files goes nowhere, so that standard output
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
