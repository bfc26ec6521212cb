// Makes the node of an area through the plugin that claims its element.
#pragma once

#include "program_file.h"

#include <memory>

namespace Lw {
class HNode;
class INodePlugin;
} // namespace Lw

namespace ClockPlayer {

struct MadeNode
{
    Lw::INodePlugin *plugin;
    std::unique_ptr<Lw::HNode> node;
};

/// A node with its defaults, its place, what the element says and the attributes set by hand, in
/// this order. Fails when no plugin claims the element, or its plugin cannot read it.
Result<MadeNode> MakeNode(const Program &program, const ProgramArea &area);

} // namespace ClockPlayer
