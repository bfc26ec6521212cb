// A plugin that claims clocks as well, at a level before the clock plugin's.
#include "inodeplugin.h"

#include <QDomElement>

class OtherClock : public QObject, public Lw::INodePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Lw.interface.IControllerPlugin/1.0")
    Q_INTERFACES(Lw::INodePlugin)

public:
    bool PluginMatch(QDomElement &element) override
    {
        return element.tagName() == QLatin1String("clock");
    }
    int level() override { return 3; }
    QString type() override { return QStringLiteral("Other_Clock"); }
    Lw::HNode *Create() override { return nullptr; }
    Lw::IContentRender *CreateAreaRender(Lw::HNode *) override { return nullptr; }
};

#include "other_clock.moc"
