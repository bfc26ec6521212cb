// A program with its clocks, made by the clock's own code.
#pragma once

#include "clock_node.h"
#include "commands.h"
#include "node_maker.h"

#include <QVector>

namespace ClockTool {

struct ProgramClocks
{
    ClockProgram::Program program;
    ClockProgram::MadeNodes made; ///< owns the nodes

    /// The clock in an area; areas count from 0.
    Lw::HNodeClock::HClockNode &Clock(int area) const;
    int Count() const { return program.areas.size(); }
};

/// Reads a program and makes its clocks. Warnings are printed.
Result<ProgramClocks> ReadClocks(const QString &path);

/// The same from a program's text.
Result<ProgramClocks> ParseClocks(const QByteArray &contents, const QString &path);

} // namespace ClockTool
