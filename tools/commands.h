// The subcommands of clock_tool, one file each.
#pragma once

#include "failure.h"

#include <QString>
#include <QStringList>

namespace ClockTool {

using ClockProgram::ExitCode;
using ClockProgram::Failure;
using ClockProgram::MaybeFailure;
using ClockProgram::Result;

/// How a subcommand ended; messages have been printed.
using CommandResult = ExitCode;

/// The arguments begin with "clock_tool NAME".
CommandResult RunLint(const QStringList &arguments);
CommandResult RunFit(const QStringList &arguments);
CommandResult RunSdk(const QStringList &arguments);
CommandResult RunImport(const QStringList &arguments);
CommandResult RunExport(const QStringList &arguments);
CommandResult RunGlyphs(const QStringList &arguments);
CommandResult RunAttributes(const QStringList &arguments);
CommandResult RunFonts(const QStringList &arguments);
CommandResult RunZone(const QStringList &arguments);
CommandResult RunSelfTest(const QStringList &arguments);

/// A line for the person at the shell, on standard error.
void Say(const QString &text);

/// Prints the reason and returns the exit code.
CommandResult Report(const Failure &failure);

} // namespace ClockTool
