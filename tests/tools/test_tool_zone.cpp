// clock_tool zone: what it writes is what a program takes.
#include "tool_process.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QMap<QString, QString> Settings(const QString &output)
{
    QDomDocument document;
    document.setContent(QStringLiteral("<clock>") + output + QStringLiteral("</clock>"));
    QMap<QString, QString> settings;
    for (QDomElement child = document.documentElement().firstChildElement("attribute");
         !child.isNull(); child = child.nextSiblingElement("attribute"))
        settings.insert(child.attribute("key"), child.attribute("value"));
    return settings;
}

} // namespace

class TestToolZone : public QObject
{
    Q_OBJECT

private slots:
    void SettingsOfExactZones_data();
    void SettingsOfExactZones();
    void ExactForAWhile();
    void NotExact();
    void UnknownNamesAreRefused_data();
    void UnknownNamesAreRefused();
    void LintKnowsTheZone();
    void ListsAllZones();
    void ToFile();
    void RefreshesRules_data();
    void RefreshesRules();
    void LeavesCurrentRules();
    void RefreshDoesNotGuess();
    void RefreshesInPlace();
    void RefreshKeepsTheFile_data();
    void RefreshKeepsTheFile();
};

void TestToolZone::SettingsOfExactZones_data()
{
    QTest::addColumn<QStringList>("values");
    QTest::newRow("Europe/Berlin")
        << QStringList {"+01:00", "1", "3.Last.7.02:00:00", "10.Last.7.02:00:00"};
    QTest::newRow("Australia/Sydney")
        << QStringList {"+10:00", "1", "10.1.7.02:00:00", "4.1.7.02:00:00"};
    QTest::newRow("Africa/Cairo") << QStringList {"+02:00", "1", "4.Last.5.00:00:00",
                                                  "10.Last.4.23:00:00"};
    QTest::newRow("Asia/Tokyo") << QStringList {"+09:00", "0", "", ""};
}

void TestToolZone::SettingsOfExactZones()
{
    QFETCH(QStringList, values);
    const ProcessRun run = RunTool({"zone", QTest::currentDataTag(), "--year", "2026"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    const QMap<QString, QString> settings = Settings(run.output);
    QCOMPARE(QStringList({settings["TimeZone"], settings["UseDaylightSavingTime"],
                          settings["DaylightSavingTimeStart"], settings["DaylightSavingTimeEnd"]}),
             values);
    QVERIFY2(run.output.contains("exact from 2026-01-01 to 2036-01-01"), qPrintable(run.output));
    QVERIFY2(run.output.contains("right until 2038-01-01, where the system's zone data end; check "
                                 "again after 2037"),
             qPrintable(run.output));
}

// The first Sunday of April until 2006, the second of March since.
void TestToolZone::ExactForAWhile()
{
    const ProcessRun run = RunTool({"zone", "America/Chicago", "--year", "1990"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(Settings(run.output)["DaylightSavingTimeStart"], QString("4.1.7.02:00:00"));
    QVERIFY2(run.output.contains("exact from 1990-01-01 to 2000-01-01"), qPrintable(run.output));
    QVERIFY2(run.output.contains("right until 2007-03-11T08:00:00Z; check again after 2006"),
             qPrintable(run.output));
}

// The last Sunday of March 2030 is the 31st, and the Friday before it the fifth.
void TestToolZone::NotExact()
{
    const ProcessRun run = RunTool({"zone", "Asia/Jerusalem", "--year", "2026"});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors, QString());
    QVERIFY2(run.output.contains("Asia/Jerusalem: not exact from 2026-01-01 to 2036-01-01"),
             qPrintable(run.output));
    QVERIFY2(run.output.contains("from 2030-03-22T00:00:00Z to 2030-03-29T00:00:00Z: 1:00:00 fast"),
             qPrintable(run.output));
    QCOMPARE(run.output.count("fast") + run.output.count("slow"), 1);
    QVERIFY2(run.output.contains("after 2036-01-01 were not checked; check again after 2035"),
             qPrintable(run.output));
    QCOMPARE(Settings(run.output)["DaylightSavingTimeStart"], QString("3.4.5.02:00:00"));
}

void TestToolZone::UnknownNamesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::newRow("slip") << "Europe/Berln"
                          << "no zone \"Europe/Berln\"; did you mean Europe/Berlin?";
    QTest::newRow("city") << "new york"
                          << "did you mean America/New_York?";
    QTest::newRow("city in the zone of another") << "Munich"
                                                 << "did you mean Europe/Berlin?";
    QTest::newRow("capital without a zone") << "beijing"
                                            << "did you mean Asia/Shanghai?";
    QTest::newRow("city with a continent") << "Asia/Mumbai"
                                           << "did you mean Asia/Kolkata?";
    QTest::newRow("city of two words") << "san francisco"
                                       << "did you mean America/Los_Angeles?";
    QTest::newRow("nothing like it") << "Xyzzyplugh"
                                     << "use a name such as Europe/Berlin";
    QTest::newRow("empty") << ""
                           << "no zone \"\"";
    QTest::newRow("long") << QString(5000, 'x') << "xxx...\"";
    QTest::newRow("path") << "../../../etc/passwd"
                          << "no zone";
}

void TestToolZone::UnknownNamesAreRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    const ProcessRun run = RunTool({"zone", name});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
}

// The settings as they were written, put into a program: nothing is wrong with them.
void TestToolZone::LintKnowsTheZone()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("in.xml");
    const QString settings = RunTool({"zone", "Europe/London", "--year", "2026"}).output;
    QVERIFY(
        WriteText(path, ProgramOf("<clock type=\"digital\">" + settings.toUtf8() + "</clock>")));
    const ProcessRun sound = RunTool({"lint", "--no-fit", path});
    QCOMPARE(sound.exitCode, 0);
    QVERIFY2(sound.errors.contains("note: these rules give the time of Europe/London until 20"),
             qPrintable(sound.errors));

    QString published = settings;
    published.replace("10.Last.7.01:00:00", "10.Last.7.02:00:00");
    QVERIFY(
        WriteText(path, ProgramOf("<clock type=\"digital\">" + published.toUtf8() + "</clock>")));
    const ProcessRun late = RunTool({"lint", "--no-fit", path});
    QCOMPARE(late.exitCode, 1);
    QVERIFY2(late.errors.contains("warning: daylight saving ends an hour late for Europe/London"),
             qPrintable(late.errors));
    QVERIFY2(late.errors.contains("accepted: 10.Last.7.01:00:00"), qPrintable(late.errors));

    QString off = settings;
    off.replace("key=\"UseDaylightSavingTime\" value=\"1\"",
                "key=\"UseDaylightSavingTime\" value=\"0\"");
    QVERIFY(WriteText(path, ProgramOf("<clock type=\"digital\">" + off.toUtf8() + "</clock>")));
    const ProcessRun unused = RunTool({"lint", "--no-fit", path});
    QCOMPARE(unused.exitCode, 1);
    QVERIFY2(unused.errors.contains("UseDaylightSavingTime is 0"), qPrintable(unused.errors));
}

void TestToolZone::ListsAllZones()
{
    const ProcessRun run = RunTool({"zone", "--list"});
    QCOMPARE(run.exitCode, 0);
    const QStringList names = run.output.split('\n', Qt::SkipEmptyParts);
    QVERIFY(names.size() > 100);
    QVERIFY(names.contains("Europe/Berlin"));
    QCOMPARE(RunTool({"zone", "--list", "Europe/Berlin"}).exitCode, 2);
    QCOMPARE(RunTool({"zone"}).exitCode, 2);
}

void TestToolZone::ToFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("zone.xml");
    const ProcessRun run = RunTool({"zone", "Asia/Tokyo", "--year", "2026", "-o", path});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, QString());
    QCOMPARE(Settings(QString::fromUtf8(ReadText(path)))["TimeZone"], QString("+09:00"));
}

namespace {

// Bytes that a rewriting of the XML would change: quotes, white space, a comment, an encoding.
QByteArray OddProgram(const QByteArray &zone, const QByteArray &uses, const QByteArray &start,
                      const QByteArray &end)
{
    return "<?xml version='1.0'  encoding='ISO-8859-1'?>\r\n<!-- caf\xe9 -->\r\n"
           "<program width='64'   height=\"32\"><area x='0' y='0' width='64' height='32'>\n"
           "\t<clock type='digital' "
        + zone + ">\n<attribute  value='" + uses
        + "' key='UseDaylightSavingTime' />\n"
          "<attribute key='DaylightSavingTimeStart' value='"
        + start + "'/><!--x--><attribute key='DaylightSavingTimeEnd'\nvalue='" + end
        + "'/></clock></area></program>\n\n";
}

} // namespace

void TestToolZone::RefreshesRules_data()
{
    QTest::addColumn<QString>("year");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    // Mexico gave up summer time after October 2022.
    QTest::newRow("summer time is given up")
        << "2026" << OddProgram("timezone='-06:00'", "1", "4.1.7.02:00:00", "10.Last.7.01:00:00")
        << OddProgram("timezone='-06:00'", "0", "", "");
    // The United States had April to October until 2006, and have March to November since.
    QTest::newRow("other rules") << "2010"
                                 << OddProgram("timezone=\"-5:00\"", "1", "4.1.7.02:00:00",
                                               "10.Last.7.01:00:00")
                                 << OddProgram("timezone=\"-5:00\"", "1", "3.2.7.02:00:00",
                                               "11.1.7.01:00:00");
    // Turkey kept summer time from 2016 on, but Greece has the same rules still.
    QTest::newRow("another zone has them")
        << "2026" << OddProgram("timezone='+02:00'", "1", "3.Last.7.03:00:00", "10.Last.7.03:00:00")
        << OddProgram("timezone='+02:00'", "1", "3.Last.7.03:00:00", "10.Last.7.03:00:00");
}

void TestToolZone::RefreshesRules()
{
    QFETCH(QString, year);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QTemporaryDir folder;
    const QString path = folder.filePath("in.xml");
    const QString refreshed = folder.filePath("out.xml");
    QVERIFY(WriteText(path, before));
    const ProcessRun run = RunTool({"zone", "--refresh", path, "--year", year, "-o", refreshed});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(ReadText(refreshed), after);
    QCOMPARE(ReadText(path), before);
    QCOMPARE(run.errors.isEmpty(), before == after);
    QVERIFY2(before == after
                 || run.errors.contains("DaylightSavingTimeStart changed from "
                                        "\"4.1.7.02:00:00\" to"),
             qPrintable(run.errors));
}

void TestToolZone::LeavesCurrentRules()
{
    const QDir examples(InTree("examples"));
    for (const QString &name : examples.entryList({"*.xml"}, QDir::Files)) {
        const QString path = examples.filePath(name);
        const ProcessRun run = RunTool({"zone", "--refresh", path, "--year", "2026"});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.output.toUtf8(), ReadText(path));
    }
}

// Omsk and Novosibirsk kept summer time in 2011; today they are an hour apart.
void TestToolZone::RefreshDoesNotGuess()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("in.xml");
    const QByteArray program =
        OddProgram("timezone='+06:00'", "1", "3.Last.7.02:00:00", "10.Last.7.02:00:00");
    QVERIFY(WriteText(path, program));
    const ProcessRun run = RunTool({"zone", "--refresh", path, "--year", "2026", "-o", path});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("left these rules on 2011-10-29 differ now: ")
                 && run.errors.contains("Asia/Omsk") && run.errors.contains("Asia/Novosibirsk"),
             qPrintable(run.errors));
    QCOMPARE(ReadText(path), program);
}

void TestToolZone::RefreshesInPlace()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("in.xml");
    QVERIFY(WriteText(
        path, OddProgram("timezone='-06:00'", "1", "4.1.7.02:00:00", "10.Last.7.01:00:00")));
    QCOMPARE(RunTool({"zone", "--refresh", path, "--year", "2026", "-o", path}).exitCode, 0);
    QCOMPARE(ReadText(path), OddProgram("timezone='-06:00'", "0", "", ""));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList {"in.xml"});
}

void TestToolZone::RefreshKeepsTheFile_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("not XML") << QByteArray("<program width='64'");
    QTest::newRow("not a program") << QByteArray("<html/>");
    QTest::newRow("empty") << QByteArray();
}

void TestToolZone::RefreshKeepsTheFile()
{
    QFETCH(QByteArray, contents);
    const QTemporaryDir folder;
    const QString path = folder.filePath("in.xml");
    QVERIFY(WriteText(path, contents));
    const ProcessRun run = RunTool({"zone", "--refresh", path, "-o", path});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(ReadText(path), contents);
    QCOMPARE(RunTool({"zone", "--refresh"}).exitCode, 2);
}

QTEST_GUILESS_MAIN(TestToolZone)
#include "test_tool_zone.moc"
