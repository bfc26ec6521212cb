// The player's window over a stage with the panel plugin, which is loaded.
#include "player_window.h"
#include "plugins.h"

#include "happconfig.h"
#include "pictureplayer.h"
#include "stage.h"
#include "time_travel.h"

#include <QScreen>
#include <QTemporaryDir>
#include <QtTest>

using namespace ClockPlayer;
using namespace ClockProgram;
using namespace ClockStage;

namespace {

const QByteArray kProgram("<program width='8' height='4'>"
                          "<area x='4' y='1' width='3' height='2'><panel/></area></program>");

} // namespace

class TestPlayerWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void ShowsTheScreen();

private:
    QTemporaryDir m_files;
    Program m_program;
};

void TestPlayerWindow::initTestCase()
{
    QStringList warnings;
    QVERIFY(!LoadPlugins(QStringLiteral(PANEL_PLUGINS "/good"), warnings));
    QCOMPARE(warnings, QStringList());
    QVERIFY(!SetTimeSource(&StageTime::TellPlugin));
    Lw::HAppConfig::SetClockOutputPath(m_files.path());
    Lw::pictureplayer::SetTimeScale(0);
    StageTime::HoldAt(7000);
    m_program = *ParseProgram(kProgram, QStringLiteral("p.xml"));
}

void TestPlayerWindow::ShowsTheScreen()
{
    Stage stage;
    QVERIFY(!stage.Build(m_program, LoadedPluginFinder(), GlyphFiles::Made));
    PlayerWindow window(QStringLiteral("p.xml"));
    window.SetStage(stage);
    QCOMPARE(window.size(), QSize(8, 4));
    QCOMPARE(window.title(), QStringLiteral("p.xml"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    stage.Start();
    const auto shown = [&window] {
        return window.screen()->grabWindow(window.winId()).toImage().pixel(5, 1);
    };
    QTRY_COMPARE(shown(), qRgb(7, 1, 100));
    StageTime::HoldAt(8000);
    stage.PlayNext();
    QTRY_COMPARE(shown(), qRgb(8, 1, 100));
}

QTEST_MAIN(TestPlayerWindow)
#include "test_player_window.moc"
