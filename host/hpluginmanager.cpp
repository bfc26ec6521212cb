#include "hpluginmanager.h"

#include "inodeplugin.h"

#include <QDir>
#include <QDomElement>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QVector>

namespace Lw {

namespace {

const char kControllerPluginIid[] = "Lw.interface.IControllerPlugin/1.0";

} // namespace

class HPluginManager::Private
{
public:
    struct Loaded
    {
        QString path;
        INodePlugin *plugin;
    };

    bool Has(const QString &path) const
    {
        for (const Loaded &loaded : plugins) {
            if (loaded.path == path)
                return true;
        }
        return false;
    }

    bool Refuse(const QString &path, const QString &reason)
    {
        refusals.append(QStringLiteral("%1: %2").arg(path, reason));
        return false;
    }

    QVector<Loaded> plugins;
    QStringList refusals;
    bool alphaBlend = false;
};

HPluginManager::HPluginManager() : d(new Private) { }

HPluginManager::~HPluginManager() = default;

HPluginManager *HPluginManager::instance()
{
    static HPluginManager manager;
    return &manager;
}

bool HPluginManager::SuportAlphaBlend(Lw::HNode *)
{
    return d->alphaBlend;
}

void HPluginManager::SetAlphaBlend(bool supported)
{
    d->alphaBlend = supported;
}

int HPluginManager::LoadDirectory(QString directory)
{
    const QDir dir(directory);
    if (!dir.exists()) {
        d->Refuse(directory, QStringLiteral("no such directory"));
        return 0;
    }
    const int before = PluginCount();
    const QFileInfoList entries = dir.entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &entry : entries) {
        if (QLibrary::isLibrary(entry.fileName()))
            LoadFile(entry.filePath());
    }
    return PluginCount() - before;
}

bool HPluginManager::LoadFile(QString path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (canonical.isEmpty())
        return d->Refuse(path, QStringLiteral("no such file"));
    if (d->Has(canonical))
        return true;
    QPluginLoader loader(canonical);
    const QString iid = loader.metaData().value(QLatin1String("IID")).toString();
    if (iid.isEmpty())
        return d->Refuse(path, QStringLiteral("not a Qt plugin (%1)").arg(loader.errorString()));
    if (iid != QLatin1String(kControllerPluginIid)) {
        return d->Refuse(path,
                         QStringLiteral("a plugin for another host (IID \"%1\", expected \"%2\")")
                             .arg(iid, QLatin1String(kControllerPluginIid)));
    }
    QObject *const object = loader.instance();
    if (!object)
        return d->Refuse(path, QStringLiteral("cannot be loaded (%1)").arg(loader.errorString()));
    auto *const plugin = qobject_cast<INodePlugin *>(object);
    if (!plugin) {
        return d->Refuse(path,
                         QStringLiteral("its object does not implement %1")
                             .arg(QLatin1String(qobject_interface_iid<INodePlugin *>())));
    }
    d->plugins.append({canonical, plugin});
    return true;
}

QStringList HPluginManager::Refusals()
{
    return d->refusals;
}

int HPluginManager::PluginCount()
{
    return d->plugins.size();
}

QString HPluginManager::PluginPath(int index)
{
    return d->plugins.value(index).path;
}

Lw::INodePlugin *HPluginManager::PluginFor(QDomElement &element)
{
    INodePlugin *best = nullptr;
    for (const Private::Loaded &loaded : qAsConst(d->plugins)) {
        if (loaded.plugin->PluginMatch(element)
            && (!best || loaded.plugin->level() < best->level()))
            best = loaded.plugin;
    }
    return best;
}

} // namespace Lw
