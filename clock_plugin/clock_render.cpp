#include "clock_render.h"

#include "calendar/device_clock.h"
#include "display/draw_display_image.h"

#include "hpluginmanager.h"
#include "pictureplayer.h"

#include <QImage>
#include <QtDebug>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace Lw::HNodeClock {

namespace {

constexpr int kIdle = 0;
constexpr int kStarted = 1;
constexpr int kRefused = 2;

// The state returns to kIdle after this many frames.
constexpr int kStartingTicks = 10;

// Sets every field except the reserved word, which belongs to the host and stays uninitialised. The
// record is therefore not copied here, as a copy would read that word. The host may delete the node
// during any of these calls; without a node, size and position are those of a default record and
// alpha blending is off.
std::unique_ptr<SessionParameter> StartRecord(unsigned int playIdentifier,
                                              QPointer<HClockNode> node)
{
    std::unique_ptr<SessionParameter> record(new SessionParameter);
    record->playIdentifier = playIdentifier;
    record->size = node ? node->Size() : QSize();
    record->position = node ? node->Pos() : QPoint();
    std::fill(std::begin(record->words), std::end(record->words), 0);
    record->timing = 1000;
    std::fill(std::begin(record->reservedBytes), std::end(record->reservedBytes), quint8(0));
    std::fill(std::begin(record->effectBytes), std::end(record->effectBytes), quint8(0));
    record->alphaBlend = node && Lw::HPluginManager::instance()->SuportAlphaBlend(node);
    record->lastFlag = true;
    return record;
}

// Hosts read the frame damage as a property of this child: the renderer itself must not gain
// properties.
class FrameDamage : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QRegion region READ Region)

public:
    FrameDamage(DrawDisplayImage *drawer, QObject *renderer) : QObject(renderer), m_drawer(drawer)
    {
        setObjectName(QStringLiteral("frameDamage"));
    }
    QRegion Region() const { return m_drawer ? m_drawer->FrameDamage() : QRegion(); }

private:
    QPointer<DrawDisplayImage> m_drawer;
};

} // namespace

HClockRender::HClockRender(HClockNode *node) : m_node(node), m_state(kIdle)
{
    m_player.reset(new pictureplayer(nullptr));
    m_drawer.reset(new DrawDisplayImage(m_node));
    m_drawer->InitClockTypePixmap();
    new FrameDamage(m_drawer.get(), this);
}

HClockRender::~HClockRender()
{
    CleanResources();
}

// The calls below go to the host or a derived renderer, which may remove this renderer, or delete
// it or its node.
void HClockRender::Start(unsigned int playIdentifier, long long)
{
    if (!m_node || playIdentifier == 0 || !m_player) {
        m_state = kRefused;
        return;
    }
    m_playIdentifier = playIdentifier;
    m_tickCounter = 1;
    m_state = kStarted;
    if (m_drawer)
        m_drawer->ForgetLastFrame();
    const QPointer<HClockRender> self(this);
    Stop();
    if (!self || !m_player)
        return;
    auto record = StartRecord(playIdentifier, m_node);
    if (!self || !m_player)
        return;
    m_player->Init(record.get());
    record.reset();
    if (self && m_player)
        PlayNext();
}

void HClockRender::Pause() { }

void HClockRender::Stop()
{
    if (m_player)
        m_player->Stop();
}

void HClockRender::Remove()
{
    const QPointer<HClockRender> self(this);
    Stop();
    if (self)
        CleanResources();
}

// Drawing a frame calls the host for the time, sizes and attributes; it may remove or delete this
// renderer. The drawer is therefore held here until it returns.
void HClockRender::PlayNext()
{
    if (!m_node || !m_drawer) {
        // Host-side tools search the log for this line, so its number is fixed.
        qDebug("Enter:[%s::%s::%d]", "clock_render.cpp", "PlayNext", 135);
        return;
    }
    const QPointer<HClockRender> self(this);
    std::unique_ptr<DrawDisplayImage> drawer = std::move(m_drawer);
    QImage frame;
    int millisecond = 0;
    {
        const HeldInstant oneInstant;
        millisecond = LocalMillisecond();
        frame = drawer->DrawClockDisplayImage();
    }
    if (!self || !m_player)
        return;
    m_drawer = std::move(drawer);
    m_player->UpdateImage(std::move(frame));
    // UpdateImage() may remove or delete this renderer too.
    if (!self || !m_player)
        return;
    CountTick();
    m_player->UpdateEffect(1000 - millisecond, EffectType(0));
}

int HClockRender::renderState()
{
    return m_state;
}

void HClockRender::CleanResources()
{
    m_drawer.reset();
    // Stop() may re-enter this function or delete this renderer.
    const std::unique_ptr<pictureplayer> player = std::move(m_player);
    if (player)
        player->Stop();
}

void HClockRender::CountTick()
{
    if (++m_tickCounter <= kStartingTicks)
        return;
    m_state = kIdle;
    m_tickCounter = 0;
}

} // namespace Lw::HNodeClock

#include "clock_render.moc"
