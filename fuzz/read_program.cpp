// fuzz/: target: reads program files and makes their nodes as the player and the tools do.
#include "carried_files.h"
#include "clock_plugin.h"
#include "fuzz_target.h"
#include "node_keys.h"
#include "node_maker.h"
#include "program_file.h"

#include "hnode.h"

#include <QSet>

using namespace ClockProgram;

namespace {

void CheckProgram(const Program &program)
{
    qint64 pixels = 0;
    for (const ProgramArea &area : program.areas) {
        Fuzz::Expect(!area.element.isNull(), "an area holds an element");
        Fuzz::Expect(area.geometry.isValid(), "an area has a size");
        pixels += qint64(area.geometry.width()) * area.geometry.height();
    }
    Fuzz::Expect(pixels <= kMaximumPixels, "all areas together stay within the limit");
    Fuzz::Expect(!program.areas.isEmpty() && program.areas.size() <= kMaximumAreas,
                 "a program has areas, and not too many");
}

void CheckNodes(const Program &program, const MadeNodes &made)
{
    Fuzz::Expect(made.nodes.size() == static_cast<std::size_t>(program.areas.size()),
                 "one node per area");
    QSet<int> ids;
    for (const MadeNode &node : made.nodes)
        ids.insert(node.node->GetAttributeToInt(kIdKey));
    Fuzz::Expect(ids.size() == program.areas.size(), "no two clocks have the same Id");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const Result<Program> read =
        ParseProgram(contents, Fuzz::Directory() + QStringLiteral("program.xml"));
    if (!read)
        return 0;
    CheckProgram(*read);
    Lw::HNodeClock::HNodeClock plugin;
    const PluginFinder find = [&plugin](QDomElement &element) -> Lw::INodePlugin * {
        return plugin.PluginMatch(element) ? &plugin : nullptr;
    };
    Result<MadeNodes> made = MakeNodes(*read, find);
    if (!made)
        return 0;
    CheckNodes(*read, *made);
    ResolveCarriedFiles(*read, *made);
    return 0;
}
