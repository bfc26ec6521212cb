// Loads the installed plugins and shows one frame of an analog clock: small_host FRAME.png
#include <hnode.h>
#include <hpluginmanager.h>
#include <inodeplugin.h>
#include <pictureplayer.h>

#include <QDomDocument>
#include <QGuiApplication>

#include <cstdio>
#include <memory>

namespace {

int Fail(const QString &text)
{
    std::fprintf(stderr, "small_host: %s\n", qPrintable(text));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 2)
        return Fail(QStringLiteral("name the picture to write"));
    Lw::HPluginManager &manager = *Lw::HPluginManager::instance();
    if (manager.LoadDirectory(QStringLiteral(PLUGINS)) != 1)
        return Fail(manager.Refusals().join(QLatin1Char('\n')));

    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("clock"));
    Lw::INodePlugin *const plugin = manager.PluginFor(element);
    if (!plugin)
        return Fail(QStringLiteral("nobody claims a clock"));
    const std::unique_ptr<Lw::HNode> node(plugin->Create());
    node->InitData();
    node->SetSize(QSize(128, 64));
    node->NodeAlready(0);

    const std::unique_ptr<Lw::IContentRender> render(plugin->CreateAreaRender(node.get()));
    render->Start(1, 0);
    Lw::pictureplayer *const player = Lw::pictureplayer::ForIdentifier(1);
    if (!player || !player->LastImage().save(QString::fromLocal8Bit(argv[1])))
        return Fail(QStringLiteral("no frame"));
    render->Remove();
    return 0;
}
