#include "clock_nodes.h"

#include "clock_finder.h"

namespace ClockTool {

namespace {

using ClockProgram::MadeNodes;
using ClockProgram::Program;

Result<ProgramClocks> MakeClocks(const Result<Program> &program)
{
    if (!program)
        return program.Error();
    ProgramClocks clocks;
    clocks.program = *program;
    Result<MadeNodes> made = ClockProgram::MakeNodes(clocks.program, FindClockPlugin);
    if (!made)
        return made.Error();
    clocks.made = std::move(*made);
    return clocks;
}

} // namespace

Lw::HNodeClock::HClockNode &ProgramClocks::Clock(int area) const
{
    // Only the clock plugin makes nodes here.
    return static_cast<Lw::HNodeClock::HClockNode &>(
        *made.nodes[static_cast<std::size_t>(area)].node);
}

void ProgramClocks::SayWarnings() const
{
    for (const QString &warning : made.warnings)
        Say(warning);
}

Result<ProgramClocks> ReadClocks(const QString &path)
{
    Result<ProgramClocks> clocks = MakeClocks(ClockProgram::ReadProgram(path));
    if (clocks)
        clocks->SayWarnings();
    return clocks;
}

Result<ProgramClocks> ParseClocks(const QByteArray &contents, const QString &path)
{
    return MakeClocks(ClockProgram::ParseProgram(contents, path));
}

} // namespace ClockTool
