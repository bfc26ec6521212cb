// A studio that is installed in part: without clock_tool, style pictures and catalogues.
#include "studio_under_test.h"

#include "findings/findings_panel.h"
#include "window/main_window.h"
#include "window/studio_application.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>

using namespace ClockStudio;

namespace {

QByteArray WallOf(const QByteArray &clock)
{
    return "<program width=\"64\" height=\"64\">\n<area x=\"0\" y=\"0\" width=\"64\" "
           "height=\"64\">\n<clock timezone=\"+01:00\" "
        + clock + "</clock></area></program>\n";
}

QStringList TextsOf(const FindingsPanel &panel)
{
    QStringList texts;
    for (const ClockTool::Finding &finding : panel.Findings())
        texts.append(finding.text);
    return texts;
}

} // namespace

class TestMissingParts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void StylePictures_data();
    void StylePictures();
    void FontFamily();
    void Tool();
    void Catalogues_data();
    void Catalogues();
};

void TestMissingParts::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(!QFile::exists(QCoreApplication::applicationDirPath() + "/../image"));
    QVERIFY(!QFile::exists(":/translations"));
}

void TestMissingParts::StylePictures_data()
{
    QTest::addColumn<QByteArray>("clock");
    QTest::addColumn<QString>("dial");
    QTest::newRow("style set") << QByteArray(
        "type=\"picture\"><attribute key=\"PictrueClockType\" value=\"3\"/>")
                               << "picbutton3.png";
    QTest::newRow("style left to the default")
        << QByteArray("type=\"picture\">") << "picbutton1.png";
}

void TestMissingParts::StylePictures()
{
    QFETCH(QByteArray, clock);
    QFETCH(QString, dial);
    StudioUnderTest studio(WallOf(clock));
    studio.WaitForClocks();
    FindingsPanel panel(studio.editor);
    const QStringList told = TextsOf(panel).filter(dial);
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.first().contains("second.png"), qPrintable(told.first()));
    QSignalSpy wanted(&panel, &FindingsPanel::PropertyWanted);
    panel.findChild<QListWidget *>()->setCurrentRow(TextsOf(panel).indexOf(told.first()));
    QCOMPARE(studio.editor.Selected(), QVector<int> {0});
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.first().first().toString(), QString("PictrueClockType"));
}

void TestMissingParts::FontFamily()
{
    StudioUnderTest studio(WallOf("type=\"digital\">\n<time fontName=\"No Such Font\"/>"));
    studio.WaitForClocks();
    FindingsPanel panel(studio.editor);
    const QStringList told = TextsOf(panel).filter("not an installed font");
    QCOMPARE(told.size(), 1);
    QSignalSpy wanted(&panel, &FindingsPanel::PropertyWanted);
    panel.findChild<QListWidget *>()->setCurrentRow(TextsOf(panel).indexOf(told.first()));
    QCOMPARE(wanted.first().first().toString(), QString("DigitalTimeFName"));
}

void TestMissingParts::Tool()
{
    StudioUnderTest studio(WallOf("type=\"digital\">"));
    FindingsPanel panel(studio.editor);
    panel.show();
    panel.CheckAll();
    QStringList shown;
    for (const QLabel *const label : panel.findChildren<QLabel *>()) {
        if (label->isVisible())
            shown.append(label->text());
    }
    QCOMPARE(shown.filter("clock_tool").size(), 1);
    QVERIFY2(shown.filter("clock_tool").first().startsWith("The days of a year are not checked"),
             qPrintable(shown.join('\n')));
}

void TestMissingParts::Catalogues_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("Persian") << QLocale("fa_IR");
    QTest::newRow("Chinese") << QLocale("zh_CN");
}

/// The window is then in English as a whole.
void TestMissingParts::Catalogues()
{
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    SetUpApplication(*qApp);
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    QCOMPARE(QLocale().language(), QLocale::English);
    const QTemporaryDir work;
    MainWindow window(work.path());
    window.show();
    QVERIFY(window.Open(EXAMPLES "/wall.xml"));
    QTRY_VERIFY(window.Editor().Wall().IsComplete());
    window.Editor().Select({0});
    QStringList texts;
    for (const QMenu *const menu : window.findChildren<QMenu *>()) {
        for (const QAction *const action : menu->actions()) {
            QVERIFY2(action->isSeparator() || !action->text().isEmpty(), qPrintable(menu->title()));
            texts.append(action->text());
        }
    }
    for (const QPushButton *const button : window.findChildren<QPushButton *>())
        QVERIFY2(!button->text().isEmpty() || !button->icon().isNull(),
                 qPrintable(button->objectName()));
    QVERIFY2(!texts.filter("Undo").isEmpty(), qPrintable(texts.join('\n')));
}

QTEST_MAIN(TestMissingParts)
#include "test_missing_parts.moc"
