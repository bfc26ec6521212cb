// A host in a few lines: loads the clock plugin, plays a clock of each kind, writes three frames of
// each.
#include "happconfig.h"
#include "hnode.h"
#include "hpluginmanager.h"
#include "inodeplugin.h"
#include "pictureplayer.h"

#include <QDomDocument>
#include <QGuiApplication>

#include <cstdio>
#include <memory>
#include <vector>

struct Kind
{
    const char *name;
    int type; // the value of the attribute ClockType
    const char *element;
};

// The plugin reads no picture clocks from an element: one without a type gives zone and adjustment,
// and the attribute ClockType the kind.
constexpr Kind kKinds[] = {
    {"analog", 0, "<clock type=\"dial\" timezone=\"-05:00\"/>"},
    {"digital", 1, "<clock type=\"digital\" timezone=\"+01:00\"/>"},
    {"picture", 2, "<clock timezone=\"+05:30\"/>"},
};

int Fail(const char *reason)
{
    std::fprintf(stderr, "small_host: %s\n", reason);
    return 1;
}

struct Clock
{
    std::unique_ptr<Lw::HNode> node; // outlives its renderer
    std::unique_ptr<Lw::IContentRender> render;
};

/// Without a node where no plugin claims the element or reads it.
Clock MakeClock(const Kind &kind)
{
    QDomDocument document;
    document.setContent(QString::fromLatin1(kind.element));
    QDomElement element = document.documentElement();
    Lw::INodePlugin *const plugin = Lw::HPluginManager::instance()->PluginFor(element);
    Clock clock;
    clock.node.reset(plugin ? plugin->Create() : nullptr);
    if (!clock.node)
        return clock;
    clock.node->InitData(); // the defaults of what the element does not mention
    QList<Lw::FileInfo> files;
    if (!clock.node->UpdateNode(element, files))
        return Clock();
    clock.node->SetAttribute(QStringLiteral("ClockType"), kind.type, false);
    clock.node->SetSize({192, 96});
    clock.node->NodeAlready(0); // makes the glyph images
    clock.render.reset(plugin->CreateAreaRender(clock.node.get()));
    return clock;
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "96");            // the same number of pixels per point everywhere
    QGuiApplication application(argc, argv); // fonts and images need it
    if (argc != 4)                           // Qt's own options are taken out now
        return Fail("usage: small_host PLUGIN.so GLYPH-DIRECTORY FRAME-DIRECTORY");
    Lw::HAppConfig::SetClockOutputPath(QString::fromLocal8Bit(argv[2]));
    Lw::HAppConfig::SetRenderImageFormat(QImage::Format_ARGB32);
    auto *const plugins = Lw::HPluginManager::instance();
    if (!plugins->LoadFile(QString::fromLocal8Bit(argv[1])))
        return Fail(qPrintable(plugins->Refusals().join("\n")));

    std::vector<Clock> clocks;
    int missing = 9;
    bool saved = true;
    for (const Kind &kind : kKinds) {
        clocks.push_back(MakeClock(kind));
        Lw::IContentRender *const render = clocks.back().render.get();
        if (!render)
            return Fail("no plugin reads the element");
        const auto identifier = static_cast<unsigned int>(clocks.size()); // any but 0
        Lw::pictureplayer::Register(identifier, render);
        render->Start(identifier, 0); // makes its player, and shows the first frame

        Lw::pictureplayer *const player = Lw::pictureplayer::ForIdentifier(identifier);
        auto show = [&, kind, count = 0](const QImage &frame) mutable {
            const QString name = QStringLiteral("/%1_%2.png").arg(kind.name).arg(++count);
            saved = (count > 3 || frame.save(QString::fromLocal8Bit(argv[3]) + name)) && saved;
            if (count <= 3 && --missing == 0)
                application.quit();
        };
        show(player->LastImage());
        QObject::connect(player, &Lw::pictureplayer::ImageUpdated, show);
    }
    application.exec();
    for (const Clock &clock : clocks)
        clock.render->Remove(); // before it is deleted
    return saved ? 0 : Fail("a frame could not be written");
}
