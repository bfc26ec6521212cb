#include "live_wall.h"

#include "clock_finder.h"
#include "clock_node.h"
#include "happconfig.h"
#include "node_keys.h"
#include "node_maker.h"

#include <QMultiHash>

#include <algorithm>
#include <utility>

namespace ClockStudio {

namespace {

// How long creating clocks may block the event loop, in milliseconds.
constexpr int kMakingSpan = 12;
// Time between two signals that clocks have been made, in milliseconds.
constexpr int kTellingSpan = 200;
// Above the plugin's random Ids and those that programs usually set.
constexpr int kFirstIdentity = 100000;

QString MadeFrom(const ParsedProgram &parsed, int area)
{
    const QSize size = parsed.Geometry(area).size();
    return QStringLiteral("%1x%2 ").arg(size.width()).arg(size.height()) + parsed.ClockText(area);
}

} // namespace

void StartWithTexts(ClockStage::Area &area)
{
    area.Start();
    area.PlayNext();
}

LiveWall::LiveWall(QObject *parent) : QObject(parent)
{
    Lw::HAppConfig::SetClockOutputPath(m_files.path());
    m_makeTimer.setSingleShot(true);
    connect(&m_makeTimer, &QTimer::timeout, this, &LiveWall::MakePendingClocks);
    connect(&m_encoder, &ImageEncoder::Encoded, this, &LiveWall::MakePendingClocks);
}

LiveWall::~LiveWall() = default;

void LiveWall::Show(const ParsedProgram &parsed)
{
    m_program = parsed.program;
    std::vector<Slot> taken = TakeOver(parsed);
    for (Slot &slot : m_slots)
        Release(slot);
    m_slots = std::move(taken);
    m_pendingCount = static_cast<int>(std::count_if(
        m_slots.cbegin(), m_slots.cend(), [](const Slot &slot) { return slot.IsPending(); }));
    if (m_screen.size() != parsed.program.size)
        m_screen = ClockStage::BlackScreen(parsed.program.size);
    MakePendingClocks();
    Compose(m_screen.rect());
}

/// The slots for a program. An unchanged clock keeps playing, even if it was moved; a changed one
/// gets the slot of the clock it replaces, unless that one still plays elsewhere.
std::vector<LiveWall::Slot> LiveWall::TakeOver(const ParsedProgram &parsed)
{
    std::vector<Slot> next(static_cast<std::size_t>(parsed.AreaCount()));
    QMultiHash<QString, int> wanted;
    for (int area = parsed.AreaCount() - 1; area >= 0; --area) {
        Slot &slot = next[static_cast<std::size_t>(area)];
        slot.text = MadeFrom(parsed, area);
        slot.area = area;
        slot.geometry = parsed.Geometry(area);
        wanted.insert(slot.text, area);
    }
    const auto move = [&next](Slot &from, int area) {
        Slot &to = next[static_cast<std::size_t>(area)];
        to.made = from.made;
        to.identity = std::exchange(from.identity, 0);
        to.refusal = from.refusal;
        to.lastPicture = from.clock ? from.clock->Picture().image : from.lastPicture;
        to.clock = std::move(from.clock);
    };
    for (Slot &slot : m_slots) {
        const auto place = slot.IsPending() ? wanted.end() : wanted.find(slot.made);
        if (place != wanted.end()) {
            move(slot, *place);
            wanted.erase(place);
        }
    }
    for (Slot &slot : m_slots) {
        if (slot.identity != 0 && slot.area < parsed.AreaCount()
            && next[static_cast<std::size_t>(slot.area)].identity == 0)
            move(slot, slot.area);
    }
    return next;
}

LiveWall::Pending::Pending(const Slot &slot, ClockProgram::MadeNode node)
    : text(slot.text), identity(slot.identity), made(std::move(node)),
      images(static_cast<Lw::HNodeClock::HClockNode &>(*made.node)) // only clocks are made
{ }

void LiveWall::MakePendingClocks()
{
    QElapsedTimer spent;
    spent.start();
    for (Slot &slot : m_slots) {
        if (!slot.IsPending())
            continue;
        const bool isSpent = spent.hasExpired(kMakingSpan);
        if (isSpent || !Make(slot, spent)) {
            // An image that is being encoded may belong to a clock that is no longer wanted.
            if (isSpent || !m_encoder.IsBusy())
                m_makeTimer.start();
            break;
        }
        --m_pendingCount;
        Compose(slot.geometry);
    }
    if (m_pendingCount == 0 || !m_told.isValid() || m_told.hasExpired(kTellingSpan)) {
        m_told.start();
        emit ClocksMade();
    }
}

/// False if that takes another turn of the event loop, or an image that is being encoded.
bool LiveWall::Make(Slot &slot, const QElapsedTimer &spent)
{
    if (slot.identity == 0)
        slot.identity = FreeIdentity();
    if (!m_pending || m_pending->text != slot.text || m_pending->identity != slot.identity)
        Begin(slot);
    if (m_pending && !m_pending->images.IsDone()) {
        while (!m_pending->images.IsDone() && !m_encoder.IsBusy() && !spent.hasExpired(kMakingSpan))
            m_pending->images.MakeNext(m_encoder);
        return false;
    }
    slot.made = slot.text;
    slot.lastPicture = QImage();
    if (m_pending)
        Play(slot, std::move(m_pending->made));
    m_pending.reset();
    return true;
}

/// The old clock shows its last picture until then: the files of its images are overwritten.
void LiveWall::Begin(Slot &slot)
{
    m_pending.reset();
    if (slot.clock)
        slot.lastPicture = slot.clock->Picture().image;
    slot.clock.reset();
    slot.made.clear();
    slot.refusal.clear();
    ClockProgram::Program alone = m_program;
    alone.areas = {m_program.areas[slot.area]};
    auto result = ClockProgram::MakeNodes(alone, ClockTool::FindClockPlugin);
    if (!result) {
        slot.refusal = result.Error().text;
        return;
    }
    auto &made = result->nodes.front();
    made.node->SetAttribute(ClockProgram::kIdKey, slot.identity, false);
    m_pending = std::make_unique<Pending>(slot, std::move(made));
}

void LiveWall::Play(Slot &slot, ClockProgram::MadeNode made)
{
    slot.clock = std::make_unique<ClockStage::Area>(++m_lastPlay, made.plugin, std::move(made.node),
                                                    ClockStage::GlyphFiles::Made);
    StartWithTexts(*slot.clock);
    ClockStage::Area *const clock = slot.clock.get();
    connect(clock, &ClockStage::Area::PictureChanged, this, [this, clock] {
        for (const Slot &shown : m_slots) {
            if (shown.clock.get() == clock)
                Compose(shown.geometry);
        }
    });
}

int LiveWall::FreeIdentity()
{
    return m_freeIdentities.isEmpty() ? kFirstIdentity + m_identities++
                                      : m_freeIdentities.takeLast();
}

/// Frees the Id; the next clock that gets it overwrites the glyph files.
void LiveWall::Release(Slot &slot)
{
    if (slot.identity != 0)
        m_freeIdentities.append(slot.identity);
    slot.identity = 0;
    slot.clock.reset();
}

QImage LiveWall::Picture(int area) const
{
    const Slot &slot = m_slots[static_cast<std::size_t>(area)];
    return slot.clock ? slot.clock->Picture().image : slot.lastPicture;
}

Lw::HNodeClock::HClockNode *LiveWall::Clock(int area) const
{
    if (area < 0 || area >= AreaCount())
        return nullptr;
    const Slot &slot = m_slots[static_cast<std::size_t>(area)];
    return slot.clock && !slot.IsPending()
        ? qobject_cast<Lw::HNodeClock::HClockNode *>(slot.clock->Node())
        : nullptr;
}

void LiveWall::PlayNext()
{
    for (const Slot &slot : m_slots) {
        if (slot.clock)
            slot.clock->PlayNext();
    }
}

void LiveWall::RecreateClocks()
{
    m_pending.reset();
    for (Slot &slot : m_slots)
        slot.made.clear();
    m_pendingCount = AreaCount();
    MakePendingClocks();
}

void LiveWall::Compose(const QRect &region)
{
    QVector<ClockStage::Layer> layers;
    for (int area = 0; area < AreaCount(); ++area) {
        if (Geometry(area).intersects(region))
            layers.append({Geometry(area), Picture(area)});
    }
    ClockStage::ComposeScreen(m_screen, layers, region);
    emit Painted(region & m_screen.rect());
}

} // namespace ClockStudio
