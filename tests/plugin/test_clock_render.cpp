// The renderer: when it starts, what it hands to the player, and when it asks for the next frame.
#include "chosen_time.h"
#include "messages.h"

#include "clock_node.h"
#include "clock_render.h"

#include "hpluginmanager.h"
#include "pictureplayer.h"

#include <QtTest>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

using Lw::HPluginManager;
using Lw::HNodeClock::Attribute;
using Lw::HNodeClock::HClockNode;
using Lw::HNodeClock::HClockRender;
using Lw::HNodeClock::Key;

namespace {

constexpr unsigned int kId = 21;
constexpr int kDigital = 1;

// 2024-03-05 12:00:00 UTC.
constexpr long long kNoon = 1709640000000LL;

int g_readings = 0;

long long Now()
{
    ++g_readings;
    return ChosenTime::Milliseconds();
}

// A millisecond passes with each reading.
long long RunningNow()
{
    ++g_readings;
    return ChosenTime::Milliseconds()++;
}

const char kRefusalLine[] = "0 default Enter:[clock_render.cpp::PlayNext::135]";

/// Counts the calls that come through the table of virtual operations.
class CountingRender : public HClockRender
{
public:
    using HClockRender::HClockRender;
    void Stop() override
    {
        calls << "Stop";
        HClockRender::Stop();
    }
    void PlayNext() override
    {
        calls << "PlayNext";
        HClockRender::PlayNext();
    }
    bool NotClear() const { return videoNotClear; }

    QStringList calls;
};

/// A renderer whose Stop goes on to something else, after which it does not touch itself: it may
/// be gone, and its memory is then overwritten, so that any later use is seen.
class StoppingRender : public HClockRender
{
public:
    using HClockRender::HClockRender;
    static void operator delete(void *memory, std::size_t size)
    {
        auto *const bytes = static_cast<volatile unsigned char *>(memory);
        std::fill(bytes, bytes + size, static_cast<unsigned char>(0xa5));
        ::operator delete(memory);
    }
    void Stop() override
    {
        HClockRender::Stop();
        if (const std::function<void()> next = std::exchange(m_afterStop, {}))
            next();
    }
    /// Once, for Remove stops too.
    void AfterStop(std::function<void()> next) { m_afterStop = std::move(next); }

private:
    std::function<void()> m_afterStop;
};

/// A node of which the host learns the size only after something else has happened.
class AskedNode : public HClockNode
{
public:
    QSize Size() override
    {
        if (whenAsked)
            std::exchange(whenAsked, {})();
        return QSize(64, 32);
    }

    std::function<void()> whenAsked;
};

} // namespace

class TestClockRender : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void MetaObjectAddsNothing();
    void StateIsZeroBeforeStart();
    void StartShowsTheFirstFrameAtOnce();
    void StartIsRefused_data();
    void StartIsRefused();
    void StartStopsFirst();
    void RecordOfTheStart_data();
    void RecordOfTheStart();
    void RecordOfANodeBeforeLayout();
    void DelayToTheNextSecond_data();
    void DelayToTheNextSecond();
    void FrameHasOneReading();
    void TenthFrameEndsTheStart();
    void StartBeginsTheCountAnew();
    void PlayerDrivesTheTicks();
    void StopEndsTheTicksAndMayBeStartedAgain();
    void PauseHasNoEffect();
    void OrdinaryFrameLogsNothing();
    void DeadNodeLogsAndRequestsNothing();
    void NodeDeletedWhilePlayingEndsTheTicks();
    void RendererWithoutANode();
    void RemovedRenderer();
    void CleanResourcesTwice();
    void DestructionTakesThePlayerAlong();
    void VideoNotClearIsStored();
    void OtherInterfaceDefaults();
    void NodeDeletedByTheFramesReceiver();
    void RendererRemovedByTheFramesReceiver();
    void RendererDeletedByTheFramesReceiver();
    void RendererDeletedWhenTheDelayIsTold();
    void RendererDeletedWithinATick();
    void NodeDeletedByStop();
    void RendererRemovedByStop();
    void RendererDeletedByStop();
    void RendererDeletedByStopOfRemove();
    void NodeDeletedAsItsSizeIsAsked();
    void RendererGoneAsTheSizeIsAsked_data();
    void RendererGoneAsTheSizeIsAsked();
    void StateWithinTheFrames();

private:
    pictureplayer *Player() const { return pictureplayer::ForIdentifier(kId); }

    std::unique_ptr<HClockNode> m_node;
    std::unique_ptr<CountingRender> m_render;
    std::optional<CollectedMessages> m_messages;
};

void TestClockRender::init()
{
    ChosenTime::Milliseconds() = kNoon;
    clock_set_time_source(&Now);
    pictureplayer::SetTimeScale(0);
    HPluginManager::instance()->SetAlphaBlend(false);
    m_node.reset(new HClockNode);
    m_node->SetAttribute(Key(Attribute::ClockType), kDigital, false);
    m_node->SetSize(QSize(64, 32));
    m_node->SetPos(QPoint(5, 6));
    m_render.reset(new CountingRender(m_node.get()));
    pictureplayer::Register(kId, m_render.get());
    m_messages.emplace();
}

void TestClockRender::cleanup()
{
    m_messages.reset();
    m_render.reset();
    m_node.reset();
    pictureplayer::Register(kId, nullptr);
    clock_set_time_source(nullptr);
}

void TestClockRender::MetaObjectAddsNothing()
{
    const QMetaObject &meta = HClockRender::staticMetaObject;
    QCOMPARE(meta.className(), "Lw::HNodeClock::HClockRender");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
}

void TestClockRender::StateIsZeroBeforeStart()
{
    QCOMPARE(m_render->renderState(), 0);
    QVERIFY(!m_render->parent());
}

void TestClockRender::StartShowsTheFirstFrameAtOnce()
{
    m_render->Start(kId, 12345);
    QCOMPARE(m_render->renderState(), 1);
    QVERIFY(Player());
    QCOMPARE(Player()->LastImage().size(), QSize(64, 32));
}

void TestClockRender::StartIsRefused_data()
{
    QTest::addColumn<bool>("nodeLives");
    QTest::addColumn<unsigned int>("playIdentifier");
    QTest::newRow("identifier 0") << true << 0u;
    QTest::newRow("dead node") << false << kId;
    QTest::newRow("both") << false << 0u;
}

void TestClockRender::StartIsRefused()
{
    QFETCH(bool, nodeLives);
    QFETCH(unsigned int, playIdentifier);
    if (!nodeLives)
        m_node.reset();
    m_render->Start(playIdentifier, 1);
    QCOMPARE(m_render->renderState(), 2);
    QVERIFY(!pictureplayer::ForIdentifier(playIdentifier));
    QCOMPARE(m_render->calls, QStringList());
    QCOMPARE(m_messages->Lines(), QStringList());
}

void TestClockRender::StartStopsFirst()
{
    m_render->Start(kId, 0);
    QCOMPARE(m_render->calls, QStringList({"Stop", "PlayNext"}));
}

void TestClockRender::RecordOfTheStart_data()
{
    QTest::addColumn<bool>("alphaBlend");
    QTest::newRow("without blending") << false;
    QTest::newRow("with blending") << true;
}

void TestClockRender::RecordOfTheStart()
{
    QFETCH(bool, alphaBlend);
    HPluginManager::instance()->SetAlphaBlend(alphaBlend);
    m_render->Start(kId, 0);
    const SessionParameter record = Player()->Parameter();
    const auto isZero = [](unsigned int value) { return value == 0; };
    QCOMPARE(record.name, QString());
    QCOMPARE(record.playIdentifier, kId);
    QCOMPARE(record.position, QPoint(5, 6));
    QCOMPARE(record.size, QSize(64, 32));
    QVERIFY(std::all_of(std::begin(record.words), std::end(record.words), isZero));
    QCOMPARE(int(record.timing), 1000);
    QVERIFY(std::all_of(std::begin(record.reservedBytes), std::end(record.reservedBytes), isZero));
    QVERIFY(std::all_of(std::begin(record.effectBytes), std::end(record.effectBytes), isZero));
    QCOMPARE(record.alphaBlend, alphaBlend);
    QCOMPARE(record.lastFlag, true);
}

void TestClockRender::RecordOfANodeBeforeLayout()
{
    HClockNode node;
    HClockRender render(&node);
    render.Start(kId + 1, 0);
    pictureplayer *const player = pictureplayer::ForIdentifier(kId + 1);
    QVERIFY(player);
    QCOMPARE(player->Parameter().position, QPoint(0, 0));
    QCOMPARE(player->Parameter().size, QSize(-1, -1));
}

void TestClockRender::DelayToTheNextSecond_data()
{
    QTest::addColumn<int>("millisecond");
    QTest::addColumn<int>("delay");
    QTest::newRow(".000") << 0 << 1000;
    QTest::newRow(".001") << 1 << 999;
    QTest::newRow(".500") << 500 << 500;
    QTest::newRow(".900") << 900 << 100;
    QTest::newRow(".999") << 999 << 1;
}

void TestClockRender::DelayToTheNextSecond()
{
    QFETCH(int, millisecond);
    m_render->Start(kId, 0);
    QSignalSpy delays(Player(), &pictureplayer::EffectUpdated);
    ChosenTime::Milliseconds() = kNoon + millisecond;
    m_render->PlayNext();
    QCOMPARE(delays.size(), 1);
    QTEST(delays.at(0).at(0).toInt(), "delay");
}

void TestClockRender::FrameHasOneReading()
{
    m_render->Start(kId, 0);
    QSignalSpy delays(Player(), &pictureplayer::EffectUpdated);
    clock_set_time_source(&RunningNow);
    ChosenTime::Milliseconds() = kNoon + 999;
    g_readings = 0;
    qint64 whileShown = 0;
    connect(Player(), &pictureplayer::ImageUpdated, this,
            [&whileShown] { whileShown = Lw::HNodeClock::UtcMilliseconds(); });
    m_render->PlayNext();
    QCOMPARE(delays.at(0).at(0).toInt(), 1);
    // The frame reads the time once, the receiver of the frame again.
    QCOMPARE(g_readings, 2);
    QCOMPARE(whileShown, qint64(kNoon + 1000));
}

void TestClockRender::TenthFrameEndsTheStart()
{
    m_render->Start(kId, 0); // shows the first
    for (int frame = 2; frame <= 9; ++frame) {
        m_render->PlayNext();
        QCOMPARE(m_render->renderState(), 1);
    }
    m_render->PlayNext();
    QCOMPARE(m_render->renderState(), 0);
    for (int frame = 11; frame <= 40; ++frame) {
        m_render->PlayNext();
        QCOMPARE(m_render->renderState(), 0);
    }
}

void TestClockRender::StartBeginsTheCountAnew()
{
    m_render->Start(kId, 0);
    for (int frame = 2; frame <= 9; ++frame)
        m_render->PlayNext();
    m_render->Start(kId, 0);
    for (int frame = 2; frame <= 9; ++frame)
        m_render->PlayNext();
    QCOMPARE(m_render->renderState(), 1);
    m_render->PlayNext();
    QCOMPARE(m_render->renderState(), 0);
    m_render->Start(0, 0);
    QCOMPARE(m_render->renderState(), 2);
}

void TestClockRender::PlayerDrivesTheTicks()
{
    pictureplayer::SetTimeScale(200); // a second takes five milliseconds
    m_render->Start(kId, 0);
    QCOMPARE(m_render->renderState(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(m_render->renderState(), 0, 5000);
    QVERIFY(m_render->calls.count("PlayNext") >= 10);
}

void TestClockRender::StopEndsTheTicksAndMayBeStartedAgain()
{
    pictureplayer::SetTimeScale(200);
    m_render->Start(kId, 0);
    m_render->Stop();
    m_render->calls.clear();
    QTest::qWait(50);
    QCOMPARE(m_render->calls, QStringList());
    QCOMPARE(m_render->renderState(), 1);
    m_render->Start(kId, 0);
    QTRY_VERIFY_WITH_TIMEOUT(m_render->calls.count("PlayNext") >= 3, 5000);
}

void TestClockRender::PauseHasNoEffect()
{
    m_render->Start(kId, 0);
    QSignalSpy images(Player(), &pictureplayer::ImageUpdated);
    QSignalSpy delays(Player(), &pictureplayer::EffectUpdated);
    const QImage shown = Player()->LastImage();
    m_render->calls.clear();
    m_render->Pause();
    QCOMPARE(m_render->renderState(), 1);
    QCOMPARE(m_render->calls, QStringList());
    QCOMPARE(images.size() + delays.size(), 0);
    QCOMPARE(Player()->LastImage(), shown);
}

void TestClockRender::OrdinaryFrameLogsNothing()
{
    m_render->Start(kId, 0);
    m_render->PlayNext();
    QVERIFY(m_messages->Lines().filter("Enter:").isEmpty());
}

void TestClockRender::DeadNodeLogsAndRequestsNothing()
{
    m_render->Start(kId, 0);
    QSignalSpy images(Player(), &pictureplayer::ImageUpdated);
    QSignalSpy delays(Player(), &pictureplayer::EffectUpdated);
    m_node.reset();
    m_messages->Clear();
    m_render->PlayNext();
    QCOMPARE(m_messages->Lines(), QStringList(kRefusalLine));
    QCOMPARE(images.size() + delays.size(), 0);
    QCOMPARE(m_render->renderState(), 1);
}

void TestClockRender::NodeDeletedWhilePlayingEndsTheTicks()
{
    pictureplayer::SetTimeScale(200);
    m_render->Start(kId, 0);
    QTRY_VERIFY_WITH_TIMEOUT(m_render->calls.count("PlayNext") >= 3, 5000);
    m_node.reset();
    QTRY_COMPARE_WITH_TIMEOUT(m_messages->Lines().count(kRefusalLine), 1, 5000);
    QTest::qWait(50);
    QCOMPARE(m_messages->Lines().count(kRefusalLine), 1);
}

void TestClockRender::RendererWithoutANode()
{
    HClockRender render(nullptr);
    render.Start(kId, 0);
    QCOMPARE(render.renderState(), 2);
    render.PlayNext();
    QCOMPARE(m_messages->Lines(), QStringList(kRefusalLine));
}

void TestClockRender::RemovedRenderer()
{
    m_render->Start(kId, 0);
    m_render->calls.clear();
    m_render->Remove();
    QCOMPARE(m_render->calls, QStringList("Stop"));
    QVERIFY(!Player());
    m_render->PlayNext();
    QCOMPARE(m_messages->Lines().count(kRefusalLine), 1);
    m_render->Stop();
    m_render->Remove();
    m_render->Start(kId, 0);
    QCOMPARE(m_render->renderState(), 2);
}

void TestClockRender::CleanResourcesTwice()
{
    m_render->Start(kId, 0);
    m_render->CleanResources();
    QVERIFY(!Player());
    m_render->CleanResources();
    m_render->PlayNext();
    QCOMPARE(m_messages->Lines().count(kRefusalLine), 1);
}

void TestClockRender::DestructionTakesThePlayerAlong()
{
    m_render->Start(kId, 0);
    QVERIFY(Player());
    m_render.reset();
    QVERIFY(!Player());
}

void TestClockRender::VideoNotClearIsStored()
{
    QVERIFY(!m_render->NotClear());
    m_render->SetVideoNotClear(true);
    QVERIFY(m_render->NotClear());
    m_render->SetVideoNotClear(false);
    QVERIFY(!m_render->NotClear());
}

void TestClockRender::OtherInterfaceDefaults()
{
    m_render->PrepareData();
    m_render->Seek(1);
    QVERIFY(!m_render->AreaFinish());
    QCOMPARE(m_render->renderState(), 0);
    QCOMPARE(m_render->calls, QStringList());
}

void TestClockRender::NodeDeletedByTheFramesReceiver()
{
    m_render->Start(kId, 0);
    connect(Player(), &pictureplayer::ImageUpdated, this, [this] { m_node.reset(); });
    m_render->PlayNext();
    m_render->PlayNext();
    QCOMPARE(m_messages->Lines().count(kRefusalLine), 1);
}

void TestClockRender::RendererRemovedByTheFramesReceiver()
{
    m_render->Start(kId, 0);
    QSignalSpy delays(Player(), &pictureplayer::EffectUpdated);
    connect(Player(), &pictureplayer::ImageUpdated, this, [this] { m_render->Remove(); });
    m_render->PlayNext();
    QVERIFY(!Player());
    QCOMPARE(delays.size(), 0);
}

void TestClockRender::RendererDeletedByTheFramesReceiver()
{
    m_render->Start(kId, 0);
    connect(Player(), &pictureplayer::ImageUpdated, this, [this] { m_render.reset(); });
    m_render->PlayNext();
    QVERIFY(!m_render);
    QVERIFY(!Player());
}

void TestClockRender::RendererDeletedWhenTheDelayIsTold()
{
    m_render->Start(kId, 0);
    connect(Player(), &pictureplayer::EffectUpdated, this, [this] { m_render.reset(); });
    m_render->PlayNext();
    QVERIFY(!m_render);
}

void TestClockRender::RendererDeletedWithinATick()
{
    pictureplayer::SetTimeScale(200);
    m_render->Start(kId, 0);
    connect(Player(), &pictureplayer::ImageUpdated, this, [this] { m_render.reset(); });
    QTRY_VERIFY_WITH_TIMEOUT(!m_render, 5000);
    QTest::qWait(20);
    QVERIFY(!Player());
}

// The record of a start without a node has no place: that of a point and a size that were never
// set.
void TestClockRender::NodeDeletedByStop()
{
    StoppingRender render(m_node.get());
    render.AfterStop([this] { m_node.reset(); });
    render.Start(kId + 1, 0);
    QCOMPARE(render.renderState(), 1);
    pictureplayer *const player = pictureplayer::ForIdentifier(kId + 1);
    QVERIFY(player);
    QCOMPARE(player->Parameter().position, QPoint(0, 0));
    QCOMPARE(player->Parameter().size, QSize(-1, -1));
    QVERIFY(player->LastImage().isNull());
    QCOMPARE(m_messages->Lines(), QStringList(kRefusalLine));
}

void TestClockRender::RendererRemovedByStop()
{
    AskedNode node;
    StoppingRender render(&node);
    render.AfterStop([&render] { render.Remove(); });
    bool isAsked = false;
    node.whenAsked = [&isAsked] { isAsked = true; };
    render.Start(kId + 1, 0);
    QVERIFY(!pictureplayer::ForIdentifier(kId + 1));
    QVERIFY(!isAsked);
    QCOMPARE(m_messages->Lines(), QStringList());
}

void TestClockRender::RendererDeletedByStop()
{
    auto *const render = new StoppingRender(m_node.get());
    const QPointer<HClockRender> guard(render);
    render->AfterStop([render] { delete render; });
    render->Start(kId + 1, 0);
    QVERIFY(!guard);
    QVERIFY(!pictureplayer::ForIdentifier(kId + 1));
}

void TestClockRender::RendererDeletedByStopOfRemove()
{
    auto *const render = new StoppingRender(m_node.get());
    const QPointer<HClockRender> guard(render);
    render->Start(kId + 1, 0);
    render->AfterStop([render] { delete render; });
    render->Remove();
    QVERIFY(!guard);
    QVERIFY(!pictureplayer::ForIdentifier(kId + 1));
}

// Of a node that is gone once its size is told, the place is no longer asked.
void TestClockRender::NodeDeletedAsItsSizeIsAsked()
{
    auto *const node = new AskedNode;
    node->SetPos(QPoint(5, 6));
    HClockRender render(node);
    node->whenAsked = [node] { delete node; };
    render.Start(kId + 1, 0);
    pictureplayer *const player = pictureplayer::ForIdentifier(kId + 1);
    QVERIFY(player);
    QCOMPARE(player->Parameter().size, QSize(64, 32));
    QCOMPARE(player->Parameter().position, QPoint(0, 0));
    QCOMPARE(m_messages->Lines(), QStringList(kRefusalLine));
}

void TestClockRender::RendererGoneAsTheSizeIsAsked_data()
{
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("removed") << false;
    QTest::newRow("deleted") << true;
}

void TestClockRender::RendererGoneAsTheSizeIsAsked()
{
    QFETCH(bool, isDeleted);
    AskedNode node;
    std::unique_ptr<HClockRender> render(new HClockRender(&node));
    node.whenAsked = [&render, isDeleted] { isDeleted ? render.reset() : render->Remove(); };
    render->Start(kId + 1, 0);
    QCOMPARE(!render, isDeleted);
    QVERIFY(!pictureplayer::ForIdentifier(kId + 1));
    QCOMPARE(m_messages->Lines(), QStringList());
}

// The frame is counted after it was shown and before the delay is told: at the tenth, the receiver
// of the delay finds the clock running steadily.
void TestClockRender::StateWithinTheFrames()
{
    m_render->Start(kId, 0); // shows the first
    QVector<int> shown;
    QVector<int> told;
    connect(Player(), &pictureplayer::ImageUpdated, this,
            [&shown, this] { shown << m_render->renderState(); });
    connect(Player(), &pictureplayer::EffectUpdated, this,
            [&told, this] { told << m_render->renderState(); });
    for (int frame = 2; frame <= 10; ++frame)
        m_render->PlayNext();
    QCOMPARE(shown, QVector<int>({1, 1, 1, 1, 1, 1, 1, 1, 1}));
    QCOMPARE(told, QVector<int>({1, 1, 1, 1, 1, 1, 1, 1, 0}));
}

QTEST_MAIN(TestClockRender)
#include "test_clock_render.moc"
