// A host in a few lines: loads the clock plugin, shows one clock, writes three frames.
#include "happconfig.h"
#include "hnode.h"
#include "hpluginmanager.h"
#include "inodeplugin.h"
#include "pictureplayer.h"

#include <QDomDocument>
#include <QGuiApplication>

#include <memory>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv); // fonts and images need it
    if (argc != 4)
        qFatal("usage: small_host PLUGIN.so GLYPH-DIRECTORY FRAME-DIRECTORY");
    Lw::HAppConfig::SetClockOutputPath(argv[2]);
    Lw::HAppConfig::SetRenderImageFormat(QImage::Format_ARGB32);

    if (!Lw::HPluginManager::instance()->LoadFile(argv[1]))
        qFatal("%s", qPrintable(Lw::HPluginManager::instance()->Refusals().join("\n")));
    QDomDocument document;
    document.setContent(QStringLiteral("<clock type=\"digital\" timezone=\"+01:00\"/>"));
    QDomElement element = document.documentElement();
    Lw::INodePlugin *const plugin = Lw::HPluginManager::instance()->PluginFor(element);

    const std::unique_ptr<Lw::HNode> node(plugin->Create());
    QList<Lw::FileInfo> files;
    node->InitData(); // the defaults of what the element does not mention
    if (!node->UpdateNode(element, files))
        qFatal("the plugin cannot read the element");
    node->SetSize({256, 96});
    node->NodeAlready(0); // makes the glyph images

    constexpr unsigned int kPlayIdentifier = 1; // any but 0
    const std::unique_ptr<Lw::IContentRender> render(plugin->CreateAreaRender(node.get()));
    Lw::pictureplayer::Register(kPlayIdentifier, render.get());
    render->Start(kPlayIdentifier, 0); // makes its player, and shows the first frame

    Lw::pictureplayer *const player = Lw::pictureplayer::ForIdentifier(kPlayIdentifier);
    int count = 0;
    const auto show = [&](const QImage &frame) {
        frame.save(QStringLiteral("%1/frame_%2.png").arg(argv[3]).arg(++count));
        if (count == 3)
            application.quit();
    };
    show(player->LastImage());
    QObject::connect(player, &Lw::pictureplayer::ImageUpdated, show);
    application.exec();
    render->Remove(); // before it is deleted
    return 0;
}
