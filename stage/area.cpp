#include "area.h"

#include "inodeplugin.h"
#include "pictureplayer.h"

namespace ClockStage {

namespace {

// The node's class belongs to the plugin, so its signal is connected by name.
const char kRedrawSignal[] = "ReDrawSourceImage()";
const char kDamageName[] = "frameDamage";
const char kDamageProperty[] = "region";

} // namespace

Area::Area(unsigned int playIdentifier, Lw::INodePlugin *plugin, std::unique_ptr<Lw::HNode> node,
           GlyphFiles glyphFiles)
    : m_playIdentifier(playIdentifier), m_plugin(plugin), m_geometry(node->Pos(), node->Size()),
      m_glyphFiles(glyphFiles), m_node(node.release())
{
    m_redraw.setSingleShot(true);
    connect(&m_redraw, &QTimer::timeout, this, &Area::RestartOnRequest);
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

void Area::RestartOnRequest()
{
    const QPointer<Area> guarded(this); // a slot may delete this area
    Restart();
    if (guarded && m_node)
        emit Restarted(m_node);
}

void Area::StartRenderer()
{
    m_render = m_plugin->CreateAreaRender(m_node);
    if (!m_render)
        return;
    Lw::pictureplayer::Register(m_playIdentifier, m_render);
    m_render->Start(m_playIdentifier, 0);
    // The renderer creates its player itself, and has shown the first picture by now.
    Lw::pictureplayer *const player = Lw::pictureplayer::ForIdentifier(m_playIdentifier);
    if (!player)
        return;
    connect(player, &Lw::pictureplayer::ImageUpdated, this, &Area::Show);
    m_damage = m_render ? m_render->findChild<QObject *>(QLatin1String(kDamageName)) : nullptr;
    Show(player->LastImage()); // a slot may delete this area
}

void Area::Show(const QImage &image)
{
    const bool isWhole = image.size() != m_image.size();
    m_image = image;
    emit PictureChanged(isWhole ? QRegion(m_geometry) : Damage());
}

// Read by name: the plugin's class is not linked here.
QRegion Area::Damage() const
{
    if (!m_damage)
        return m_geometry;
    const auto region = m_damage->property(kDamageProperty).value<QRegion>();
    return region.translated(m_geometry.topLeft()) & m_geometry;
}

void Area::RemoveRenderer()
{
    Lw::pictureplayer::Register(m_playIdentifier, nullptr);
    if (!m_render)
        return;
    m_damage.clear(); // the next renderer's first frame is completely new
    m_render->Remove();
    delete m_render;
}

} // namespace ClockStage
