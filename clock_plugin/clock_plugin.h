// The library's front door: the object that Qt's plugin loader hands to the host.
#pragma once

#include "clock_export.h"

#include "inodeplugin.h"

#include <QObject>

namespace Lw::HNodeClock {

// The base is spelled "INodePlugin" and the interface "Lw::INodePlugin" on purpose: a cast by name
// then answers "INodePlugin" and the interface string, and nothing else.
class CLOCK_EXPORT HNodeClock : public QObject, public INodePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Lw.interface.IControllerPlugin/1.0" FILE "clock_plugin.json")
    Q_INTERFACES(Lw::INodePlugin)

public:
    HNodeClock();
    ~HNodeClock() override;

    bool PluginMatch(QDomElement &element) override; ///< whether the tag is "clock"
    int level() override;                            ///< 4
    QString type() override;                         ///< as HClockNode::Type() says
    Lw::HNode *Create() override; ///< a clock node without attributes; the caller owns it
    using INodePlugin::Create;
    /// A renderer for a clock node; the caller owns it. A node of another class counts as none.
    Lw::IContentRender *CreateAreaRender(Lw::HNode *node) override;
};

} // namespace Lw::HNodeClock
