// A Qt plugin for some other host.
#include <QObject>
#include <QtPlugin>

class WrongIid : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Lw.interface.INodePlugin/1.0")
};

#include "wrong_iid.moc"
