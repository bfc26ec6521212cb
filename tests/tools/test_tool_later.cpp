// clock_tool on a device whose clock says that it is long after the system's zone data end.
#include "stepping_clock.h"
#include "tool_process.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QtTest>

class TestToolLater : public QObject
{
    Q_OBJECT

private slots:
    void ZoneDataEndWith2037_data();
    void ZoneDataEndWith2037();
};

void TestToolLater::ZoneDataEndWith2037_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QStringList>("more");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("said");
    QTest::newRow("ten years from today")
        << QDate(2026, 5, 4) << QStringList() << 0 << "exact from 2026-05-04 to 2036-05-04";
    QTest::newRow("a later year, up to the last listed one")
        << QDate(2026, 5, 4) << QStringList {"--year", "2030"} << 0
        << "exact from 2030-01-01 to 2038-01-01";
    QTest::newRow("the last year")
        << QDate(2037, 3, 1) << QStringList() << 0 << "exact from 2037-03-01 to 2038-01-01";
    QTest::newRow("later") << QDate(2040, 6, 1) << QStringList() << 1
                           << "the system's zone data end with 2037";
    QTest::newRow("later, of an earlier time")
        << QDate(2040, 6, 1) << QStringList {"--year", "2027"} << 0
        << "exact from 2027-01-01 to 2037-01-01";
}

void TestToolLater::ZoneDataEndWith2037()
{
    QFETCH(QDate, today);
    QFETCH(QStringList, more);
    QFETCH(int, code);
    QFETCH(QString, said);
    const QTemporaryDir folder;
    const qint64 shift =
        QDateTime::currentDateTimeUtc().msecsTo(QDateTime(today, QTime(12, 0), Qt::UTC));
    QVERIFY(WriteText(folder.filePath("shift"),
                      QByteArray(reinterpret_cast<const char *>(&shift), sizeof shift)));
    const ProcessRun run =
        RunProcess(TOOL, QStringList {"zone", "Europe/Berlin"} + more,
                   WithSteppingClock(DisplaylessEnvironment(), folder.filePath("shift")));
    QCOMPARE(run.exitCode, code);
    QVERIFY2((code == 0 ? run.output : run.errors).contains(said),
             qPrintable(run.output + run.errors));
    QCOMPARE(run.output.isEmpty(), code != 0);
}

QTEST_GUILESS_MAIN(TestToolLater)
#include "test_tool_later.moc"
