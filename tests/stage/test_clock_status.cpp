// The next change of a clock's time, held against the system's zone data and worked out by hand.
#include "clock_status.h"

#include "hnode.h"

#include <QTimeZone>
#include <QtTest>

using namespace ClockStage;

Q_DECLARE_METATYPE(ClockStage::Status)

namespace {

qint64 Instant(const char *text)
{
    QDateTime instant = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
    instant.setTimeSpec(Qt::UTC);
    return instant.toMSecsSinceEpoch();
}

QString InstantText(qint64 instant)
{
    return QDateTime::fromMSecsSinceEpoch(instant, Qt::UTC).toString(Qt::ISODate);
}

const ClockSettings kBerlin {3600, true, QStringLiteral("3.Last.7.02:00:00"),
                             QStringLiteral("10.Last.7.02:00:00")};

} // namespace

class TestClockStatus : public QObject
{
    Q_OBJECT

private slots:
    void SystemsZones_data();
    void SystemsZones();
    void WorkedOut_data();
    void WorkedOut();
    void NoChange_data();
    void NoChange();
    void SettingsOfNodes();
    void StatusTexts_data();
    void StatusTexts();
};

void TestClockStatus::SystemsZones_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::newRow("Berlin") << QByteArray("Europe/Berlin") << 3600 << "3.Last.7.02:00:00"
                            << "10.Last.7.02:00:00";
    QTest::newRow("New York") << QByteArray("America/New_York") << -18000 << "3.2.7.02:00:00"
                              << "11.1.7.01:00:00";
    // South of the equator the period runs over the new year.
    QTest::newRow("Sydney") << QByteArray("Australia/Sydney") << 36000 << "10.1.7.02:00:00"
                            << "4.1.7.02:00:00";
}

// Each transition of twenty years, found from the one before it, and the time that is shown
// between.
void TestClockStatus::SystemsZones()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, offset);
    QFETCH(QString, start);
    QFETCH(QString, end);
    const QTimeZone timeZone(zone);
    QVERIFY(timeZone.isValid());
    const ClockSettings settings {offset, true, start, end};
    const QTimeZone::OffsetDataList transitions =
        timeZone.transitions(QDateTime(QDate(2010, 1, 1), QTime(0, 0), Qt::UTC),
                             QDateTime(QDate(2030, 1, 1), QTime(0, 0), Qt::UTC));
    QCOMPARE(transitions.size(), 40);
    qint64 from = Instant("2010-01-01T00:00:00");
    for (const QTimeZone::OffsetData &transition : transitions) {
        const std::optional<Change> change = NextChange(settings, from);
        QVERIFY(change.has_value());
        const qint64 expected = transition.atUtc.toMSecsSinceEpoch();
        QCOMPARE(InstantText(change->instant), InstantText(expected));
        QCOMPARE(change->after, transition.offsetFromUtc);
        QCOMPARE(OffsetAt(settings, expected - 1), change->before);
        QCOMPARE(OffsetAt(settings, expected), change->after);
        QCOMPARE(change->before, timeZone.offsetFromUtc(transition.atUtc.addMSecs(-1)));
        from = expected;
    }
}

void TestClockStatus::WorkedOut_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("change");
    QTest::addColumn<int>("after");
    const auto row = [](const char *name, const char *start, const char *end, const char *from,
                        const char *change, int after) {
        QTest::newRow(name) << start << end << Instant(from) << Instant(change) << after;
    };
    // All of UTC.
    row("just before", "3.Last.7.01:00:00", "10.Last.7.01:00:00", "2024-03-31T00:59:59",
        "2024-03-31T01:00:00", 3600);
    row("at the change: the next one", "3.Last.7.01:00:00", "10.Last.7.01:00:00",
        "2024-03-31T01:00:00", "2024-10-27T01:00:00", 0);
    // A February has five Sundays when its 29th is one: in 2032 again. Until then there is no
    // period.
    row("a fifth Sunday in February", "2.5.7.00:00:00", "10.Last.7.00:00:00", "2024-01-01T00:00:00",
        "2032-02-29T00:00:00", 3600);
    // 2100 is no leap year, and the next February with five Sundays after 2088 is that of 2128.
    row("the longest way", "2.5.7.00:00:00", "10.Last.7.00:00:00", "2088-12-31T00:00:00",
        "2128-02-29T00:00:00", 3600);
    // April 2023 has five Sundays, April 2024 four: the period over the new year just ends with
    // the year, as the rules of 2024 name no day.
    row("the new year ends it", "10.1.7.00:00:00", "4.5.7.00:00:00", "2023-12-01T00:00:00",
        "2024-01-01T00:00:00", 0);
}

void TestClockStatus::WorkedOut()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(qint64, from);
    QFETCH(qint64, change);
    QFETCH(int, after);
    const std::optional<Change> found = NextChange({0, true, start, end}, from);
    QVERIFY(found.has_value());
    QCOMPARE(InstantText(found->instant), InstantText(change));
    QCOMPARE(found->after, after);
    QCOMPARE(found->before, 3600 - after);
}

void TestClockStatus::NoChange_data()
{
    QTest::addColumn<bool>("savesDaylight");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<qint64>("from");
    const QString rule = kBerlin.start;
    const qint64 now = Instant("2024-01-01T00:00:00");
    QTest::newRow("not wanted") << false << rule << kBerlin.end << now;
    QTest::newRow("no rules") << true << QString() << QString() << now;
    QTest::newRow("malformed start") << true << "3.Last.7" << rule << now;
    QTest::newRow("malformed end") << true << rule << "13.1.1.00:00:00" << now;
    QTest::newRow("equal rules") << true << rule << rule << now;
    QTest::newRow("days that no year has both of") << true << "2.5.7.00:00:00"
                                                   << "2.5.1.00:00:00" << now;
    QTest::newRow("the last year is over")
        << true << rule << kBerlin.end << Instant("9999-12-31T23:59:59");
}

void TestClockStatus::NoChange()
{
    QFETCH(bool, savesDaylight);
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(qint64, from);
    QVERIFY(!NextChange({3600, savesDaylight, start, end}, from));
}

void TestClockStatus::SettingsOfNodes()
{
    QVERIFY(!SettingsOf(nullptr));
    Lw::HNode node;
    QVERIFY(!SettingsOf(&node));
    node.SetAttribute("TimeZone", "-03:30", false);
    const std::optional<ClockSettings> plain = SettingsOf(&node);
    QVERIFY(plain.has_value());
    QCOMPARE(plain->offsetSeconds, -12600);
    QVERIFY(!plain->savesDaylight);
    node.SetAttribute("TimeAdjust", "00:01:05", false);
    node.SetAttribute("AdjustType", 1, false);
    node.SetAttribute("UseDaylightSavingTime", 1, false);
    node.SetAttribute("DaylightSavingTimeStart", kBerlin.start, false);
    node.SetAttribute("DaylightSavingTimeEnd", kBerlin.end, false);
    const std::optional<ClockSettings> all = SettingsOf(&node);
    QCOMPARE(all->offsetSeconds, -12665);
    QVERIFY(all->savesDaylight);
    QCOMPARE(all->start, kBerlin.start);
    QCOMPARE(all->end, kBerlin.end);
}

void TestClockStatus::StatusTexts_data()
{
    QTest::addColumn<Status>("status");
    QTest::addColumn<QString>("text");
    const qint64 night = Instant("2024-03-31T00:59:58");
    QTest::newRow("no clock") << Status {night, false, 1, std::nullopt, 1, 1}
                              << "2024-03-31T00:59:58Z";
    QTest::newRow("fast, and paused")
        << Status {night, true, 60, std::nullopt, 1, 1} << "2024-03-31T00:59:58Z x60 paused";
    QTest::newRow("slow") << Status {night, false, 0.5, std::nullopt, 1, 1}
                          << "2024-03-31T00:59:58Z x0.5";
    QTest::newRow("before it begins")
        << Status {night, false, 1, kBerlin, 1, 1}
        << "2024-03-31T00:59:58Z | 2024-03-31 01:59:58 +01:00 | daylight saving begins "
           "2024-03-31T01:00:00Z: 02:00:00 becomes 03:00:00";
    QTest::newRow("before it ends")
        << Status {night + 2000, false, 1, kBerlin, 2, 4}
        << "2024-03-31T01:00:00Z | clock 2 of 4: 2024-03-31 03:00:00 +02:00 | daylight saving ends "
           "2024-10-27T01:00:00Z: 03:00:00 becomes 02:00:00";
    QTest::newRow("without, and adjusted by seconds")
        << Status {night, false, 1, ClockSettings {-12665, false, QString(), QString()}, 1, 1}
        << "2024-03-31T00:59:58Z | 2024-03-30 21:28:53 -03:31:05 | no daylight saving";
}

void TestClockStatus::StatusTexts()
{
    QFETCH(Status, status);
    QFETCH(QString, text);
    QCOMPARE(StatusText(status), text);
}

QTEST_GUILESS_MAIN(TestClockStatus)
#include "test_clock_status.moc"
