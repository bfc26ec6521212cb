// tools/: clock_tool sdk, which writes the SDK XML of a program's clocks.
#include "clock_nodes.h"
#include "commands.h"
#include "glyph/glyph_set.h"
#include "output.h"
#include "tool_arguments.h"

#include <QDomDocument>

namespace ClockTool {

namespace {

constexpr char kDescription[] =
    "Writes the SDK XML of a program's clocks: one document element that holds one element per\n"
    "clock, in the order of the program. SDK XML has no fonts, sizes, spacing, layout or "
    "areas,\n"
    "and of a picture clock only the zone and the adjustment.";

// The SDK's own documents have other parent elements; this one is only a container.
constexpr char kRoot[] = "clocks";

} // namespace

CommandResult RunSdk(const QStringList &arguments)
{
    ToolArguments tool(QStringLiteral("sdk"), QString::fromLatin1(kDescription));
    tool.AddPositional(QStringLiteral("PROGRAM.xml"), QStringLiteral("The program to convert."));
    tool.AddOutput();
    if (const auto ended = tool.Parse(arguments))
        return *ended;
    const Result<ProgramClocks> clocks = ReadClocks(tool.Positional(0));
    if (!clocks)
        return Report(clocks.Error());

    QDomDocument document;
    QDomElement root = document.createElement(QLatin1String(kRoot));
    for (int i = 0; i < clocks->Count(); ++i) {
        Lw::HNodeClock::HClockNode &clock = clocks->Clock(i);
        if (clock.ClockType() == Lw::HNodeClock::PictureClock)
            Say(ClockProgram::AtElement(
                clocks->program.path, clocks->program.areas[i].element,
                QStringLiteral("a picture clock is written without its type and would be imported "
                               "as an analog clock")));
        clock.CoverToSDKFormate(root, Lw::ProgramForController);
    }
    return Deliver(tool.Output(), WriteXml(root));
}

} // namespace ClockTool
