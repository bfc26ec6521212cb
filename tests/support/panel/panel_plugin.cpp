#include "panel_plugin.h"

#include "glyph_faults.h"
#include "happconfig.h"

#include <QDomElement>
#include <QFile>
#include <QThread>

#include <cerrno>

namespace {

constexpr int kFirstId = 1234;
constexpr int kPictureOfEvents = 3;

long long (*g_now)() = nullptr;

} // namespace

void clock_set_time_source(long long (*utcMilliseconds)())
{
    g_now = utcMilliseconds;
}

bool PanelNode::UpdateNode(QDomElement element, QList<Lw::FileInfo> &)
{
    SetAttribute("redraws", element.attribute("redraws"), false);
    SetAttribute("images", element.attribute("images"), false);
    SetAttribute("unwritten", element.attribute("unwritten"), false);
    SetAttribute("dies", element.attribute("dies"), false);
    return element.attribute("accept") != "no";
}

bool PanelNode::NodeAlready(int)
{
    ++readied;
    for (int i = GetAttributeToInt("images"); i > 0; --i) {
        QThread::msleep(10);
        SetFilePath("image", QString(), QString(), -1, 0);
    }
    if (readied == GetAttributeToInt("unwritten"))
        Lw::SetGlyphFaults(*this,
                           {{Lw::GlyphFault::NotWritten, "image", "/none/image.png", ENOSPC, {}}});
    QFile file(Lw::HAppConfig::ClockOutputPath() + "panel_" + GetAttribute("Id"));
    return file.open(QIODevice::WriteOnly);
}

// Every panel draws the same identity, so that two of them always collide.
void PanelNode::InitData()
{
    SetAttribute("Id", kFirstId, false);
}

PanelRender::PanelRender(Lw::HNode *node)
    : m_node(qobject_cast<PanelNode *>(node)), m_player(new Lw::pictureplayer(this))
{ }

void PanelRender::Start(unsigned int playIdentifier, long long)
{
    Lw::SessionParameter parameter = {};
    parameter.playIdentifier = playIdentifier;
    m_player->Init(&parameter);
    PlayNext();
}

void PanelRender::PlayNext()
{
    if (!m_node)
        return;
    m_player->UpdateImage(Picture());
    m_player->UpdateEffect(1, Lw::EffectNone);
    if (++m_pictures != kPictureOfEvents)
        return;
    if (m_node->GetAttribute("dies") == "yes") {
        delete m_node;
        return;
    }
    if (m_node->readied == 1) {
        for (int i = m_node->GetAttributeToInt("redraws"); i > 0; --i)
            emit m_node->ReDrawSourceImage();
    }
}

QImage PanelRender::Picture() const
{
    QImage image(m_node->Size(), QImage::Format_ARGB32);
    const int second = g_now ? static_cast<int>(g_now() / 1000 % 60) : 99;
    image.fill(QColor(second, m_node->readied, 100 + m_node->GetAttributeToInt("Id") % 10));
    for (int y = 0; y < image.height(); ++y)
        image.setPixelColor(0, y, QColor(1, 2, 1));
    return image;
}

bool PanelPlugin::PluginMatch(QDomElement &element)
{
    return element.tagName() == QLatin1String("panel");
}
