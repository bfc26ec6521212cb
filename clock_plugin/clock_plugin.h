// clock_plugin/: the plugin's root object, which Qt's plugin loader returns to the host.
#pragma once

#include "clock_export.h"

#include "inodeplugin.h"

#include <QObject>

namespace Lw::HNodeClock {

// Base "INodePlugin" and interface "Lw::INodePlugin" are deliberately different: qt_metacast() then
// accepts "INodePlugin" and the interface's IID, and no other name.
class CLOCK_EXPORT HNodeClock : public QObject, public INodePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Lw.interface.IControllerPlugin/1.0" FILE "clock_plugin.json")
    Q_INTERFACES(Lw::INodePlugin)

public:
    HNodeClock();
    ~HNodeClock() override;

    bool PluginMatch(QDomElement &element) override; ///< whether the tag is "clock"
    int level() override;                            ///< the precedence among plugins: 4
    QString type() override;                         ///< kNodeType
    Lw::HNode *Create() override; ///< a clock node without attributes; the caller owns it
    using INodePlugin::Create;
    /// A renderer for a clock node; the caller owns it. A node of another class is treated as null.
    Lw::IContentRender *CreateAreaRender(Lw::HNode *node) override;
};

} // namespace Lw::HNodeClock
