// The stage with the panel plugin, which is linked.
#include "stage.h"

#include "panel_plugin.h"
#include "time_travel.h"

#include "happconfig.h"
#include "pictureplayer.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace ClockProgram;
using namespace ClockStage;

namespace {

Program ProgramOf(const QByteArray &areas)
{
    return *ParseProgram("<program width='8' height='4'>" + areas + "</program>",
                         QStringLiteral("p.xml"));
}

Lw::INodePlugin *FindPanel(QDomElement &element)
{
    static PanelPlugin plugin;
    return plugin.PluginMatch(element) ? &plugin : nullptr;
}

const QByteArray kPanel("<area x='4' y='1' width='3' height='2'><panel/></area>");

} // namespace

class TestStage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void ScreenShowsTheAreas();
    void ChangesNameTheirRegion();
    void AreaOutsideTheScreen();
    void RedrawReplacesTheRendererOnce();

private:
    QTemporaryDir m_files;
};

void TestStage::initTestCase()
{
    clock_set_time_source(&StageTime::TellPlugin);
    Lw::HAppConfig::SetClockOutputPath(m_files.path());
    Lw::pictureplayer::SetTimeScale(0);
    StageTime::HoldAt(7000);
}

void TestStage::ScreenShowsTheAreas()
{
    Stage stage;
    QVERIFY(!stage.Build(ProgramOf(kPanel), FindPanel, GlyphFiles::Made));
    QCOMPARE(stage.Screen().pixel(5, 1), qRgb(0, 0, 0)); // not started
    stage.Start();
    const QImage screen = stage.Screen();
    QCOMPARE(screen.size(), QSize(8, 4));
    QCOMPARE(screen.pixel(4, 1), qRgb(0, 0, 0)); // the panel's key colour
    QCOMPARE(screen.pixel(5, 1), qRgb(7, 1, 100));
    QCOMPARE(screen.pixel(6, 2), qRgb(7, 1, 100));
    QCOMPARE(screen.pixel(6, 3), qRgb(0, 0, 0));
    QCOMPARE(screen.pixel(7, 2), qRgb(0, 0, 0));
}

void TestStage::ChangesNameTheirRegion()
{
    Stage stage;
    QVERIFY(
        !stage.Build(ProgramOf(kPanel + "<area x='0' y='0' width='2' height='2'><panel/></area>"),
                     FindPanel, GlyphFiles::Made));
    QSignalSpy changes(&stage, &Stage::Changed);
    stage.Start();
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes[0][0].value<QRegion>(), QRegion(4, 1, 3, 2));
    QCOMPARE(changes[1][0].value<QRegion>(), QRegion(0, 0, 2, 2));
    stage.PlayNext();
    QCOMPARE(changes.size(), 4);
}

void TestStage::AreaOutsideTheScreen()
{
    Stage stage;
    QVERIFY(!stage.Build(ProgramOf("<area x='-9' y='9' width='3' height='2'><panel/></area>"),
                         FindPanel, GlyphFiles::Made));
    stage.Start();
    QCOMPARE(stage.Screen(), BlackScreen({8, 4}));
}

void TestStage::RedrawReplacesTheRendererOnce()
{
    Stage stage;
    QVERIFY(!stage.Build(ProgramOf("<area x='4' y='1' width='3' height='2'>"
                                   "<panel redraws='58'/></area>"),
                         FindPanel, GlyphFiles::Made));
    QVector<Lw::HNode *> restarted;
    connect(&stage, &Stage::Restarted, [&restarted](Lw::HNode *node) { restarted.append(node); });
    stage.Start();
    stage.PlayNext();
    stage.PlayNext();
    QCOMPARE(stage.Screen().pixel(5, 1), qRgb(7, 1, 100)); // within the turn nothing happens
    QTRY_COMPARE(stage.Screen().pixel(5, 1), qRgb(7, 2, 100));
    QTest::qWait(20);
    QCOMPARE(stage.Screen().pixel(5, 1), qRgb(7, 2, 100));
    QCOMPARE(restarted, stage.Nodes());
}

QTEST_MAIN(TestStage)
#include "test_stage.moc"
