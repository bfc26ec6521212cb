// Where results go.
#pragma once

#include "commands.h"

#include <QByteArray>

namespace ClockTool {

/// Writes a file whole or not at all: what stood under its name stays until the new one is
/// complete.
MaybeFailure WriteFile(const QString &path, const QByteArray &contents);

/// Writes a result to a file, or to standard output where the path is empty, and says what failed.
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
