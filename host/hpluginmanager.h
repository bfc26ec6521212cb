// Loads content plugins and knows which one an element of a program belongs to.
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

    // Beyond what plugins call, for players and tests.
    void SetAlphaBlend(bool supported);
    /// Loads every library of the directory that is not loaded yet; a file reached through several
    /// links is loaded once. Returns the number of plugins added; Refusals() says the rest.
    int LoadDirectory(QString directory);
    /// Loads one library. Returns whether it is loaded now; the reason when not is in Refusals().
    bool LoadFile(QString path);
    /// One sentence, with its path, for each file refused since the process began.
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
