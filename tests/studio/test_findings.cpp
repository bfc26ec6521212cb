// The list of findings: filled as they arise, with what a check of a whole year finds; a click
// selects clock and property, a button fixes it.
#include "studio_under_test.h"

#include "files/saved_file.h"
#include "files/tool_run.h"
#include "findings/finding_words.h"
#include "findings/findings_panel.h"
#include "window/main_window.h"

#include "catalogues.h"

#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTranslator>

using namespace ClockStudio;

namespace {

/// The time of the second clock is far too large for its area.
const QByteArray kCut =
    "<program width=\"128\" height=\"64\">\n"
    "  <area x=\"0\" y=\"0\" width=\"64\" height=\"32\">\n"
    "    <clock type=\"digital\" timezone=\"+00:00\"><title display=\"false\"/>"
    "<date display=\"false\"/>\n<week display=\"false\"/>\n<time fontSize=\"9\"/></clock>\n"
    "  </area>\n"
    "  <area x=\"64\" y=\"32\" width=\"64\" height=\"32\">\n"
    "    <clock type=\"digital\" timezone=\"+00:00\"><title display=\"false\"/>"
    "<date display=\"false\"/>\n<week display=\"false\"/>\n"
    "<time fontName=\"DejaVu Sans\" fontSize=\"44\"/></clock>\n"
    "  </area>\n"
    "</program>\n";

struct FindingsUnderTest
{
    StudioUnderTest studio;
    FindingsPanel panel {studio.editor};

    explicit FindingsUnderTest(const QByteArray &program) : studio(program)
    {
        studio.WaitForClocks();
        panel.show();
    }

    /// What is written instead of a list.
    QString Note() const
    {
        const auto *const note = panel.findChild<QLabel *>("note");
        return note->isVisible() ? note->text() : QString();
    }
    int RowWith(const QString &word) const
    {
        const auto &findings = panel.Findings();
        for (int row = 0; row < findings.size(); ++row) {
            if (findings[row].text.contains(word))
                return row;
        }
        return -1;
    }
};

} // namespace

class TestFindings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(ClockCatalogues::Install("en"));
    }
    void AppearsAndIsFixed();
    void CheckAllIncludesTheYear();
    void NotesAreNotCounted();
    void IllegibleSizeIsNotOfferedAsFix();
    void InvalidTextHasNoFindings();
    void TypingDropsTheCheckOfTheYear();
    void EventsAreHandledDuringTheCheck();
    void TimesAreThoseOfTheClock();
    void EndOfRulesIsListedAtOnce();
    void FilesBesideTheProgram();
    void LanguageOfTheWindow_data();
    void LanguageOfTheWindow();
};

void TestFindings::AppearsAndIsFixed()
{
    FindingsUnderTest test(QByteArray(kCut).replace("44", "9"));
    QTRY_VERIFY_WITH_TIMEOUT(test.RowWith("cut") < 0, 1000);
    const int size = test.studio.document.Text().lastIndexOf("\"9\"") + 1;
    test.studio.document.Change({{size, "9", "44"}}, "larger");
    QTRY_VERIFY_WITH_TIMEOUT(test.RowWith("cut") >= 0, 60000);
    QSignalSpy wanted(&test.panel, &FindingsPanel::PropertyWanted);
    test.panel.findChild<QListWidget *>()->setCurrentRow(test.RowWith("cut"));
    QCOMPARE(test.studio.editor.Selected(), QVector<int> {1});
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(wanted.first().first().toString(), QString("DigitalTimeFSize"));
    auto *const fix = test.panel.findChild<QPushButton *>();
    QVERIFY(fix->isEnabled());
    QTest::mouseClick(fix, Qt::LeftButton);
    QVERIFY(!test.studio.document.Text().contains("\"44\""));
    test.panel.CheckAll();
    QVERIFY(test.RowWith("cut") < 0);
    test.studio.document.History().undo();
    QVERIFY(test.studio.document.Text().contains("\"44\""));
}

void TestFindings::CheckAllIncludesTheYear()
{
    FindingsUnderTest test(kCut);
    test.panel.CheckAll();
    QVERIFY(test.RowWith("cut") >= 0);
    QCOMPARE(test.panel.findChild<QListWidget *>()->count(), test.panel.Findings().size());
}

/// A clock without a time zone is only noted.
void TestFindings::NotesAreNotCounted()
{
    FindingsUnderTest test(
        QByteArray(kCut).replace("\"44\"", "\"9\"").replace(" timezone=\"+00:00\"", ""));
    QSignalSpy counted(&test.panel, &FindingsPanel::CountChanged);
    test.panel.CheckAll();
    QVERIFY(test.RowWith("zone") >= 0);
    QCOMPARE(counted.last().first().toInt(), 0);
}

/// A time in an area four pixels high: what would fit is too small to read.
void TestFindings::IllegibleSizeIsNotOfferedAsFix()
{
    const QByteArray flat = QByteArray(kCut).replace("y=\"32\" width=\"64\" height=\"32\"",
                                                     "y=\"32\" width=\"64\" height=\"4\"");
    FindingsUnderTest test(QByteArray(flat).replace("\"44\"", "\"8\""));
    test.panel.CheckAll();
    const int row = test.RowWith("would fit");
    QVERIFY(row >= 0);
    QVERIFY(!test.panel.Findings()[row].suggestion.isEmpty());
    test.panel.findChild<QListWidget *>()->setCurrentRow(row);
    QVERIFY(!test.panel.findChild<QPushButton *>()->isEnabled());
}

void TestFindings::InvalidTextHasNoFindings()
{
    FindingsUnderTest test(kCut);
    test.panel.CheckAll();
    test.studio.document.Change({{0, "<", ""}}, "typing");
    test.panel.CheckAll();
    QCOMPARE(test.panel.Findings().size(), 0);
    QCOMPARE(test.Note(), QString("The text is not a valid program."));
    test.studio.document.History().undo();
    test.studio.document.Load(QByteArray("<program width=\"8\" height=\"8\"/>"));
    test.panel.CheckAll();
    QCOMPARE(test.Note(), QString("No findings."));
}

// What was found in a text that is no longer there is not listed.
void TestFindings::TypingDropsTheCheckOfTheYear()
{
    FindingsUnderTest test(kCut);
    test.panel.Check();
    const int size = test.studio.document.Text().indexOf("44");
    test.studio.document.Change({{size, "44", "9"}}, "smaller");
    test.panel.CheckAll();
    QVERIFY(test.RowWith("cut") < 0);
    QTest::qWait(500);
    QVERIFY(test.RowWith("cut") < 0);
}

void TestFindings::EventsAreHandledDuringTheCheck()
{
    const int area = kCut.indexOf("  <area");
    const QByteArray areas = kCut.mid(area, kCut.indexOf("</program>") - area);
    FindingsUnderTest test(QByteArray(kCut).insert(area, areas.repeated(4)));
    bool isAlive = false;
    QTimer::singleShot(0, [&isAlive] { isAlive = true; });
    test.panel.CheckAll();
    QVERIFY(isAlive);
    QVERIFY(test.RowWith("cut") >= 0);
}

// Berlin's clocks go forward at 01:00 UTC; India's offset has minutes.
void TestFindings::TimesAreThoseOfTheClock()
{
    const Lw::HNodeClock::ZoneSettings berlin {3600, "3.Last.7.02:00:00", "10.Last.7.02:00:00"};
    QCOMPARE(WithLocalTimes("from 2026-03-29T01:00:00Z on", berlin),
             QString("from 2026-03-29 03:00:00 (UTC+02:00) on"));
    QCOMPARE(WithLocalTimes("2026-03-29T00:59:59Z, 2026-12-31T23:30:00Z", berlin),
             QString("2026-03-29 01:59:59 (UTC+01:00), 2027-01-01 00:30:00 (UTC+01:00)"));
    QCOMPARE(WithLocalTimes("2026-01-01T00:00:00Z", {19800, {}, {}}),
             QString("2026-01-01 05:30:00 (UTC+05:30)"));
    QCOMPARE(WithLocalTimes("2026-01-01T00:00:00Z", {-12600, {}, {}}),
             QString("2025-12-31 20:30:00 (UTC-03:30)"));
    QCOMPARE(WithLocalTimes("no time, 2026-99-99T00:00:00Z", berlin),
             QString("no time, 2026-99-99T00:00:00Z"));
    FindingsUnderTest test(QByteArray(kCut).replace("+00:00", "+01:00"));
    test.panel.CheckAll();
    const QString listed = test.panel.findChild<QListWidget *>()->item(test.RowWith("cut"))->text();
    QVERIFY2(listed.contains("(UTC+01:00)"), qPrintable(listed));
}

// Without the check of the year. Winnipeg left these rules in 2006.
void TestFindings::EndOfRulesIsListedAtOnce()
{
    const QByteArray old = "timezone=\"-06:00\"><attribute key=\"UseDaylightSavingTime\" "
                           "value=\"1\"/>\n<attribute key=\"DaylightSavingTimeStart\" "
                           "value=\"4.1.7.02:00:00\"/>\n<attribute "
                           "key=\"DaylightSavingTimeEnd\" value=\"10.Last.7.02:00:00\"/>";
    const ParsedProgram parsed =
        MustRead(QString::fromUtf8(QByteArray(kCut).replace("timezone=\"+00:00\">", old)));
    const qint64 instant = QDateTime(QDate(2023, 6, 1), QTime(), Qt::UTC).toMSecsSinceEpoch();
    const QVector<ClockTool::Finding> findings = FindingsIn(parsed, instant);
    QVERIFY(std::any_of(findings.cbegin(), findings.cend(), [](const ClockTool::Finding &finding) {
        return finding.place.clock == 1 && finding.text.contains("zone --refresh");
    }));
}

/// The glyph files of an exported program are beside it, though a copy of the text is checked.
void TestFindings::FilesBesideTheProgram()
{
    const QTemporaryDir work;
    const QString given = work.filePath("given.xml");
    QVERIFY(!SaveFile(given, kCut));
    const QString folder = work.filePath("sent");
    const ToolCommand exported = ExportCommand(given, folder);
    QCOMPARE(QProcess::execute(exported.program, exported.arguments), 0);
    const QString path = QDir(folder).filePath("program.xml");
    MainWindow window(work.filePath("recovery"));
    QVERIFY(window.Open(path));
    auto &panel = *window.findChild<FindingsPanel *>();
    const auto missing = [&panel] {
        panel.CheckAll();
        const auto &found = panel.Findings();
        return std::any_of(found.cbegin(), found.cend(), [](const ClockTool::Finding &finding) {
            return finding.text.contains("is missing");
        });
    };
    QVERIFY(!missing());
    const QStringList before = QDir(folder).entryList();
    QVERIFY(QDir(folder + "/files").removeRecursively());
    QVERIFY(missing());
    QVERIFY(before.contains("files"));
    QCOMPARE(QDir(folder).entryList(),
             QStringList(before).filter(QRegularExpression("^(?!files$)")));
}

void TestFindings::LanguageOfTheWindow_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("cut");
    QTest::addColumn<QString>("noZone");
    QTest::newRow("Chinese") << QLocale("zh_CN") << "时间被裁切：左边 "
                             << "时钟没有时区";
    QTest::newRow("Persian") << QLocale("fa_IR") << "زمان بریده می‌شود: "
                             << "ساعت منطقهٔ زمانی ندارد";
}

/// Of the window's own checks and of those of the tool, which can still be fixed.
void TestFindings::LanguageOfTheWindow()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, cut);
    QFETCH(QString, noZone);
    QTranslator translator;
    QVERIFY(translator.load(locale, "studio", "_", ":/translations"));
    QCoreApplication::installTranslator(&translator);
    QLocale::setDefault(locale);
    {
        FindingsUnderTest test(QByteArray(kCut).replace(" timezone=\"+00:00\"", ""));
        QVERIFY(test.RowWith(noZone) >= 0);
        test.panel.CheckAll();
        QVERIFY(test.RowWith(noZone) >= 0);
        test.panel.findChild<QListWidget *>()->setCurrentRow(test.RowWith(cut));
        QTest::mouseClick(test.panel.findChild<QPushButton *>(), Qt::LeftButton);
        test.panel.CheckAll();
        QVERIFY(test.RowWith(cut) < 0);
    }
    QLocale::setDefault(QLocale::c());
}

QTEST_MAIN(TestFindings)
#include "test_findings.moc"
