#include "soak_clock.h"

#include "every_attribute.h"

#include "hpluginmanager.h"

#include <QDomDocument>
#include <QLibrary>

namespace Soak {

namespace {

long long g_instant = 0;

constexpr struct
{
    const char *key;
    int value;
} kNumbers[] = {
    {"UseDaylightSavingTime", 1}, {"Analog_AMPM_d", 1},   {"Analog_TopTexy_d", 1},
    {"Analog_Date_d", 1},         {"Analog_Week_d", 1},   {"Analog_Lunar_d", 1},
    {"AnalogDateType", 7},        {"HourScaleType", 3},   {"SecondRectType", 1},
    {"Digital_TopTexy_d", 1},     {"Digital_Date_d", 1},  {"Digital_Week_d", 1},
    {"Digital_Time_d", 1},        {"Digital_Lunar_d", 1}, {"DigitalDateType", 7},
    {"DigitalMode", 1},
};

constexpr struct
{
    const char *key;
    const char *value;
} kTexts[] = {
    {"TimeZone", "+01:00"},
    {"DaylightSavingTimeStart", "3.Last.7.02:00:00"},
    {"DaylightSavingTimeEnd", "10.Last.7.02:00:00"}, // 03:00 of the shown time
};

constexpr int kPoints = 7;

} // namespace

void SetInstant(qint64 utcMilliseconds)
{
    g_instant = utcMilliseconds;
}

Lw::INodePlugin *LoadPlugin(const QString &file)
{
    Lw::HPluginManager &manager = *Lw::HPluginManager::instance();
    if (!manager.LoadFile(file))
        return nullptr;
    const auto setSource = reinterpret_cast<void (*)(long long (*)())>(
        QLibrary::resolve(manager.PluginPath(0), "clock_set_time_source"));
    if (!setSource)
        return nullptr;
    setSource([] { return g_instant; });
    pictureplayer::SetTimeScale(0);
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("clock"));
    return manager.PluginFor(element);
}

std::unique_ptr<Lw::HNode> NewNode(Lw::INodePlugin *plugin, Kind kind)
{
    std::unique_ptr<Lw::HNode> node(plugin->Create());
    node->InitData();
    using Lw::HNodeClock::ValueRole;
    SetEvery(*node, ValueRole::Family, QStringLiteral("DejaVu Sans"));
    SetEvery(*node, ValueRole::Size, kPoints);
    for (const auto &setting : kNumbers)
        node->SetAttribute(QLatin1String(setting.key), setting.value, false);
    for (const auto &setting : kTexts)
        node->SetAttribute(QLatin1String(setting.key), QLatin1String(setting.value), false);
    node->SetAttribute(QStringLiteral("ClockType"), kind, false);
    // Every renderer reads the dial picture; the style 0, which has none, saves most of the time.
    node->SetAttribute(QStringLiteral("PictrueClockType"), kind == Picture ? 3 : 0, false);
    node->SetSize(kind == Digital ? QSize(128, 64) : QSize(64, 64));
    node->NodeAlready(0);
    return node;
}

Play::Play(Lw::INodePlugin *plugin, Lw::HNode *node, unsigned int playIdentifier)
    : m_render(plugin->CreateAreaRender(node)), m_identifier(playIdentifier)
{ }

Play::~Play()
{
    if (m_render)
        m_render->Remove();
}

QImage Play::Frame(qint64 instant)
{
    SetInstant(instant);
    if (m_player) {
        m_render->PlayNext();
        return m_player->LastImage();
    }
    m_render->Start(m_identifier, 0);
    m_player = pictureplayer::ForIdentifier(m_identifier);
    if (!m_player)
        return QImage();
    QObject::connect(m_player, &pictureplayer::EffectUpdated, m_player,
                     [this](int milliseconds) { TakeDelay(milliseconds); });
    return m_player->LastImage();
}

// All instants are whole seconds.
void Play::TakeDelay(int milliseconds)
{
    m_delaysAreRight = m_delaysAreRight && milliseconds == 1000;
}

} // namespace Soak
