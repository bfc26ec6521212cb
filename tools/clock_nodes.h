// tools/: reads a program and creates its clock nodes with the plugin's own code.
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

    void SayWarnings() const;
};

/// Reads a program and creates its clocks. Prints warnings.
Result<ProgramClocks> ReadClocks(const QString &path);

/// The same from a program's text; prints no warnings.
Result<ProgramClocks> ParseClocks(const QByteArray &contents, const QString &path);

} // namespace ClockTool
