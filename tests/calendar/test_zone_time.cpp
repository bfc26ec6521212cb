// The next change of a clock's time, against the system's zone data and worked out by hand.
#include "calendar/zone_time.h"

#include <QTimeZone>
#include <QtTest>

using namespace Lw::HNodeClock;

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

const ZoneSettings kBerlin {3600, QStringLiteral("3.Last.7.02:00:00"),
                            QStringLiteral("10.Last.7.02:00:00")};

} // namespace

class TestZoneTime : public QObject
{
    Q_OBJECT

private slots:
    void EveryTransitionOfTwentyYears_data();
    void EveryTransitionOfTwentyYears();
    void NextChangeWorkedOut_data();
    void NextChangeWorkedOut();
    void NoChange_data();
    void NoChange();
    void PossibleChangesAreBoundariesAndNewYears();
    void OffsetsOfClocksWithoutRules();
    void ZoneTexts();
};

void TestZoneTime::EveryTransitionOfTwentyYears_data()
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
void TestZoneTime::EveryTransitionOfTwentyYears()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, offset);
    QFETCH(QString, start);
    QFETCH(QString, end);
    const QTimeZone timeZone(zone);
    QVERIFY(timeZone.isValid());
    const ZoneSettings settings {offset, start, end};
    const QTimeZone::OffsetDataList transitions =
        timeZone.transitions(QDateTime(QDate(2010, 1, 1), QTime(0, 0), Qt::UTC),
                             QDateTime(QDate(2030, 1, 1), QTime(0, 0), Qt::UTC));
    QCOMPARE(transitions.size(), 40);
    qint64 from = Instant("2010-01-01T00:00:00");
    for (const QTimeZone::OffsetData &transition : transitions) {
        const std::optional<ZoneChange> change = NextChange(settings, from);
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

void TestZoneTime::NextChangeWorkedOut_data()
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

void TestZoneTime::NextChangeWorkedOut()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(qint64, from);
    QFETCH(qint64, change);
    QFETCH(int, after);
    const std::optional<ZoneChange> found = NextChange({0, start, end}, from);
    QVERIFY(found.has_value());
    QCOMPARE(InstantText(found->instant), InstantText(change));
    QCOMPARE(found->after, after);
    QCOMPARE(found->before, 3600 - after);
}

void TestZoneTime::NoChange_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<qint64>("from");
    const QString rule = kBerlin.start;
    const qint64 now = Instant("2024-01-01T00:00:00");
    QTest::newRow("no rules") << QString() << QString() << now;
    QTest::newRow("malformed start") << "3.Last.7" << rule << now;
    QTest::newRow("malformed end") << rule << "13.1.1.00:00:00" << now;
    QTest::newRow("equal rules") << rule << rule << now;
    QTest::newRow("days that no year has both of") << "2.5.7.00:00:00"
                                                   << "2.5.1.00:00:00" << now;
    QTest::newRow("the last year is over") << rule << kBerlin.end << Instant("9999-12-31T23:59:59");
}

void TestZoneTime::NoChange()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(qint64, from);
    QVERIFY(!NextChange({3600, start, end}, from));
}

// Berlin in 2024 and 2025: new year, the last Sundays of March and October at 02:00 standard time.
void TestZoneTime::PossibleChangesAreBoundariesAndNewYears()
{
    QStringList texts;
    for (const qint64 instant : PossibleChanges(kBerlin, 2024, 2025))
        texts.append(InstantText(instant));
    const QStringList expected {"2023-12-31T23:00:00Z", "2024-03-31T01:00:00Z",
                                "2024-10-27T01:00:00Z", "2024-12-31T23:00:00Z",
                                "2025-03-30T01:00:00Z", "2025-10-26T01:00:00Z"};
    QCOMPARE(texts, expected);
    QVERIFY(PossibleChanges({3600, kBerlin.start, QString()}, 2024, 2025).isEmpty());
    QVERIFY(PossibleChanges(kBerlin, 2025, 2024).isEmpty());
}

void TestZoneTime::OffsetsOfClocksWithoutRules()
{
    const qint64 summer = Instant("2024-07-01T00:00:00");
    QCOMPARE(OffsetAt(kBerlin, summer), 7200);
    QCOMPARE(OffsetAt({3600, QString(), QString()}, summer), 3600);
    QCOMPARE(OffsetAt({3600, kBerlin.start, QString()}, summer), 3600);
    QCOMPARE(OffsetAt({-86399, QString(), kBerlin.end}, summer), -86399);
}

void TestZoneTime::ZoneTexts()
{
    const auto text = [](int offset) { return ZoneSettings {offset, {}, {}}.ZoneText(); };
    QCOMPARE(text(0), QStringLiteral("+00:00"));
    QCOMPARE(text(45900), QStringLiteral("+12:45"));
    QCOMPARE(text(-12600), QStringLiteral("-03:30"));
    QCOMPARE(text(-59), QStringLiteral("-00:00"));
}

QTEST_GUILESS_MAIN(TestZoneTime)
#include "test_zone_time.moc"
