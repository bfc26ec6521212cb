#include "calendar/device_clock.h"

#include <QTest>
#include <QThread>
#include <QTimeZone>

#include <ctime>
#include <limits>
#include <memory>

using namespace Lw::HNodeClock;

namespace {

qint64 s_now = 0;
int s_readings = 0;

long long FixedTime()
{
    ++s_readings;
    return s_now;
}

long long OtherTime()
{
    return 42;
}

qint64 At(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso), Qt::ISODateWithMs).toMSecsSinceEpoch();
}

void SetDeviceZone(const char *zone)
{
    qputenv("TZ", zone);
    tzset();
}

} // namespace

class TestDeviceClock : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void SystemTimeByDefault();
    void SourceIsReplacedAndRestored();
    void EveryCallReadsTheTime();
    void HoldKeepsOneReading();
    void InnerHoldKeepsOuterReading();
    void GivenInstantIsHeldWithinAnother();
    void HoldSurvivesNewSource();
    void HoldIsOfItsThread();
    void LocalMilliseconds_data();
    void LocalMilliseconds();
    void FurthestTimes_data();
    void FurthestTimes();
    void LocalDateOfZones_data();
    void LocalDateOfZones();
    void LocalDateFollowsTheZone();
    void LocalDateThroughTheYear_data();
    void LocalDateThroughTheYear();
};

void TestDeviceClock::init()
{
    s_readings = 0;
    s_now = At("2026-07-01T12:00:00.250Z");
    clock_set_time_source(FixedTime);
}

void TestDeviceClock::cleanup()
{
    clock_set_time_source(nullptr);
    SetDeviceZone("UTC");
}

void TestDeviceClock::SystemTimeByDefault()
{
    clock_set_time_source(nullptr);
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const qint64 reading = UtcMilliseconds();
    const qint64 after = QDateTime::currentMSecsSinceEpoch();
    QVERIFY(before <= reading && reading <= after);
}

void TestDeviceClock::SourceIsReplacedAndRestored()
{
    QCOMPARE(UtcMilliseconds(), s_now);
    clock_set_time_source(OtherTime);
    QCOMPARE(UtcMilliseconds(), Q_INT64_C(42));
    clock_set_time_source(nullptr);
    QVERIFY(UtcMilliseconds() > At("2020-01-01T00:00:00Z"));
}

void TestDeviceClock::EveryCallReadsTheTime()
{
    const qint64 first = UtcMilliseconds();
    s_now += 1;
    QCOMPARE(UtcMilliseconds(), first + 1);
    QCOMPARE(s_readings, 2);
}

void TestDeviceClock::HoldKeepsOneReading()
{
    const qint64 first = s_now;
    {
        const HeldInstant held;
        s_now = At("2030-01-02T03:04:05.678Z");
        QCOMPARE(UtcMilliseconds(), first);
        QCOMPARE(LocalMillisecond(), 250);
        QCOMPARE(LocalDate(), QDate(2026, 7, 1));
        QCOMPARE(s_readings, 1);
    }
    QCOMPARE(UtcMilliseconds(), s_now);
    QCOMPARE(LocalMillisecond(), 678);
    QCOMPARE(LocalDate(), QDate(2030, 1, 2));
}

void TestDeviceClock::InnerHoldKeepsOuterReading()
{
    const qint64 first = s_now;
    const HeldInstant outer;
    s_now += 5000;
    {
        const HeldInstant inner;
        QCOMPARE(UtcMilliseconds(), first);
    }
    QCOMPARE(UtcMilliseconds(), first);
    QCOMPARE(s_readings, 1);
}

void TestDeviceClock::GivenInstantIsHeldWithinAnother()
{
    clock_set_time_source(&FixedTime);
    s_now = 7000;
    const HeldInstant outer;
    {
        const HeldInstant given(5123);
        const HeldInstant inner;
        QCOMPARE(UtcMilliseconds(), qint64(5123));
        QCOMPARE(LocalMillisecond(), 123);
    }
    QCOMPARE(UtcMilliseconds(), qint64(7000));
}

void TestDeviceClock::HoldSurvivesNewSource()
{
    const qint64 first = s_now;
    auto held = std::make_unique<HeldInstant>();
    clock_set_time_source(OtherTime);
    QCOMPARE(UtcMilliseconds(), first);
    held.reset();
    QCOMPARE(UtcMilliseconds(), Q_INT64_C(42));
}

void TestDeviceClock::HoldIsOfItsThread()
{
    const HeldInstant held;
    s_now += 1000;
    qint64 elsewhere = 0;
    const std::unique_ptr<QThread> thread(
        QThread::create([&elsewhere] { elsewhere = UtcMilliseconds(); }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(elsewhere, s_now);
    QCOMPARE(UtcMilliseconds(), s_now - 1000);
}

void TestDeviceClock::LocalMilliseconds_data()
{
    QTest::addColumn<qint64>("now");
    QTest::addColumn<int>("millisecond");
    QTest::newRow("whole second") << Q_INT64_C(1782907200000) << 0;
    QTest::newRow("last of the second") << Q_INT64_C(1782907200999) << 999;
    QTest::newRow("before 1970") << Q_INT64_C(-1) << 999;
    QTest::newRow("whole second before 1970") << Q_INT64_C(-5000) << 0;
    QTest::newRow("after 2038") << Q_INT64_C(2240611200123) << 123;
}

void TestDeviceClock::LocalMilliseconds()
{
    QFETCH(qint64, now);
    s_now = now;
    QTEST(LocalMillisecond(), "millisecond");
}

void TestDeviceClock::FurthestTimes_data()
{
    QTest::addColumn<qint64>("now");
    QTest::newRow("latest") << std::numeric_limits<qint64>::max();
    QTest::newRow("earliest") << std::numeric_limits<qint64>::min();
}

// Whatever a source answers, a year of seconds can be added to the reading or taken from it.
void TestDeviceClock::FurthestTimes()
{
    QFETCH(qint64, now);
    constexpr qint64 kYear = Q_INT64_C(31622400000);
    s_now = now;
    const qint64 reading = UtcMilliseconds();
    QVERIFY(reading <= std::numeric_limits<qint64>::max() - kYear);
    QVERIFY(reading >= std::numeric_limits<qint64>::min() + kYear);
    QCOMPARE(reading > 0, now > 0);
    QVERIFY(LocalMillisecond() >= 0 && LocalMillisecond() <= 999);
    const HeldInstant held;
    QCOMPARE(UtcMilliseconds(), reading);
    QCOMPARE(LocalDate().isValid() && LocalDate().year() > 0, now > 0);
}

void TestDeviceClock::LocalDateOfZones_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("now");
    QTest::addColumn<QDate>("date");
    QTest::newRow("UTC, last second")
        << QByteArray("UTC") << At("2026-03-01T23:59:59.999Z") << QDate(2026, 3, 1);
    QTest::newRow("UTC, midnight")
        << QByteArray("UTC") << At("2026-03-02T00:00:00Z") << QDate(2026, 3, 2);
    QTest::newRow("Shanghai, last second")
        << QByteArray("Asia/Shanghai") << At("2026-03-01T15:59:59Z") << QDate(2026, 3, 1);
    QTest::newRow("Shanghai, midnight")
        << QByteArray("Asia/Shanghai") << At("2026-03-01T16:00:00Z") << QDate(2026, 3, 2);
    QTest::newRow("Chatham, summer midnight")
        << QByteArray("Pacific/Chatham") << At("2026-01-01T10:15:00Z") << QDate(2026, 1, 2);
    QTest::newRow("New York, last winter second")
        << QByteArray("America/New_York") << At("2026-01-02T04:59:59Z") << QDate(2026, 1, 1);
    QTest::newRow("New York, summer midnight")
        << QByteArray("America/New_York") << At("2026-07-02T04:00:00Z") << QDate(2026, 7, 2);
    // Summer time begins on 25 March in 2040, on 29 March in 2037.
    QTest::newRow("Berlin, summer of 2040")
        << QByteArray("Europe/Berlin") << At("2040-03-26T22:30:00Z") << QDate(2040, 3, 27);
    QTest::newRow("after 2038") << QByteArray("UTC") << At("2038-01-19T03:14:08Z")
                                << QDate(2038, 1, 19);
    QTest::newRow("before 1970") << QByteArray("UTC") << At("1969-12-31T23:59:59Z")
                                 << QDate(1969, 12, 31);
}

void TestDeviceClock::LocalDateOfZones()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, now);
    SetDeviceZone(zone.constData());
    s_now = now;
    QTEST(LocalDate(), "date");
}

void TestDeviceClock::LocalDateFollowsTheZone()
{
    s_now = At("2026-03-01T16:00:00Z");
    SetDeviceZone("UTC");
    QCOMPARE(LocalDate(), QDate(2026, 3, 1));
    SetDeviceZone("Asia/Shanghai");
    QCOMPARE(LocalDate(), QDate(2026, 3, 2));
    SetDeviceZone("UTC");
    QCOMPARE(LocalDate(), QDate(2026, 3, 1));
}

void TestDeviceClock::LocalDateThroughTheYear_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *zone : {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe",
                             "America/Havana", "Asia/Kathmandu", "Pacific/Apia"})
        QTest::newRow(zone) << QByteArray(zone);
}

void TestDeviceClock::LocalDateThroughTheYear()
{
    QFETCH(QByteArray, zone);
    SetDeviceZone(zone.constData());
    const QTimeZone reference(zone);
    QVERIFY2(reference.isValid(), "the system's time zone data (tzdata) is missing");
    const qint64 end = At("2027-01-01T00:00:00Z");
    for (s_now = At("2026-01-01T00:00:00Z"); s_now < end; s_now += 15 * 60 * 1000)
        QCOMPARE(LocalDate(), QDateTime::fromMSecsSinceEpoch(s_now, reference).date());
}

QTEST_GUILESS_MAIN(TestDeviceClock)
#include "test_device_clock.moc"
