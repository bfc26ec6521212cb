// host/: loads content plugins and finds the one that claims an element of a program.
#pragma once

#include <QScopedPointer>
#include <QString>
#include <QStringList>
#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QDomElement;
QT_END_NAMESPACE

namespace Lw {

class HNode;
class INodePlugin;

class HPluginManager
{
public:
    static HPluginManager *instance();

    /// Whether the output can blend this node with alpha.
    bool SuportAlphaBlend(Lw::HNode *node);

    // Not called by plugins; for players and tests.
    void SetAlphaBlend(bool supported);
    /// Loads every library of the directory that is not loaded yet; a file reached through several
    /// links is loaded once. Returns the number of plugins added; Refusals() lists the others.
    int LoadDirectory(QString directory);
    /// Loads one library. False if it could not be loaded, with the reason in Refusals().
    bool LoadFile(QString path);
    /// "path: reason" for each file refused since the process started.
    QStringList Refusals();
    int PluginCount();
    QString PluginPath(int index); ///< of the plugin at an index below PluginCount()
    /// The first plugin, by level and then by order of loading, that claims the element; null when
    /// none does. Plugins live until the process ends.
    Lw::INodePlugin *PluginFor(QDomElement &element);

private:
    HPluginManager();
    ~HPluginManager();
    Q_DISABLE_COPY(HPluginManager)
    class Private;
    QScopedPointer<Private> d;
};

} // namespace Lw
