// An area of the player, with a clock of the loaded plugin, deleted at every step of its life, or
// left without its node. Another area beside it plays on, and its place is used again.
#include "area.h"
#include "plugins.h"

#include "happconfig.h"
#include "hnode.h"
#include "hpluginmanager.h"
#include "inodeplugin.h"
#include "pictureplayer.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

using namespace ClockPlayer;
using namespace ClockStage;

namespace {

constexpr unsigned int kId = 1;
constexpr unsigned int kBesideId = 2;
constexpr QSize kSize(48, 32);

long long g_now = 1795262390000; // 2026-11-21 11:59:50 UTC

enum Step {
    Made,
    FirstPicture, // within the signal that announces it
    Started,
    LaterPicture,
    Between,
    Ticking,
    RedrawDue, // its node has changed: its images will be regenerated
    StepCount
};
const char *const kSteps[] = {"made",    "first picture", "started",   "later picture",
                              "between", "ticking",       "redraw due"};
static_assert(std::size(kSteps) == StepCount);

enum Victim { WholeArea, NodeOnly, NodeThenArea, VictimCount };
const char *const kVictims[] = {"area", "node", "node then area"};
static_assert(std::size(kVictims) == VictimCount);

QImage NextPicture(Area &area)
{
    area.PlayNext();
    area.PlayNext();
    return area.Picture().image.copy();
}

} // namespace

class TestAreaDeletions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { QVERIFY(!SetTimeSource(nullptr)); }
    void AtEveryStep_data();
    void AtEveryStep();

private:
    std::unique_ptr<Area> NewArea(unsigned int identifier, int kind);
    void At(Step step);
    void Live();
    void PlaySecond();

    QTemporaryDir m_files;
    Lw::INodePlugin *m_plugin = nullptr;
    std::unique_ptr<Area> m_area;
    Step m_fatal = Made;
    Victim m_victim = WholeArea;
    bool m_fell = false;
};

void TestAreaDeletions::initTestCase()
{
    Lw::HPluginManager &manager = *Lw::HPluginManager::instance();
    QVERIFY(manager.LoadFile(QStringLiteral(CLOCK_PLUGIN_FILE)));
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("clock"));
    m_plugin = manager.PluginFor(element);
    QVERIFY(m_plugin);
    QVERIFY(!SetTimeSource([] { return g_now; }));
    Lw::HAppConfig::SetClockOutputPath(m_files.path());
    Lw::pictureplayer::SetTimeScale(1000); // a second takes a millisecond
}

std::unique_ptr<Area> TestAreaDeletions::NewArea(unsigned int identifier, int kind)
{
    std::unique_ptr<Lw::HNode> node(m_plugin->Create());
    node->InitData();
    node->SetAttribute(QStringLiteral("ClockType"), kind, false);
    node->SetAttribute(QStringLiteral("Id"), int(1000 + identifier), false);
    node->SetSize(kSize);
    return std::make_unique<Area>(identifier, m_plugin, std::move(node), GlyphFiles::Made);
}

void TestAreaDeletions::At(Step step)
{
    if (step != m_fatal || m_fell)
        return;
    m_fell = true;
    if (m_victim != WholeArea)
        delete m_area->Node();
    if (m_victim != NodeOnly)
        m_area.reset();
}

/// The area's life, step by step.
void TestAreaDeletions::Live()
{
    bool first = true;
    connect(m_area.get(), &Area::PictureChanged, this,
            [this, &first] { At(first ? FirstPicture : LaterPicture); });
    At(Made);
    if (m_area)
        m_area->Start();
    first = false;
    At(Started);
    PlaySecond();
    At(Between);
    PlaySecond();
    QTest::qWait(3);
    At(Ticking);
    QTest::qWait(3);
    if (m_area && m_area->Node())
        QVERIFY(QMetaObject::invokeMethod(m_area->Node(), "ReDrawSourceImage"));
    At(RedrawDue);
    QTest::qWait(3);
    PlaySecond();
    if (m_area)
        m_area->disconnect(this);
}

void TestAreaDeletions::PlaySecond()
{
    g_now += 1000;
    if (m_area)
        m_area->PlayNext();
}

void TestAreaDeletions::AtEveryStep_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("victim");
    for (int kind = 0; kind < 3; ++kind) {
        for (int step = 0; step < StepCount; ++step) {
            for (int victim = 0; victim < VictimCount; ++victim)
                QTest::addRow("type %d: %s, %s", kind, kSteps[step], kVictims[victim])
                    << kind << step << victim;
        }
    }
}

void TestAreaDeletions::AtEveryStep()
{
    QFETCH(int, kind);
    QFETCH(int, step);
    QFETCH(int, victim);
    m_fatal = static_cast<Step>(step);
    m_victim = static_cast<Victim>(victim);
    m_fell = false;
    const auto beside = NewArea(kBesideId, kind);
    beside->Start();
    m_area = NewArea(kId, kind);
    Live();

    QVERIFY(m_fell);
    QCOMPARE(m_area == nullptr, m_victim != NodeOnly);
    if (m_area) {
        QVERIFY(!m_area->Node());
        QCOMPARE(m_area->Picture().image.size(), m_fatal == Made ? QSize(0, 0) : kSize);
    }
    m_area.reset();
    QVERIFY(!Lw::pictureplayer::ForIdentifier(kId));
    g_now += 1000;
    const QImage shown = NextPicture(*beside);
    QCOMPARE(shown.size(), kSize);

    // Another area is started in the same place, and shows the same.
    const auto again = NewArea(kId, kind);
    again->Start();
    const QImage shownAgain = NextPicture(*again);
    if (kind != 0) // an analog dial keeps what was written on it before
        QCOMPARE(shownAgain, shown);
    QCOMPARE(shownAgain.size(), kSize);
}

QTEST_MAIN(TestAreaDeletions)

#include "test_area_deletions.moc"
