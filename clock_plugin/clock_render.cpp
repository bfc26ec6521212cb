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

// The state returns to 0 when the tick counter passes this.
constexpr int kStartingTicks = 10;

// Every field but the reserved word, which is the host's own.
std::unique_ptr<SessionParameter> StartRecord(unsigned int playIdentifier, HClockNode *node)
{
    std::unique_ptr<SessionParameter> record(new SessionParameter);
    record->playIdentifier = playIdentifier;
    record->size = node->Size();
    record->position = node->Pos();
    std::fill(std::begin(record->words), std::end(record->words), 0);
    record->timing = 1000;
    std::fill(std::begin(record->reservedBytes), std::end(record->reservedBytes), quint8(0));
    std::fill(std::begin(record->effectBytes), std::end(record->effectBytes), quint8(0));
    record->alphaBlend = Lw::HPluginManager::instance()->SuportAlphaBlend(node);
    record->lastFlag = true;
    return record;
}

} // namespace

HClockRender::HClockRender(HClockNode *node) : m_node(node), m_state(kIdle)
{
    m_player = new pictureplayer(nullptr);
    m_drawer = new DrawDisplayImage(m_node);
    m_drawer->InitClockTypePixmap();
}

HClockRender::~HClockRender()
{
    CleanResources();
}

void HClockRender::Start(unsigned int playIdentifier, long long)
{
    if (!m_node || playIdentifier == 0 || !m_player) {
        m_state = kRefused;
        return;
    }
    m_playIdentifier = playIdentifier;
    m_tickCounter = 1;
    m_state = kStarted;
    Stop();
    m_player->Init(StartRecord(playIdentifier, m_node).get());
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
    Stop();
    CleanResources();
}

void HClockRender::PlayNext()
{
    if (!m_node || !m_drawer) {
        // The host's logs are searched for this line, so its number does not follow the source.
        qDebug("Enter:[%s::%s::%d]", "clock_render.cpp", "PlayNext", 135);
        return;
    }
    QImage frame;
    int millisecond = 0;
    {
        const HeldReading oneInstant;
        millisecond = LocalMillisecond();
        frame = m_drawer->DrawClockDisplayImage();
    }
    const QPointer<HClockRender> self(this);
    m_player->UpdateImage(std::move(frame));
    // Whoever was shown the frame may have removed this renderer, or deleted it.
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
    delete std::exchange(m_drawer, nullptr);
    if (pictureplayer *const player = std::exchange(m_player, nullptr)) {
        player->Stop();
        delete player;
    }
}

void HClockRender::CountTick()
{
    if (++m_tickCounter <= kStartingTicks)
        return;
    m_state = kIdle;
    m_tickCounter = 0;
}

} // namespace Lw::HNodeClock
