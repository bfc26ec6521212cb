#include "clock_finder.h"

#include "clock_plugin.h"

namespace ClockTool {

Lw::INodePlugin *FindClockPlugin(QDomElement &element)
{
    static Lw::HNodeClock::HNodeClock plugin;
    return plugin.PluginMatch(element) ? &plugin : nullptr;
}

} // namespace ClockTool
