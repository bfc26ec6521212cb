// A host in a few lines: loads the clock plugin, shows one clock, writes three frames.
#include "happconfig.h"
#include "hnode.h"
#include "hpluginmanager.h"
#include "inodeplugin.h"
#include "pictureplayer.h"

#include <QDomDocument>
#include <QGuiApplication>

#include <cstdio>
#include <memory>

int Fail(const char *reason)
{
    std::fprintf(stderr, "small_host: %s\n", reason);
    return 1;
}

int main(int argc, char **argv)
{
    constexpr char kUsage[] = "usage: small_host PLUGIN.so GLYPH-DIRECTORY FRAME-DIRECTORY";
    if (argc < 4)
        return Fail(kUsage);
    qputenv("QT_FONT_DPI", "96");            // a point is as many pixels on every display
    QGuiApplication application(argc, argv); // fonts and images need it
    if (argc < 4)                            // Qt's own options are taken out now
        return Fail(kUsage);
    Lw::HAppConfig::SetClockOutputPath(QString::fromLocal8Bit(argv[2]));
    Lw::HAppConfig::SetRenderImageFormat(QImage::Format_ARGB32);

    auto *const plugins = Lw::HPluginManager::instance();
    if (!plugins->LoadFile(QString::fromLocal8Bit(argv[1])))
        return Fail(qPrintable(plugins->Refusals().join("\n")));
    QDomDocument document;
    document.setContent(QStringLiteral("<clock type=\"digital\" timezone=\"+01:00\"/>"));
    QDomElement element = document.documentElement();
    Lw::INodePlugin *const plugin = plugins->PluginFor(element);
    const std::unique_ptr<Lw::HNode> node(plugin ? plugin->Create() : nullptr);
    if (!node)
        return Fail("no plugin claims the element");
    node->InitData(); // the defaults of what the element does not mention
    QList<Lw::FileInfo> files;
    if (!node->UpdateNode(element, files))
        return Fail("the plugin cannot read the element");
    node->SetSize({256, 96});
    node->NodeAlready(0); // makes the glyph images

    constexpr unsigned int kPlayIdentifier = 1; // any but 0
    const std::unique_ptr<Lw::IContentRender> render(plugin->CreateAreaRender(node.get()));
    Lw::pictureplayer::Register(kPlayIdentifier, render.get());
    render->Start(kPlayIdentifier, 0); // makes its player, and shows the first frame

    Lw::pictureplayer *const player = Lw::pictureplayer::ForIdentifier(kPlayIdentifier);
    int count = 0;
    bool saved = true;
    const auto show = [&](const QImage &frame) {
        const QString name = QStringLiteral("/frame_%1.png").arg(++count);
        saved = frame.save(QString::fromLocal8Bit(argv[3]) + name) && saved;
        if (count == 3)
            application.quit();
    };
    show(player->LastImage());
    QObject::connect(player, &Lw::pictureplayer::ImageUpdated, show);
    application.exec();
    render->Remove(); // before it is deleted
    return saved ? 0 : Fail("a frame could not be written");
}
