// A Qt plugin with the right IID whose object does not implement the interface.
#include <QObject>
#include <QtPlugin>

class NoInterface : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Lw.interface.IControllerPlugin/1.0")
};

#include "no_interface.moc"
