// A node, its renderer, or both, deleted at every step of a renderer's life. Whoever is left goes
// on without them: a frame that is held stays what it was, a clock beside it plays on, no tick
// comes for what is gone.
#include "clock_render.h"
#include "fault_support.h"
#include "messages.h"

#include "pictureplayer.h"

#include <functional>

using namespace FaultSupport;
using namespace Lw::HNodeClock;

namespace {

constexpr unsigned int kId = 31;
constexpr unsigned int kBesideId = 32;

/// The steps in the order of a life; the deletion takes place once, at one of them.
enum Step {
    NodeMade,
    GlyphsMade,
    RenderMade,
    FirstFrameShown, // within the signal that shows it
    FirstDelayTold,
    Started,
    NextFrameShown,
    NextDelayTold,
    BetweenFrames,
    FrameHeld,
    Ticking, // while the player waits for the next second
    Stopped,
    StartedAgain,
    Removed,
    StepCount
};

const char *const kStepNames[] = {
    "node made", "glyphs made", "renderer made", "first frame shown", "first delay told",
    "started",   "frame shown", "delay told",    "between frames",    "frame held",
    "ticking",   "stopped",     "started again", "removed",
};
static_assert(std::size(kStepNames) == StepCount);

enum Victim { Node, Render, NodeThenRender, RenderThenNode, VictimCount };
const char *const kVictimNames[] = {"node", "renderer", "node then renderer", "renderer then node"};
static_assert(std::size(kVictimNames) == VictimCount);

/// One area's life as a host leads it, which notices at every step whether its objects live.
class Life
{
public:
    Life(int kind, Step fatal, Victim victim) : m_kind(kind), m_fatal(fatal), m_victim(victim) { }
    ~Life()
    {
        pictureplayer::Register(kId, nullptr);
        delete m_render;
        delete m_node;
    }
    Q_DISABLE_COPY(Life)

    void Lead();
    bool Fell() const { return m_fell; }
    QImage Held() const { return m_held; }
    HClockNode *TheNode() const { return m_node; }
    HClockRender *TheRender() const { return m_render; }

private:
    void At(Step step);
    void Watch();
    void MakeGlyphs();
    void PlayTillTicking();
    void Play();

    int m_kind;
    Step m_fatal;
    Victim m_victim;
    bool m_fell = false;
    bool m_first = true;
    QPointer<HClockNode> m_node;
    QPointer<HClockRender> m_render;
    QImage m_held;
};

void Life::At(Step step)
{
    if (step != m_fatal || m_fell)
        return;
    m_fell = true;
    if (m_victim == Node || m_victim == NodeThenRender)
        delete m_node;
    if (m_victim != Node)
        delete m_render;
    if (m_victim == RenderThenNode)
        delete m_node;
}

// The player lives only from the renderer's construction; it is known by its identifier from the
// start of the renderer on, within which the first frame is shown.
void Life::Watch()
{
    pictureplayer *const player = pictureplayer::ForIdentifier(kId);
    if (!player)
        return;
    QObject::connect(player, &pictureplayer::ImageUpdated, player, [this](const QImage &image) {
        m_held = image;
        At(m_first ? FirstFrameShown : NextFrameShown);
    });
    QObject::connect(player, &pictureplayer::EffectUpdated, player,
                     [this] { At(m_first ? FirstDelayTold : NextDelayTold); });
}

void Life::Play()
{
    ChosenTime::Advance(1000);
    if (m_render)
        m_render->PlayNext();
}

void Life::Lead()
{
    m_node = new HClockNode;
    At(NodeMade);
    MakeGlyphs();
    At(GlyphsMade);
    m_render = new HClockRender(m_node);
    pictureplayer::Register(kId, m_render);
    At(RenderMade);
    PlayTillTicking();
    if (m_render)
        m_render->Stop();
    At(Stopped);
    if (m_render)
        m_render->Start(kId, 0);
    At(StartedAgain);
    Play();
    if (m_render)
        m_render->Remove();
    At(Removed);
    Play();
    QTest::qWait(3);
}

void Life::MakeGlyphs()
{
    if (!m_node)
        return;
    m_node->InitData();
    m_node->SetAttribute(Key(Attribute::ClockType), m_kind, false);
    m_node->SetSize({60, 40});
    m_node->NodeAlready(0);
}

void Life::PlayTillTicking()
{
    // A start that is cut short by Stop makes the player known without a tick to come.
    if (m_render) {
        m_render->Start(kId, 0);
        m_render->Stop();
        Watch();
        m_render->Start(kId, 0);
    }
    m_first = false;
    At(Started);
    Play();
    At(BetweenFrames);
    Play();
    At(FrameHeld);
    Play();
    QTest::qWait(3); // ticks
    At(Ticking);
    QTest::qWait(3);
}

} // namespace

class TestDeletions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { clock_set_time_source(nullptr); }

    void AtEveryStep_data();
    void AtEveryStep();
    void HeldFrameOutlivesAll_data() { AddKinds(); }
    void HeldFrameOutlivesAll();
    void NodeDeletedWhileItAnnouncesARedraw();
    void GlyphsOfADeletedNode();
    void ManyInAnyOrder_data();
    void ManyInAnyOrder();

private:
    QTemporaryDir m_directory;
};

void TestDeletions::initTestCase()
{
    Lw::HAppConfig::SetClockOutputPath(m_directory.path());
    pictureplayer::SetTimeScale(1000); // a second takes a millisecond
    // The refusal of a renderer without a node is logged each time; other tests look at that line.
    SilenceMessages();
}

void TestDeletions::AtEveryStep_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("victim");
    for (const int kind : kKinds) {
        for (int step = 0; step < StepCount; ++step) {
            const int victims = step < RenderMade ? Node + 1 : VictimCount;
            for (int victim = 0; victim < victims; ++victim) {
                QTest::addRow("%s: %s, %s", KindName(kind), kStepNames[step], kVictimNames[victim])
                    << kind << step << victim;
            }
        }
    }
}

void TestDeletions::AtEveryStep()
{
    QFETCH(int, kind);
    QFETCH(int, step);
    QFETCH(int, victim);
    ChosenTime::Set("2026-11-21T11:59:57");
    const auto beside = FullClock(kind);
    HClockRender besideRender(&beside->node);
    besideRender.Start(kBesideId, 0);

    Life life(kind, static_cast<Step>(step), static_cast<Victim>(victim));
    life.Lead();
    QVERIFY(life.Fell());
    QCOMPARE(!life.TheNode(), victim != Render);
    QCOMPARE(!life.TheRender(), victim != Node);
    if (!life.TheRender())
        QVERIFY(!pictureplayer::ForIdentifier(kId));
    if (step > FirstFrameShown)
        QCOMPARE(life.Held().size(), QSize(60, 40));

    const qint64 now = ChosenTime::Milliseconds();
    besideRender.Stop();
    besideRender.PlayNext();
    besideRender.PlayNext();
    QCOMPARE(pictureplayer::ForIdentifier(kBesideId)->LastImage(), SettledFrame(beside->node, now));
}

void TestDeletions::HeldFrameOutlivesAll()
{
    QFETCH(int, kind);
    ChosenTime::Set("2026-11-21T11:59:57");
    auto clock = FullClock(kind);
    const qint64 now = ChosenTime::Milliseconds();
    const QImage expected = SettledFrame(clock->node, now);
    QImage held;
    {
        DrawDisplayImage drawer(&clock->node);
        FrameAt(drawer, now);
        held = FrameAt(drawer, now);
        clock.reset();                               // its files as well
        QCOMPARE(FrameAt(drawer, now + 1000), held); // the last frame, again
    }
    QCOMPARE(held, expected);
    held.setPixel(0, 0, 0xff123456);
    QCOMPARE(held.pixel(0, 0), 0xff123456);
}

// A host may throw a node away as soon as it says that it changed.
void TestDeletions::NodeDeletedWhileItAnnouncesARedraw()
{
    const auto deletions = [](const std::function<void(HClockNode *)> &change) {
        auto *const node = new HClockNode;
        node->SetAttribute(Key(Attribute::ClockType), DigitalClock, false);
        int deleted = 0;
        QObject::connect(node, &HClockNode::ReDrawSourceImage, node, [node, &deleted] {
            ++deleted;
            delete node;
        });
        change(node);
        return deleted;
    };
    QCOMPARE(deletions([](HClockNode *node) { node->InitData(); }), 1);
    QCOMPARE(deletions([](HClockNode *node) { node->SetTimeAdjust(3600); }), 1);
}

void TestDeletions::GlyphsOfADeletedNode()
{
    ChosenTime::Set("2026-11-21T11:59:57");
    auto clock = FullClock(DigitalClock);
    DrawDisplayImage drawer(&clock->node);
    const qint64 now = ChosenTime::Milliseconds();
    const QImage shown = FrameAt(drawer, now).copy();
    clock.reset();
    drawer.ReLoadSourceFile(nullptr);
    drawer.InitClockTypePixmap();
    drawer.DrawDigitalClock();
    drawer.DrawAnalogClock();
    drawer.DrawPixmapClock();
    QCOMPARE(FrameAt(drawer, now + 5000), shown);
}

void TestDeletions::ManyInAnyOrder_data()
{
    QTest::addColumn<int>("stride"); // through 20 areas: each number is coprime to 20
    for (const int stride : {1, 3, 7, 19})
        QTest::addRow("every %d", stride) << stride;
}

// Twenty areas play at once; node or renderer of one after the other goes, and the others go on.
void TestDeletions::ManyInAnyOrder()
{
    QFETCH(int, stride);
    constexpr int kAreas = 20;
    ChosenTime::Set("2026-11-21T11:59:57");
    std::unique_ptr<HClockNode> nodes[kAreas];
    std::unique_ptr<HClockRender> renders[kAreas];
    for (int i = 0; i < kAreas; ++i) {
        nodes[i] = std::make_unique<HClockNode>();
        nodes[i]->InitData();
        nodes[i]->SetAttribute(Key(Attribute::ClockType), kKinds[i % 3], false);
        nodes[i]->SetAttribute(Key(Attribute::Id), 1000 + i, false);
        nodes[i]->SetSize({40, 30});
        nodes[i]->NodeAlready(0);
        renders[i] = std::make_unique<HClockRender>(nodes[i].get());
        pictureplayer::Register(100u + static_cast<unsigned int>(i), renders[i].get());
        renders[i]->Start(100u + static_cast<unsigned int>(i), 0);
    }
    for (int round = 0, at = 0; round < kAreas; ++round, at = (at + stride) % kAreas) {
        if (round % 2 == 0)
            nodes[at].reset();
        renders[at].reset();
        nodes[at].reset();
        QTest::qWait(2);
        for (int i = 0; i < kAreas; ++i) {
            auto *const player = pictureplayer::ForIdentifier(100u + static_cast<unsigned int>(i));
            QCOMPARE(player != nullptr, renders[i] != nullptr);
            if (!player)
                continue;
            renders[i]->PlayNext();
            QCOMPARE(player->LastImage().size(), QSize(40, 30));
        }
    }
}

QTEST_MAIN(TestDeletions)

#include "test_deletions.moc"
