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
    for (const QString &warning : qAsConst(clocks.made.warnings))
        Say(warning);
    return clocks;
}

} // namespace

Lw::HNodeClock::HClockNode &ProgramClocks::Clock(int area) const
{
    // Only the clock's own plugin made nodes.
    return static_cast<Lw::HNodeClock::HClockNode &>(
        *made.nodes[static_cast<std::size_t>(area)].node);
}

Result<ProgramClocks> ReadClocks(const QString &path)
{
    return MakeClocks(ClockProgram::ReadProgram(path));
}

Result<ProgramClocks> ParseClocks(const QByteArray &contents, const QString &path)
{
    return MakeClocks(ClockProgram::ParseProgram(contents, path));
}

} // namespace ClockTool
