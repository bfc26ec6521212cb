#include "area.h"

#include "inodeplugin.h"
#include "pictureplayer.h"

namespace ClockStage {

namespace {

// The node's class is its plugin's, so its signal is known by name only.
const char kRedrawSignal[] = "ReDrawSourceImage()";

} // namespace

Area::Area(unsigned int playIdentifier, Lw::INodePlugin *plugin, std::unique_ptr<Lw::HNode> node,
           GlyphFiles glyphFiles)
    : m_playIdentifier(playIdentifier), m_plugin(plugin), m_geometry(node->Pos(), node->Size()),
      m_glyphFiles(glyphFiles), m_node(node.release())
{
    m_redraw.setSingleShot(true);
    connect(&m_redraw, &QTimer::timeout, this, &Area::Restart);
}

Area::~Area()
{
    RemoveRenderer();
    delete m_node;
}

void Area::Start()
{
    ListenToNode();
    Restart();
}

void Area::PlayNext()
{
    if (m_render)
        m_render->PlayNext();
}

Layer Area::Picture() const
{
    return {m_geometry, m_image};
}

void Area::ListenToNode()
{
    if (m_node && m_node->metaObject()->indexOfSignal(kRedrawSignal) >= 0)
        connect(m_node, SIGNAL(ReDrawSourceImage()), &m_redraw, SLOT(start()));
}

void Area::Restart()
{
    if (!m_node)
        return;
    if (m_glyphFiles == GlyphFiles::Made)
        m_node->NodeAlready(0);
    RemoveRenderer();
    StartRenderer();
}

void Area::StartRenderer()
{
    m_render = m_plugin->CreateAreaRender(m_node);
    if (!m_render)
        return;
    Lw::pictureplayer::Register(m_playIdentifier, m_render);
    m_render->Start(m_playIdentifier, 0);
    // The renderer makes its player itself, and has shown the first picture by now.
    Lw::pictureplayer *const player = Lw::pictureplayer::ForIdentifier(m_playIdentifier);
    if (!player)
        return;
    const auto show = [this](const QImage &image) {
        m_image = image;
        emit PictureChanged();
    };
    connect(player, &Lw::pictureplayer::ImageUpdated, this, show);
    show(player->LastImage());
}

void Area::RemoveRenderer()
{
    Lw::pictureplayer::Register(m_playIdentifier, nullptr);
    if (!m_render)
        return;
    m_render->Remove();
    delete m_render;
}

} // namespace ClockStage
