// tools/: the plugin whose archive tools and studio link, as what finds plugins for the elements of
// a program.
#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QDomElement;
QT_END_NAMESPACE

namespace Lw {
class INodePlugin;
}

namespace ClockTool {

/// Null for an element that is not a clock.
Lw::INodePlugin *FindClockPlugin(QDomElement &element);

} // namespace ClockTool
