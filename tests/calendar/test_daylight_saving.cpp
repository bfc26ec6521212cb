// Rules as a user enters them against the system's time zone data.
#include "calendar/clock_time.h"
#include "calendar/zone_time.h"

#include <QTest>
#include <QTimeZone>

using Lw::HNodeClock::DaylightSaving;
using Lw::HNodeClock::ParseZoneOffset;
using Lw::HNodeClock::ZoneSettings;

namespace {

constexpr qint64 kMinute = 60 * 1000;
constexpr qint64 kDay = 24 * 60 * kMinute;

qint64 BeginOf(int year)
{
    return QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
}

const qint64 kBegin = BeginOf(2026);
const qint64 kEnd = BeginOf(2036);

struct Clock
{
    ZoneSettings settings;
    DaylightSaving daylight;

    int OffsetAt(qint64 utc) { return Lw::HNodeClock::OffsetAt(settings, utc, daylight); }
};

int TrueOffsetAt(const QTimeZone &zone, qint64 utc)
{
    return zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC));
}

QString TextOf(qint64 utc)
{
    return QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC).toString(Qt::ISODate);
}

} // namespace

class TestDaylightSaving : public QObject
{
    Q_OBJECT

private slots:
    void ExpressibleZones_data();
    void ExpressibleZones();
    void PublishedEndIsAnHourLate();
    void RulesThatChange();
    void PeriodThatEndsAtNewYear();
};

void TestDaylightSaving::ExpressibleZones_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    const auto row = [](const char *name, const char *zone, const char *start, const char *end) {
        QTest::newRow(name) << QString::fromLatin1(zone) << QString::fromLatin1(start)
                            << QString::fromLatin1(end);
    };
    // clang-format off
    row("Europe/Berlin",       "+01:00", "3.Last.7.02:00:00", "10.Last.7.02:00:00");
    row("Europe/Madrid",       "+01:00", "3.Last.7.02:00:00", "10.Last.7.02:00:00");
    row("Europe/London",       "+00:00", "3.Last.7.01:00:00", "10.Last.7.01:00:00");
    row("Europe/Lisbon",       "+00:00", "3.Last.7.01:00:00", "10.Last.7.01:00:00");
    row("Europe/Athens",       "+02:00", "3.Last.7.03:00:00", "10.Last.7.03:00:00");
    row("Europe/Helsinki",     "+02:00", "3.Last.7.03:00:00", "10.Last.7.03:00:00");
    row("Atlantic/Azores",     "-01:00", "3.Last.7.00:00:00", "10.Last.7.00:00:00");
    row("America/Halifax",     "-04:00", "3.2.7.02:00:00",    "11.1.7.01:00:00");
    row("America/New_York",    "-05:00", "3.2.7.02:00:00",    "11.1.7.01:00:00");
    row("America/Chicago",     "-06:00", "3.2.7.02:00:00",    "11.1.7.01:00:00");
    row("America/Denver",      "-07:00", "3.2.7.02:00:00",    "11.1.7.01:00:00");
    row("America/Los_Angeles", "-08:00", "3.2.7.02:00:00",    "11.1.7.01:00:00");
    row("America/St_Johns",    "-03:30", "3.2.7.02:00:00",    "11.1.7.01:00:00");
    row("Australia/Sydney",    "+10:00", "10.1.7.02:00:00",   "4.1.7.02:00:00");
    row("Australia/Adelaide",  "+09:30", "10.1.7.02:00:00",   "4.1.7.02:00:00");
    row("Pacific/Norfolk",     "+11:00", "10.1.7.02:00:00",   "4.1.7.02:00:00");
    row("Pacific/Auckland",    "+12:00", "9.Last.7.02:00:00", "4.1.7.02:00:00");
    row("Pacific/Chatham",     "+12:45", "9.Last.7.02:45:00", "4.1.7.02:45:00");
    row("Africa/Cairo",        "+02:00", "4.Last.5.00:00:00", "10.Last.4.23:00:00");
    // clang-format on
}

void TestDaylightSaving::ExpressibleZones()
{
    QFETCH(QString, zone);
    QFETCH(QString, start);
    QFETCH(QString, end);
    const QTimeZone reference(QTest::currentDataTag());
    QVERIFY2(reference.isValid(), "the system's time zone data (tzdata) is missing");
    Clock clock {{ParseZoneOffset(zone), start, end}, {}};
    const auto agreeAt = [&](qint64 utc) {
        return clock.OffsetAt(utc) == TrueOffsetAt(reference, utc);
    };

    for (qint64 utc = kBegin; utc < kEnd; utc += kDay / 2)
        QVERIFY2(agreeAt(utc), qPrintable(TextOf(utc)));

    const auto transitions = reference.transitions(QDateTime::fromMSecsSinceEpoch(kBegin, Qt::UTC),
                                                   QDateTime::fromMSecsSinceEpoch(kEnd, Qt::UTC));
    QCOMPARE(transitions.size(), 20); // two a year
    for (const QTimeZone::OffsetData &transition : transitions) {
        const qint64 at = transition.atUtc.toMSecsSinceEpoch();
        QVERIFY2(agreeAt(at - 1) && agreeAt(at), qPrintable(TextOf(at)));
        QVERIFY(clock.OffsetAt(at - 1) != clock.OffsetAt(at));
        for (qint64 utc = at - 2 * kDay; utc <= at + 2 * kDay; utc += 30 * kMinute)
            QVERIFY2(agreeAt(utc), qPrintable(TextOf(utc)));
    }
}

// Both boundaries are readings of standard time. Published ends are summer-time readings; entered
// as they are, they come an hour late, and nothing else does.
void TestDaylightSaving::PublishedEndIsAnHourLate()
{
    const QTimeZone reference("Europe/Berlin");
    QVERIFY2(reference.isValid(), "the system's time zone data (tzdata) is missing");
    Clock clock {{3600, QStringLiteral("3.Last.7.02:00:00"), QStringLiteral("10.Last.7.03:00:00")},
                 {}};
    for (qint64 utc = kBegin; utc < kEnd; utc += 30 * kMinute) {
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC);
        const bool late = time.date().month() == 10 && time.date().dayOfWeek() == 7
            && time.date().day() > 24 && time.time().hour() == 1;
        QCOMPARE(clock.OffsetAt(utc) - TrueOffsetAt(reference, utc), late ? 3600 : 0);
    }
}

// Texts of one length, one after the other, by the same object.
void TestDaylightSaving::RulesThatChange()
{
    const QString march = QStringLiteral("3.Last.7.02:00:00");
    const QString august = QStringLiteral("8.Last.7.02:00:00");
    const QString november = QStringLiteral("11.Last.7.02:00:00");
    const QString october = QStringLiteral("10.Last.7.02:00:00");
    const qint64 july = QDateTime(QDate(2024, 7, 1), QTime(12, 0), Qt::UTC).toMSecsSinceEpoch();
    const qint64 early = QDateTime(QDate(2024, 11, 1), QTime(12, 0), Qt::UTC).toMSecsSinceEpoch();
    DaylightSaving saving;
    QCOMPARE(saving.ShiftSeconds(march, october, july), 3600);
    QCOMPARE(saving.ShiftSeconds(august, october, july), 0);
    QCOMPARE(saving.ShiftSeconds(march, october, july), 3600);
    QCOMPARE(saving.ShiftSeconds(march, october, early), 0);
    QCOMPARE(saving.ShiftSeconds(march, november, early), 3600);
    QCOMPARE(saving.ShiftSeconds(march, october, early), 0);
}

// The end of each year counts from that year's first millisecond, whatever was asked before. The
// first Sunday of January was the 1st in 2023, the 7th in 2024; that of October the 2nd in 2022.
void TestDaylightSaving::PeriodThatEndsAtNewYear()
{
    const QString october = QStringLiteral("10.1.7.00:00:00");
    const QString january = QStringLiteral("1.1.7.00:00:00");
    const auto at = [](int year, int month, int day) {
        return QDateTime(QDate(year, month, day), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    };
    DaylightSaving saving;
    QCOMPARE(saving.ShiftSeconds(october, january, at(2022, 10, 2) - 1), 0);
    QCOMPARE(saving.ShiftSeconds(october, january, at(2022, 10, 2)), 3600);
    QCOMPARE(saving.ShiftSeconds(october, january, at(2023, 1, 1) - 1), 3600);
    QCOMPARE(saving.ShiftSeconds(october, january, at(2023, 1, 1)), 0);
    QCOMPARE(saving.ShiftSeconds(october, january, at(2024, 1, 1)), 3600);
    QCOMPARE(saving.ShiftSeconds(october, january, at(2024, 1, 7) - 1), 3600);
    QCOMPARE(saving.ShiftSeconds(october, january, at(2024, 1, 7)), 0);
    QCOMPARE(saving.ShiftSeconds(october, january, at(2023, 1, 1) - 1), 3600);
    QCOMPARE(saving.ShiftSeconds(october, january, at(2023, 1, 1)), 0);
}

QTEST_GUILESS_MAIN(TestDaylightSaving)
#include "test_daylight_saving.moc"
