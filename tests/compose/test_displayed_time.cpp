// The displayed reading of a clock: what its settings make of the device's time, when they are
// read, and what the elements show of it.
#include "chosen_time.h"
#include "clock_node.h"
#include "compose/draw_clock_classify_image.h"
#include "lettered_glyphs.h"

#include <QLocale>
#include <QTest>

#include <ctime>
#include <limits>

using namespace Lw::HNodeClock;

namespace {

QDateTime Utc(const QString &iso)
{
    QDateTime instant = QDateTime::fromString(iso, Qt::ISODate);
    instant.setTimeSpec(Qt::UTC);
    return instant;
}

const QString kNorthStart = QStringLiteral("3.Last.7.02:00:00");
const QString kNorthEnd = QStringLiteral("10.Last.7.03:00:00");
const QString kSouthStart = QStringLiteral("10.1.7.02:00:00");
const QString kSouthEnd = QStringLiteral("4.1.7.03:00:00");

} // namespace

class TestDisplayedTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void Offsets_data();
    void Offsets();
    void OffsetHoldsUntilSetUp();
    void DaylightSaving_data();
    void DaylightSaving();
    void DaylightSavingOfOtherDeviceZones();
    void DaylightSavingIsReadLive();
    void FlagOtherThanOneIsOff_data();
    void FlagOtherThanOneIsOff();
    void BoundariesAreOfTheShiftedYear();
    void AddedHourMovesTheDate();
    void Boundaries_data();
    void Boundaries();
    void HalvesOfTheDay_data();
    void HalvesOfTheDay();
    void PersianDateOfAnalogClock();
    void WeekdayStaysGregorian();
    void PersianDateFollowsTheAddedHour();
    void PictureClockHasItsZoneAndNoImages();
    void NothingHappensWithoutNode();
    void DeletedNode();
    void FurthestTimes_data();
    void FurthestTimes();

private:
    void SetText(const char *key, const QString &text)
    {
        m_node->SetAttribute(QString::fromLatin1(key), text, false);
    }
    void SetNumber(const char *key, int number)
    {
        m_node->SetAttribute(QString::fromLatin1(key), number, false);
    }
    void SetDaylightSaving(const QString &start, const QString &end)
    {
        SetNumber("UseDaylightSavingTime", 1);
        SetText("DaylightSavingTimeStart", start);
        SetText("DaylightSavingTimeEnd", end);
    }
    void SetUp() { m_composer->InitParameters(m_node.data()); }
    QDateTime Reading()
    {
        QDateTime reading;
        m_weekday = m_composer->CalculateTimeZone(reading);
        return reading;
    }
    QString Date() { return LetteredGlyphs::Read(m_composer->GetDatePixmap()); }
    // The columns of a date with separators, a digit being three wide.
    static QString DateColumns(const char *year, const char *month, const char *day)
    {
        const auto digits = [](const char *text) { return LetteredGlyphs::Cells(text, 3); };
        return digits(year) + "//" + digits(month) + "//" + digits(day) + "_";
    }

    QScopedPointer<HClockNode> m_node;
    QScopedPointer<LetteredGlyphs> m_glyphs;
    QScopedPointer<DrawClockClassifyImage> m_composer;
    int m_weekday = 0;
};

void TestDisplayedTime::init()
{
    m_node.reset(new HClockNode);
    SetNumber("ClockType", 1);
    m_glyphs.reset(new LetteredGlyphs(*m_node));
    m_composer.reset(new DrawClockClassifyImage);
    ChosenTime::Set("2024-03-05T13:07:42");
}

void TestDisplayedTime::cleanup()
{
    clock_set_time_source(nullptr);
    qputenv("TZ", "UTC");
    tzset();
}

void TestDisplayedTime::Offsets_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("adjustment");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("reading");
    const auto row = [](const char *name, const char *zone, const char *adjustment, int type,
                        const char *reading) {
        QTest::newRow(name) << zone << adjustment << type << reading;
    };
    row("no settings", "", "", 0, "2024-03-05T13:07:42");
    row("two-digit hour", "+08:00", "00A00B00", 0, "2024-03-05T21:07:42");
    row("one-digit hour", "+8:00", "00A00B00", 0, "2024-03-05T21:07:42");
    row("west", "-05:30", "00A00B00", 0, "2024-03-05T07:37:42");
    row("no sign", "08:00", "00A00B00", 0, "2024-03-05T21:07:42");
    row("no sign loses the first digit", "12:30", "00A00B00", 0, "2024-03-05T15:37:42");
    row("date to the east", "+14:00", "00A00B00", 0, "2024-03-06T03:07:42");
    row("date to the west", "-14:00", "00A00B00", 0, "2024-03-04T23:07:42");
    row("added", "+00:00", "01A30B15", 0, "2024-03-05T14:37:57");
    row("subtracted", "+00:00", "01A30B15", 1, "2024-03-05T11:37:27");
    row("type 2 adds", "+00:00", "01A30B15", 2, "2024-03-05T14:37:57");
    row("zone and adjustment", "+08:00", "01A30B15", 1, "2024-03-05T19:37:27");
    row("bad zone keeps the adjustment", "UTC+8", "00A01B00", 0, "2024-03-05T13:08:42");
    row("bad field counts nothing", "+08:00", "xxA01Byy", 0, "2024-03-05T21:08:42");
}

void TestDisplayedTime::Offsets()
{
    QFETCH(QString, zone);
    QFETCH(QString, adjustment);
    QFETCH(int, type);
    QFETCH(QString, reading);
    SetText("TimeZone", zone);
    SetText("TimeAdjust", adjustment);
    SetNumber("AdjustType", type);
    SetUp();
    QCOMPARE(Reading(), Utc(reading));
    QCOMPARE(Reading().timeSpec(), Qt::UTC);
    QCOMPARE(m_weekday, Utc(reading).date().dayOfWeek());
}

void TestDisplayedTime::OffsetHoldsUntilSetUp()
{
    SetText("TimeZone", "+01:00");
    SetUp();
    SetText("TimeZone", "+02:00");
    SetText("TimeAdjust", "00A10B00");
    SetNumber("AdjustType", 1);
    QCOMPARE(Reading(), Utc("2024-03-05T14:07:42"));
    SetUp();
    QCOMPARE(Reading(), Utc("2024-03-05T14:57:42"));
}

void TestDisplayedTime::DaylightSaving_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("instant");
    QTest::addColumn<QString>("reading");
    const auto north = [](const char *name, const char *instant, const char *reading) {
        QTest::newRow(name) << kNorthStart << kNorthEnd << instant << reading;
    };
    const auto south = [](const char *name, const char *instant, const char *reading) {
        QTest::newRow(name) << kSouthStart << kSouthEnd << instant << reading;
    };
    // Instants one hour before the standard reading of a clock at +01:00. In 2026 the last Sundays
    // are 29 March and 25 October, the first ones 5 April and 4 October.
    north("winter", "2026-01-15T11:00:00", "2026-01-15T12:00:00");
    north("last second of winter", "2026-03-29T00:59:59", "2026-03-29T01:59:59");
    north("start", "2026-03-29T01:00:00", "2026-03-29T03:00:00");
    north("summer", "2026-07-01T11:00:00", "2026-07-01T13:00:00");
    north("last second of summer", "2026-10-25T01:59:59", "2026-10-25T03:59:59");
    north("end", "2026-10-25T02:00:00", "2026-10-25T03:00:00");
    south("January", "2026-01-15T11:00:00", "2026-01-15T13:00:00");
    south("southern, last second of summer", "2026-04-05T01:59:59", "2026-04-05T03:59:59");
    south("southern, end", "2026-04-05T02:00:00", "2026-04-05T03:00:00");
    south("June", "2026-06-15T11:00:00", "2026-06-15T12:00:00");
    south("southern, last second of winter", "2026-10-04T00:59:59", "2026-10-04T01:59:59");
    south("southern, start", "2026-10-04T01:00:00", "2026-10-04T03:00:00");
    QTest::newRow("no start") << "" << kNorthEnd << "2026-07-01T11:00:00"
                              << "2026-07-01T12:00:00";
    QTest::newRow("no end") << kNorthStart << ""
                            << "2026-07-01T11:00:00"
                            << "2026-07-01T12:00:00";
    QTest::newRow("equal") << kNorthStart << kNorthStart << "2026-07-01T11:00:00"
                           << "2026-07-01T12:00:00";
    QTest::newRow("malformed") << "3.last.7.02:00:00" << kNorthEnd << "2026-07-01T11:00:00"
                               << "2026-07-01T12:00:00";
}

void TestDisplayedTime::DaylightSaving()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(QString, instant);
    QFETCH(QString, reading);
    SetText("TimeZone", "+01:00");
    SetDaylightSaving(start, end);
    SetUp();
    ChosenTime::Set(instant);
    QCOMPARE(Reading(), Utc(reading));
}

// Boundaries are in the clock's zone, wherever the device is.
void TestDisplayedTime::DaylightSavingOfOtherDeviceZones()
{
    SetText("TimeZone", "+01:00");
    SetDaylightSaving(kNorthStart, kNorthEnd);
    for (const char *zone : {"America/New_York", "Asia/Shanghai", "Europe/Berlin"}) {
        qputenv("TZ", zone);
        tzset();
        SetUp();
        ChosenTime::Set("2026-03-29T00:59:59");
        QCOMPARE(Reading(), Utc("2026-03-29T01:59:59"));
        ChosenTime::Set("2026-03-29T01:00:00");
        QCOMPARE(Reading(), Utc("2026-03-29T03:00:00"));
    }
}

void TestDisplayedTime::DaylightSavingIsReadLive()
{
    SetUp();
    ChosenTime::Set("2026-07-01T12:00:00");
    QCOMPARE(Reading().time(), QTime(12, 0));
    SetDaylightSaving(kNorthStart, kNorthEnd);
    QCOMPARE(Reading().time(), QTime(13, 0));
    SetText("DaylightSavingTimeEnd", "6.1.7.03:00:00");
    QCOMPARE(Reading().time(), QTime(12, 0));
    SetText("DaylightSavingTimeStart", kSouthStart);
    QCOMPARE(Reading().time(), QTime(12, 0));
    SetText("DaylightSavingTimeEnd", "8.1.7.03:00:00");
    QCOMPARE(Reading().time(), QTime(13, 0));
    SetNumber("UseDaylightSavingTime", 0);
    QCOMPARE(Reading().time(), QTime(12, 0));
}

void TestDisplayedTime::FlagOtherThanOneIsOff_data()
{
    QTest::addColumn<QString>("flag");
    for (const char *flag : {"0", "2", "-1", "true", "1.0", "257"})
        QTest::newRow(flag) << flag;
}

void TestDisplayedTime::FlagOtherThanOneIsOff()
{
    QFETCH(QString, flag);
    SetDaylightSaving(kNorthStart, kNorthEnd);
    SetText("UseDaylightSavingTime", flag);
    SetUp();
    ChosenTime::Set("2026-07-01T12:00:00");
    QCOMPARE(Reading().time(), QTime(12, 0));
}

// The first Thursday of January is the 1st in 2026, the 2nd in 2025: half an hour into the clock's
// new year, while it is still 2025 in UTC, daylight saving has begun by the rule of 2026 only.
void TestDisplayedTime::BoundariesAreOfTheShiftedYear()
{
    SetText("TimeZone", "+01:00");
    SetDaylightSaving("1.1.4.00:00:00", "6.1.1.00:00:00");
    SetUp();
    ChosenTime::Set("2025-12-31T23:30:00");
    QCOMPARE(Reading(), Utc("2026-01-01T01:30:00"));
    ChosenTime::Set("2025-12-31T22:59:59");
    QCOMPARE(Reading(), Utc("2025-12-31T23:59:59"));
}

void TestDisplayedTime::AddedHourMovesTheDate()
{
    m_glyphs->WriteAll();
    SetDaylightSaving(kSouthStart, kSouthEnd);
    SetUp();
    ChosenTime::Set("2025-12-31T23:30:00");
    QCOMPARE(Reading(), Utc("2026-01-01T00:30:00"));
    QCOMPARE(m_weekday, 4); // a Thursday
    QCOMPARE(m_composer->GetTimeAP(), QStringLiteral("AM"));
    QCOMPARE(Date(), DateColumns("2026", "01", "01"));
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetWeeKPixmap()), QStringLiteral("wwww"));
}

void TestDisplayedTime::Boundaries_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("boundary");
    const QDate date(2026, 7, 1);
    QTest::newRow("last Sunday") << date << kNorthStart << "2026-03-29T02:00:00";
    QTest::newRow("first Sunday") << date << "10.1.7.03:00:00"
                                  << "2026-10-04T03:00:00";
    QTest::newRow("of the date's year")
        << QDate(2024, 12, 31) << kNorthStart << "2024-03-31T02:00:00";
    QTest::newRow("fifth that exists") << date << "3.5.7.02:00:00"
                                       << "2026-03-29T02:00:00";
    QTest::newRow("fifth that does not") << date << "4.5.7.02:00:00"
                                         << "";
    QTest::newRow("no such month") << date << "13.Last.7.02:00:00"
                                   << "";
    QTest::newRow("no such weekday") << date << "3.Last.8.02:00:00"
                                     << "";
    QTest::newRow("occurrence 0") << date << "3.0.7.02:00:00"
                                  << "";
    QTest::newRow("other case") << date << "3.LAST.7.02:00:00"
                                << "";
    QTest::newRow("three fields") << date << "3.Last.7"
                                  << "";
    QTest::newRow("five fields") << date << "3.Last.7.02:00:00."
                                 << "";
    QTest::newRow("no time") << date << "3.Last.7."
                             << "";
    QTest::newRow("empty") << date << ""
                           << "";
    QTest::newRow("no date") << QDate() << kNorthStart << "";
}

void TestDisplayedTime::Boundaries()
{
    QFETCH(QDate, date);
    QFETCH(QString, rule);
    QFETCH(QString, boundary);
    const QDateTime found = m_composer->AnalyzeDaylightSavingTime(date, rule);
    QCOMPARE(found.isValid(), !boundary.isEmpty());
    QCOMPARE(QLocale::c().toString(found, QStringLiteral("yyyy-MM-ddThh:mm:ss")), boundary);
}

void TestDisplayedTime::HalvesOfTheDay_data()
{
    QTest::addColumn<QString>("instant");
    QTest::addColumn<QString>("half");
    QTest::newRow("midnight") << "2024-03-05T00:00:00"
                              << "AM";
    QTest::newRow("last second of the morning") << "2024-03-05T11:59:59"
                                                << "AM";
    QTest::newRow("noon") << "2024-03-05T12:00:00"
                          << "PM";
    QTest::newRow("last second of the day") << "2024-03-05T23:59:59"
                                            << "PM";
}

void TestDisplayedTime::HalvesOfTheDay()
{
    QFETCH(QString, instant);
    QFETCH(QString, half);
    SetUp();
    ChosenTime::Set(instant);
    Reading();
    QCOMPARE(m_composer->GetTimeAP(), half);
    // It answers from the last update of the time.
    ChosenTime::Advance(12 * 3600 * 1000);
    QCOMPARE(m_composer->GetTimeAP(), half);
    Reading();
    QVERIFY(m_composer->GetTimeAP() != half);
}

void TestDisplayedTime::PersianDateOfAnalogClock()
{
    m_glyphs->WriteAll();
    SetNumber("ClockType", 0);
    SetNumber("AnalogDateType", 7);
    SetUp();
    ChosenTime::Set("2024-03-20T12:00:00");
    QCOMPARE(Date(), DateColumns("1403", "01", "01"));
    // Each type of clock has its own date code.
    SetNumber("AnalogDateType", 0);
    SetNumber("DigitalDateType", 7);
    QCOMPARE(Date(), DateColumns("2024", "03", "20"));
    ChosenTime::Set("1993-03-20T12:00:00");
    SetNumber("AnalogDateType", 7);
    QCOMPARE(Date(), DateColumns("1993", "03", "20"));
    ChosenTime::Set("1993-03-21T00:00:00");
    QCOMPARE(Date(), DateColumns("1372", "01", "01"));
}

void TestDisplayedTime::WeekdayStaysGregorian()
{
    SetNumber("DigitalDateType", 7);
    SetUp();
    ChosenTime::Set("2024-03-20T12:00:00");
    QCOMPARE(Reading(), Utc("2024-03-20T12:00:00"));
    QCOMPARE(m_weekday, 3); // a Wednesday
}

void TestDisplayedTime::PersianDateFollowsTheAddedHour()
{
    m_glyphs->WriteAll();
    SetNumber("DigitalDateType", 7);
    SetDaylightSaving("3.1.7.00:00:00", kNorthEnd);
    SetUp();
    ChosenTime::Set("2024-03-19T22:59:59");
    QCOMPARE(Date(), DateColumns("1402", "12", "29"));
    ChosenTime::Advance(1000);
    QCOMPARE(Date(), DateColumns("1403", "01", "01"));
}

void TestDisplayedTime::PictureClockHasItsZoneAndNoImages()
{
    m_glyphs->WriteAll();
    SetNumber("ClockType", 2);
    SetText("TimeZone", "+08:00");
    SetUp();
    QCOMPARE(Reading(), Utc("2024-03-05T21:07:42"));
    QVERIFY(m_composer->GetDatePixmap().isNull());
    QVERIFY(m_composer->GetTimePixmap().isNull());
    QVERIFY(m_composer->GetWeeKPixmap().isNull());
    QVERIFY(m_composer->GetLunarPixmap().isNull());
    QVERIFY(m_composer->GetTopTextPixmap().isNull());
}

void TestDisplayedTime::NothingHappensWithoutNode()
{
    SetText("TimeZone", "+08:00");
    SetUp();
    m_composer->InitParameters(nullptr);
    QCOMPARE(Reading(), Utc("2024-03-05T21:07:42"));
    DrawClockClassifyImage fresh;
    QDateTime reading;
    QCOMPARE(fresh.CalculateTimeZone(reading), 2);
    QCOMPARE(reading, Utc("2024-03-05T13:07:42"));
}

// The offset and the images stay; what is read live reads as nothing.
void TestDisplayedTime::DeletedNode()
{
    m_glyphs->WriteAll();
    SetText("TimeZone", "+08:00");
    SetNumber("DigitalDateType", 7);
    SetNumber("DigitalTimeType", 1);
    SetNumber("DigitalMode", 1);
    SetDaylightSaving("1.1.1.00:00:00", "12.Last.1.00:00:00");
    SetUp();
    QCOMPARE(Reading(), Utc("2024-03-05T22:07:42"));
    QVERIFY(!m_composer->GetTimePixmap().isNull());
    m_node.reset();
    QCOMPARE(Reading(), Utc("2024-03-05T21:07:42"));
    QCOMPARE(Date(), DateColumns("2024", "03", "05"));
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTimePixmap()), QStringLiteral("2211:0077:4422"));
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetWeeKPixmap()), QStringLiteral("ww"));
    QVERIFY(!m_composer->GetLunarPixmap().isNull());
    QCOMPARE(LetteredGlyphs::Read(m_composer->GetTopTextPixmap()), QStringLiteral("LED"));
}

void TestDisplayedTime::FurthestTimes_data()
{
    constexpr long long kLatest = std::numeric_limits<long long>::max();
    constexpr long long kEarliest = std::numeric_limits<long long>::min();
    QTest::addColumn<long long>("milliseconds");
    QTest::addColumn<QString>("zone");
    QTest::newRow("latest, further east") << kLatest << "+23:59";
    QTest::newRow("latest") << kLatest << "+00:00";
    QTest::newRow("earliest, further west") << kEarliest << "-23:59";
    QTest::newRow("earliest") << kEarliest << "+00:00";
}

void TestDisplayedTime::FurthestTimes()
{
    QFETCH(long long, milliseconds);
    QFETCH(QString, zone);
    m_glyphs->WriteAll();
    SetText("TimeZone", zone);
    SetNumber("DigitalDateType", 7);
    SetDaylightSaving(kSouthStart, kSouthEnd);
    SetUp();
    ChosenTime::Set(QDateTime());
    ChosenTime::Milliseconds() = milliseconds;
    const int year = Reading().date().year();
    QVERIFY(milliseconds > 0 ? year > 100000000 : year < -100000000);
    QVERIFY(m_weekday >= 1 && m_weekday <= 7);
    QCOMPARE(m_composer->GetTimePixmap().width(), 14);
    QVERIFY(!m_composer->GetDatePixmap().isNull());
    QVERIFY(m_composer->GetLunarPixmap().isNull());
}

QTEST_MAIN(TestDisplayedTime)

#include "test_displayed_time.moc"
