// The studio on a system without any font: it shows every sample, and tells why there are no texts.
#include "fonts_under_test.h"
#include "sample_programs.h"

#include "findings/findings_panel.h"
#include "window/main_window.h"
#include "window/message_bar.h"
#include "window/studio_application.h"

#include "catalogues.h"
#include "clock_node.h"

#include <QLabel>
#include <QStandardPaths>

using namespace ClockStudio;

class TestNoFont : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void WindowIsInEnglish();
    void Samples_data();
    void Samples();
    void Warning();

private:
    QString m_problem;
};

void TestNoFont::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale("fa_IR"));
    m_problem = SetUpApplication(*qApp);
    QVERIFY2(m_problem.startsWith("no font is installed"), qPrintable(m_problem));
}

void TestNoFont::WindowIsInEnglish()
{
    QCOMPARE(QLocale().language(), QLocale::English);
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    QCOMPARE(ClockCatalogues::Installed(), QString("en"));
    QCOMPARE(QGuiApplication::applicationDisplayName(), m_problem); // in every window's title
}

void TestNoFont::Samples_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : SamplePaths())
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
}

/// Every clock with texts has a finding.
void TestNoFont::Samples()
{
    QFETCH(QString, path);
    const QTemporaryDir work;
    MainWindow window(work.path());
    window.show();
    QVERIFY(window.Open(path));
    QTRY_VERIFY(window.Editor().Wall().IsComplete());
    QSet<int> told;
    auto &panel = *window.findChild<FindingsPanel *>();
    panel.CheckAll();
    for (const auto &finding : panel.Findings()) {
        if (finding.text.startsWith("no font is installed"))
            told.insert(finding.place.clock);
    }
    for (int area = 0; area < window.Editor().Wall().AreaCount(); ++area) {
        window.Editor().Select({area});
        QVERIFY(!window.grab().isNull());
        auto *const clock = window.Editor().Wall().Clock(area);
        QVERIFY(clock);
        QCOMPARE(told.contains(area + 1), clock->ClockType() != Lw::HNodeClock::PictureClock);
    }
}

void TestNoFont::Warning()
{
    const QTemporaryDir work;
    MainWindow window(work.path());
    window.show();
    window.Warn(m_problem);
    QVERIFY(window.Open(SamplePaths().first()));
    bool isTold = false;
    for (const QLabel *const label : window.findChildren<QLabel *>())
        isTold = isTold || (label->isVisible() && label->text() == m_problem);
    QVERIFY(isTold);
}

int main(int argc, char **argv)
{
    return RunWithFonts<TestNoFont>("<fontconfig/>", argc, argv);
}
#include "test_no_font.moc"
