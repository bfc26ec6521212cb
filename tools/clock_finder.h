// tools/: finds the plugin for an element of a program: the clock plugin, which tools and studio
// link statically.
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
