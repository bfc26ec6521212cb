// tools/: the subcommands of clock_tool, one per file.
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

/// The arguments start with "clock_tool" and the subcommand's name.
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

/// Prints one line on standard error, prefixed with "clock_tool: ".
void Say(const QString &text);

/// Prints the reason and returns the exit code.
CommandResult Report(const Failure &failure);

} // namespace ClockTool
