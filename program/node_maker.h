// program/: creates the nodes of a program with the plugins that claim its elements.
#pragma once

#include "program_file.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace Lw {
class HNode;
class INodePlugin;
} // namespace Lw

namespace ClockProgram {

struct MadeNode
{
    Lw::INodePlugin *plugin;
    std::unique_ptr<Lw::HNode> node;
};

struct MadeNodes
{
    std::vector<MadeNode> nodes; ///< one per area, in the order of the program
    QStringList warnings;
};

/// The plugin that claims an element, or null. It must outlive the nodes.
using PluginFinder = std::function<Lw::INodePlugin *(QDomElement &)>;

/// Reads an element into a node. Plugins reject picture clocks before they read zone,
/// adjustment and daylight saving; for an element that names that kind (type="picture", the older
/// form's clockType="2", or an "attribute" child) the node still gets these settings, and the kind.
/// False where the plugin cannot read the element.
bool ReadElement(Lw::HNode &node, const QDomElement &element);

/// Nodes with their defaults, position and size, the element's settings and the "attribute"
/// children applied in this order. Each has a distinct Id, derived from its index where the program
/// gives none; if a program gives an Id twice, the later node gets another one, with a warning.
/// Fails if no plugin claims an element, or its plugin cannot read it.
Result<MadeNodes> MakeNodes(const Program &program, const PluginFinder &findPlugin);

} // namespace ClockProgram
