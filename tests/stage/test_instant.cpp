#include "instant.h"
#include "time_travel.h"

#include <QDateTime>
#include <QtTest>

using namespace ClockStage;

class TestInstant : public QObject
{
    Q_OBJECT

private slots:
    void TextsBecomeInstants_data();
    void TextsBecomeInstants();
    void MalformedTextsAreRefused_data();
    void MalformedTextsAreRefused();
    void WholeSeconds_data();
    void WholeSeconds();
    void SystemTime();
    void HeldTime();
    void OnlyPluginsCallsAreRecorded();
    void RunningTime();
};

// The numbers are those of "date -u -d ... +%s".
void TestInstant::TextsBecomeInstants_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("milliseconds");
    QTest::newRow("epoch") << "1970-01-01T00:00:00Z" << qint64(0);
    QTest::newRow("UTC without an offset") << "2024-02-29T23:59:58" << qint64(1709251198000);
    QTest::newRow("east") << "2024-03-01T00:59:58+01:00" << qint64(1709251198000);
    QTest::newRow("west, half an hour") << "2024-02-29T20:29:58-03:30" << qint64(1709251198000);
    QTest::newRow("offset without colon") << "2024-03-01T00:59:58+0100" << qint64(1709251198000);
    QTest::newRow("offset of hours") << "2024-03-01T00:59:58+01" << qint64(1709251198000);
    QTest::newRow("fraction") << "2024-02-29T23:59:58.5Z" << qint64(1709251198500);
    QTest::newRow("fraction with a comma") << "2024-02-29T23:59:58,005" << qint64(1709251198005);
    QTest::newRow("minutes") << "2024-02-29T23:59Z" << qint64(1709251140000);
    QTest::newRow("date alone") << "2024-02-29" << qint64(1709164800000);
    QTest::newRow("before the epoch") << "1969-12-31T23:59:59.250Z" << qint64(-750);
    QTest::newRow("far away") << "9999-12-31T23:59:59Z" << qint64(253402300799000);
}

void TestInstant::TextsBecomeInstants()
{
    QFETCH(QString, text);
    QFETCH(qint64, milliseconds);
    const std::optional<qint64> instant = ParseInstant(text);
    QVERIFY(instant);
    QCOMPARE(*instant, milliseconds);
}

void TestInstant::MalformedTextsAreRefused_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"",
                             "now",
                             "2024",
                             "2024-02",
                             "2023-02-29",
                             "2024-13-01T00:00:00Z",
                             "2024-2-29T00:00:00Z",
                             "2024-02-29 23:59:58",
                             "2024-02-29T24:00:00Z",
                             "2024-02-29T23:60:00Z",
                             "2024-02-29T23:59:60Z",
                             "2024-02-29T23:59:58z",
                             "2024-02-29T23:59:58 Z",
                             "2024-02-29T23:59:58Z ",
                             "2024-02-29T23:59:58+24:00",
                             "2024-02-29T23:59:58+01:60",
                             "2024-02-29T23:59:58+1",
                             "2024-02-29T23:59:58.",
                             "2024-02-29T23:59:58.1234",
                             "2024-02-29T",
                             "2024-02-29T23",
                             "2024-02-29Z",
                             "0000-01-01",
                             "12024-02-29",
                             "2024-02-29T23:59:58Z\n"})
        QTest::newRow(*text ? text : "empty") << QString::fromLatin1(text);
    QTest::newRow("full-width digits") << QString::fromUtf8("2024-02-2９");
}

void TestInstant::MalformedTextsAreRefused()
{
    QFETCH(QString, text);
    QVERIFY(!ParseInstant(text));
}

void TestInstant::WholeSeconds_data()
{
    QTest::addColumn<qint64>("instant");
    QTest::addColumn<qint64>("second");
    QTest::newRow("whole") << qint64(5000) << qint64(5000);
    QTest::newRow("end of a second") << qint64(5999) << qint64(5000);
    QTest::newRow("before the epoch") << qint64(-1) << qint64(-1000);
    QTest::newRow("whole before the epoch") << qint64(-1000) << qint64(-1000);
}

void TestInstant::WholeSeconds()
{
    QFETCH(qint64, instant);
    QFETCH(qint64, second);
    QCOMPARE(WholeSecond(instant), second);
}

// Runs first of the four: the player's time is one for the process.
void TestInstant::SystemTime()
{
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const qint64 now = StageTime::TellPlugin();
    QVERIFY(now >= before && now <= QDateTime::currentMSecsSinceEpoch());
}

void TestInstant::HeldTime()
{
    StageTime::HoldAt(1700);
    QTest::qWait(5);
    QCOMPARE(StageTime::TellPlugin(), 1700LL);
    StageTime::HoldAt(3000);
    QCOMPARE(StageTime::TellPlugin(), 3000LL);
}

void TestInstant::OnlyPluginsCallsAreRecorded()
{
    StageTime::HoldAt(1700);
    StageTime::TakePluginTime();
    QCOMPARE(StageTime::Shown(), qint64(1700));
    QVERIFY(!StageTime::TakePluginTime()); // the player's own calls are not recorded
    const double before = StageTime::Steady();
    StageTime::TellPlugin();
    const std::optional<StageTime::PluginTime> told = StageTime::TakePluginTime();
    QVERIFY(told.has_value());
    QCOMPARE(told->instant, qint64(1700));
    QVERIFY(told->steady >= before && told->steady <= StageTime::Steady());
    QVERIFY(!StageTime::TakePluginTime());
}

void TestInstant::RunningTime()
{
    StageTime::RunFrom(-500);
    const long long first = StageTime::TellPlugin();
    QVERIFY(first >= -500 && first < 60000);
    QTest::qWait(20);
    QVERIFY(StageTime::TellPlugin() >= first + 20);
}

QTEST_GUILESS_MAIN(TestInstant)
#include "test_instant.moc"
