// The stage in this process, with the panel plugin, and the window that shows it.
#include "player_time.h"
#include "player_window.h"
#include "plugins.h"
#include "stage.h"

#include "happconfig.h"
#include "pictureplayer.h"

#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace ClockPlayer;

namespace {

Program ProgramOf(const QByteArray &areas)
{
    const Result<Program> result = ParseProgram(
        "<program width='8' height='4'>" + areas + "</program>", QStringLiteral("p.xml"));
    return std::get<Program>(result);
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
    void WindowShowsTheScreen();

private:
    QTemporaryDir m_files;
};

void TestStage::initTestCase()
{
    QStringList warnings;
    QVERIFY(!LoadPlugins(QStringLiteral(PANEL_PLUGINS "/good"), warnings));
    QCOMPARE(warnings, QStringList());
    QVERIFY(!SetTimeSource(&PlayerTime::Now));
    Lw::HAppConfig::SetClockOutputPath(m_files.path());
    Lw::pictureplayer::SetTimeScale(0);
    PlayerTime::HoldAt(7000);
}

void TestStage::ScreenShowsTheAreas()
{
    Stage stage;
    QVERIFY(!stage.Build(ProgramOf(kPanel), GlyphFiles::Made));
    QCOMPARE(stage.Screen().pixel(5, 1), qRgb(0, 0, 0)); // not started
    stage.Start();
    const QImage screen = stage.Screen();
    QCOMPARE(screen.size(), QSize(8, 4));
    QCOMPARE(screen.pixel(4, 1), qRgb(0, 0, 0)); // the panel's key colour
    QCOMPARE(screen.pixel(5, 1), qRgb(7, 1, 104));
    QCOMPARE(screen.pixel(6, 2), qRgb(7, 1, 104));
    QCOMPARE(screen.pixel(6, 3), qRgb(0, 0, 0));
    QCOMPARE(screen.pixel(7, 2), qRgb(0, 0, 0));
}

void TestStage::ChangesNameTheirRegion()
{
    Stage stage;
    QVERIFY(
        !stage.Build(ProgramOf(kPanel + "<area x='0' y='0' width='2' height='2'><panel/></area>"),
                     GlyphFiles::Made));
    QSignalSpy changes(&stage, &Stage::Changed);
    stage.Start();
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes[0][0].toRect(), QRect(4, 1, 3, 2));
    QCOMPARE(changes[1][0].toRect(), QRect(0, 0, 2, 2));
    stage.PlayNext();
    QCOMPARE(changes.size(), 4);
}

void TestStage::AreaOutsideTheScreen()
{
    Stage stage;
    QVERIFY(!stage.Build(ProgramOf("<area x='-9' y='9' width='3' height='2'><panel/></area>"),
                         GlyphFiles::Made));
    stage.Start();
    QCOMPARE(stage.Screen(), BlackScreen({8, 4}));
}

void TestStage::RedrawReplacesTheRendererOnce()
{
    Stage stage;
    QVERIFY(!stage.Build(ProgramOf("<area x='4' y='1' width='3' height='2'>"
                                   "<panel redraws='58'/></area>"),
                         GlyphFiles::Made));
    stage.Start();
    stage.PlayNext();
    stage.PlayNext();
    QCOMPARE(stage.Screen().pixel(5, 1), qRgb(7, 1, 104)); // within the turn nothing happens
    QTRY_COMPARE(stage.Screen().pixel(5, 1), qRgb(7, 2, 104));
    QTest::qWait(20);
    QCOMPARE(stage.Screen().pixel(5, 1), qRgb(7, 2, 104));
}

void TestStage::WindowShowsTheScreen()
{
    Stage stage;
    QVERIFY(!stage.Build(ProgramOf(kPanel), GlyphFiles::Made));
    PlayerWindow window(stage, QStringLiteral("p.xml"));
    QCOMPARE(window.size(), QSize(8, 4));
    QCOMPARE(window.title(), QStringLiteral("p.xml"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    stage.Start();
    const auto shown = [&window] {
        return window.screen()->grabWindow(window.winId()).toImage().pixel(5, 1);
    };
    QTRY_COMPARE(shown(), qRgb(7, 1, 104));
    PlayerTime::HoldAt(8000);
    stage.PlayNext();
    QTRY_COMPARE(shown(), qRgb(8, 1, 104));
}

QTEST_MAIN(TestStage)
#include "test_stage.moc"
