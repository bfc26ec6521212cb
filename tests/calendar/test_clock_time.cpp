#include "calendar/clock_time.h"

#include <QTest>

#include <limits>

using namespace Lw::HNodeClock;

namespace {

constexpr int kHuge = 1 << 20;

qint64 At(const QString &iso)
{
    return QDateTime::fromString(iso + QLatin1Char('Z'), Qt::ISODateWithMs).toMSecsSinceEpoch();
}

qint64 At(const char *iso)
{
    return At(QString::fromLatin1(iso));
}

QString BoundaryText(const QString &text, int year)
{
    const auto rule = ParseDaylightRule(text);
    return rule ? BoundaryInYear(*rule, year).toString(Qt::ISODate) : QStringLiteral("malformed");
}

const QString kNorthStart = QStringLiteral("3.Last.7.02:00:00");
const QString kNorthEnd = QStringLiteral("10.Last.7.03:00:00");
const QString kSouthStart = QStringLiteral("10.1.7.02:00:00");
const QString kSouthEnd = QStringLiteral("4.1.7.03:00:00");

} // namespace

class TestClockTime : public QObject
{
    Q_OBJECT

private slots:
    void timeOfDay_data();
    void timeOfDay();
    void zone_data();
    void zone();
    void adjustment_data();
    void adjustment();
    void clockOffset_data();
    void clockOffset();
    void hugeTexts();
    void malformedRules_data();
    void malformedRules();
    void ruleFields();
    void boundaries_data();
    void boundaries();
    void boundaryIsTaggedUtc();
    void boundaryOfEveryRule();
    void incompleteRulesHaveNoBoundary();
    void boundaryInYearOutOfRange();
    void period_data();
    void period();
    void shift_data();
    void shift();
    void noShift_data();
    void noShift();
    void shiftFollowsTextsAndYears();
    void shiftOutsideTheYears();
    void fieldsOfKnownReadings_data();
    void fieldsOfKnownReadings();
    void fieldsAgreeWithDateTime();
    void fieldsAtTheEdges();
};

void TestClockTime::timeOfDay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QTime>("time");
    QTest::newRow("midnight") << "00:00:00" << QTime(0, 0);
    QTest::newRow("afternoon") << "13:05:09" << QTime(13, 5, 9);
    QTest::newRow("last second") << "23:59:59" << QTime(23, 59, 59);
    QTest::newRow("hour 24") << "24:00:00" << QTime();
    QTest::newRow("minute 60") << "12:60:00" << QTime();
    QTest::newRow("second 60") << "23:59:60" << QTime();
    QTest::newRow("one-digit hour") << "2:00:00" << QTime();
    QTest::newRow("one-digit second") << "02:00:0" << QTime();
    QTest::newRow("no seconds") << "02:00" << QTime();
    QTest::newRow("milliseconds") << "02:00:00.5" << QTime();
    QTest::newRow("leading blank") << " 02:00:00" << QTime();
    QTest::newRow("trailing blank") << "02:00:00 " << QTime();
    QTest::newRow("trailing newline") << "02:00:00\n" << QTime();
    QTest::newRow("negative") << "-2:00:00" << QTime();
    QTest::newRow("other separators") << "02-00-00" << QTime();
    QTest::newRow("letters") << "ab:cd:ef" << QTime();
    QTest::newRow("Arabic digits") << QString(QStringLiteral(u"\u0660\u0662:00:00")) << QTime();
    QTest::newRow("empty") << "" << QTime();
    QTest::newRow("null") << QString() << QTime();
}

void TestClockTime::timeOfDay()
{
    QFETCH(QString, text);
    QTEST(ParseTimeOfDay(text), "time");
}

void TestClockTime::zone_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("seconds");
    QTest::newRow("two-digit hour") << "+08:00" << 28800;
    QTest::newRow("one-digit hour") << "+8:00" << 28800;
    QTest::newRow("negative half hour") << "-05:30" << -19800;
    QTest::newRow("negative, one digit") << "-5:30" << -19800;
    QTest::newRow("three quarters") << "+12:45" << 45900;
    QTest::newRow("zero") << "+00:00" << 0;
    QTest::newRow("minus zero") << "-00:00" << 0;
    QTest::newRow("largest") << "+23:59" << 86340;
    QTest::newRow("smallest") << "-23:59" << -86340;
    QTest::newRow("blank for the sign") << " 08:00" << 28800;
    QTest::newRow("letter for the sign") << "x08:00" << 28800;
    QTest::newRow("minus sign of typography") << QString(QStringLiteral(u"\u221208:00")) << 28800;
    // Without a sign the first digit is taken for one.
    QTest::newRow("08:00 reads 8:00") << "08:00" << 28800;
    QTest::newRow("12:30 reads 2:30") << "12:30" << 9000;
    QTest::newRow("10:00 reads 0:00") << "10:00" << 0;
    QTest::newRow("19:00 reads 9:00") << "19:00" << 32400;
    QTest::newRow("8:00 reads :00") << "8:00" << 0;
    QTest::newRow("name before the sign") << "UTC+08:00" << 0;
    QTest::newRow("no colon") << "+0800" << 0;
    QTest::newRow("hours only") << "+08" << 0;
    QTest::newRow("hour 24") << "+24:00" << 0;
    QTest::newRow("minute 60") << "+08:60" << 0;
    QTest::newRow("one-digit minute") << "+08:5" << 0;
    QTest::newRow("seconds") << "+08:00:00" << 0;
    QTest::newRow("trailing blank") << "+08:00 " << 0;
    QTest::newRow("two signs") << "--8:00" << 0;
    QTest::newRow("letters") << "+ab:cd" << 0;
    QTest::newRow("sign alone") << "-" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("null") << QString() << 0;
}

void TestClockTime::zone()
{
    QFETCH(QString, text);
    QTEST(ParseZoneOffset(text), "seconds");
}

void TestClockTime::adjustment_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("seconds");
    QTest::newRow("none") << "00A00B00" << 0;
    QTest::newRow("hours, minutes, seconds") << "01A30B15" << 5415;
    QTest::newRow("other separators") << "01:30:15" << 5415;
    QTest::newRow("digits for separators") << "01930915" << 5415;
    QTest::newRow("beyond a day") << "24A00B00" << 86400;
    QTest::newRow("no limits") << "99A99B99" << 362439;
    QTest::newRow("sign in a field") << "-1A00B00" << -3600;
    QTest::newRow("plus in a field") << "00A+5B00" << 300;
    QTest::newRow("blank in a field") << " 1A00B02" << 3602;
    QTest::newRow("hours are letters") << "xxA30B15" << 1815;
    QTest::newRow("minutes are letters") << "01AxxB15" << 3615;
    QTest::newRow("seconds are letters") << "01A30Bxx" << 5400;
    QTest::newRow("short") << "01A3" << 3780;
    QTest::newRow("hours only") << "01" << 3600;
    QTest::newRow("one digit a field") << "1A2B3" << 0; // fields "1A", "B3" and none
    QTest::newRow("longer") << "01A30B159" << 5415;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("null") << QString() << 0;
}

void TestClockTime::adjustment()
{
    QFETCH(QString, text);
    QTEST(ParseAdjustment(text), "seconds");
}

void TestClockTime::clockOffset_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("adjustment");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("seconds");
    QTest::newRow("added") << "+08:00"
                           << "01A30B15" << 0 << 34215;
    QTest::newRow("subtracted") << "+08:00"
                                << "01A30B15" << 1 << 23385;
    QTest::newRow("type 2 adds") << "+08:00"
                                 << "01A30B15" << 2 << 34215;
    QTest::newRow("type -1 adds") << "+08:00"
                                  << "01A30B15" << -1 << 34215;
    QTest::newRow("negative zone") << "-05:30"
                                   << "00A00B30" << 1 << -19830;
    QTest::newRow("bad zone keeps the adjustment") << "nowhere"
                                                   << "00A01B00" << 0 << 60;
    QTest::newRow("bad adjustment keeps the zone") << "+01:00"
                                                   << "never" << 1 << 3600;
}

void TestClockTime::clockOffset()
{
    QFETCH(QString, zone);
    QFETCH(QString, adjustment);
    QFETCH(int, type);
    QTEST(ClockOffset(zone, adjustment, type), "seconds");
}

void TestClockTime::hugeTexts()
{
    const QString digits(kHuge, QLatin1Char('1'));
    const QString points(kHuge, QLatin1Char('.'));
    const QString blanks(kHuge, QLatin1Char(' '));
    for (const QString &text : {digits, points, blanks}) {
        QCOMPARE(ParseZoneOffset(text), 0);
        QVERIFY(!ParseTimeOfDay(text).isValid());
        QVERIFY(!ParseDaylightRule(text));
    }
    QCOMPARE(ParseAdjustment(digits), 11 * 3600 + 11 * 60 + 11);
    QVERIFY(!ParseDaylightRule(digits + QStringLiteral(".1.7.02:00:00")));
    QVERIFY(!ParseDaylightRule(QStringLiteral("3.1.7.") + digits));
    QCOMPARE(BoundaryText(blanks + kNorthStart, 2026), QStringLiteral("2026-03-29T02:00:00Z"));
}

void TestClockTime::malformedRules_data()
{
    QTest::addColumn<QString>("text");
    const char *texts[] = {
        "",
        " ",
        ".",
        "...",
        "3.Last.7",
        "3.Last.7.02:00:00.",
        ".3.Last.7.02:00:00",
        "3.Last.7.02.00.00",
        "3,Last,7,02:00:00",
        "0.Last.7.02:00:00",
        "13.Last.7.02:00:00",
        "-3.Last.7.02:00:00",
        "March.Last.7.02:00:00",
        ".Last.7.02:00:00",
        "4294967299.Last.7.02:00:00", // 3 when wrapped to 32 bits
        "99999999999999999999.1.7.02:00:00",
        "0x3.1.7.02:00:00",
        "3.0.7.02:00:00",
        "3.6.7.02:00:00",
        "3.-1.7.02:00:00",
        "3..7.02:00:00",
        "3.last.7.02:00:00",
        "3.LAST.7.02:00:00",
        "3. Last.7.02:00:00",
        "3.Last .7.02:00:00",
        "3.First.7.02:00:00",
        "3.1.0.02:00:00",
        "3.1.8.02:00:00",
        "3.1.-7.02:00:00",
        "3.1..02:00:00",
        "3.1.Sunday.02:00:00",
        "3.1.7.",
        "3.1.7.02:00",
        "3.1.7.2:00:00",
        "3.1.7.24:00:00",
        "3.1.7.02:60:00",
        "3.1.7.02:00:60",
        "3.1.7. 02:00:00",
        "3.1.7.noon",
    };
    for (const char *text : texts)
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("null") << QString();
}

void TestClockTime::malformedRules()
{
    QFETCH(QString, text);
    QVERIFY(!ParseDaylightRule(text));
}

void TestClockTime::ruleFields()
{
    const auto last = ParseDaylightRule(QStringLiteral("3.Last.7.02:00:00"));
    QVERIFY(last);
    QCOMPARE(last->month, 3);
    QCOMPARE(last->occurrence, static_cast<int>(DaylightRule::kLast));
    QCOMPARE(last->weekday, 7);
    QCOMPARE(last->time, QTime(2, 0));

    const auto blanks = ParseDaylightRule(QStringLiteral(" +10 . 02 .\t6.23:59:59"));
    QVERIFY(blanks);
    QCOMPARE(blanks->month, 10);
    QCOMPARE(blanks->occurrence, 2);
    QCOMPARE(blanks->weekday, 6);
    QCOMPARE(blanks->time, QTime(23, 59, 59));
}

void TestClockTime::boundaries_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("year");
    QTest::addColumn<QString>("boundary");
    const auto row = [](const char *name, const char *rule, int year, const char *boundary) {
        QTest::newRow(name) << QString::fromLatin1(rule) << year << QString::fromLatin1(boundary);
    };
    row("last Sunday of March", "3.Last.7.02:00:00", 2026, "2026-03-29T02:00:00Z");
    row("last day is the last Sunday", "3.Last.7.02:00:00", 2024, "2024-03-31T02:00:00Z");
    row("last Sunday of October", "10.Last.7.03:00:00", 2026, "2026-10-25T03:00:00Z");
    row("first Sunday", "10.1.7.03:00:00", 2026, "2026-10-04T03:00:00Z");
    row("first day is the first Sunday", "11.1.7.01:00:00", 2026, "2026-11-01T01:00:00Z");
    row("second Sunday", "3.2.7.02:00:00", 2026, "2026-03-08T02:00:00Z");
    row("fourth Friday", "3.4.5.02:00:00", 2026, "2026-03-27T02:00:00Z");
    row("fifth Sunday exists", "3.5.7.02:00:00", 2026, "2026-03-29T02:00:00Z");
    row("fifth Sunday does not exist", "4.5.7.02:00:00", 2026, "");
    row("last of a month with four", "4.Last.7.02:00:00", 2026, "2026-04-26T02:00:00Z");
    row("fifth day of a common February", "2.5.7.00:00:00", 2026, "");
    row("fifth Thursday of a leap February", "2.5.4.00:00:00", 2024, "2024-02-29T00:00:00Z");
    row("last Thursday of a leap February", "2.Last.4.00:00:00", 2024, "2024-02-29T00:00:00Z");
    row("last Wednesday of a leap February", "2.Last.3.00:00:00", 2024, "2024-02-28T00:00:00Z");
    row("last Saturday of a common February", "2.Last.6.00:00:00", 2026, "2026-02-28T00:00:00Z");
    row("Monday", "1.1.1.00:00:00", 2026, "2026-01-05T00:00:00Z");
    row("end of the year", "12.Last.4.23:59:59", 2026, "2026-12-31T23:59:59Z");
    row("begin of the year", "1.1.4.00:00:00", 2026, "2026-01-01T00:00:00Z");
    row("first year", "1.1.1.00:00:00", 1, "0001-01-01T00:00:00Z");
    row("last year", "12.Last.5.00:00:00", 9999, "9999-12-31T00:00:00Z");
}

void TestClockTime::boundaries()
{
    QFETCH(QString, rule);
    QFETCH(int, year);
    QTEST(BoundaryText(rule, year), "boundary");
}

void TestClockTime::boundaryIsTaggedUtc()
{
    QCOMPARE(BoundaryInYear(*ParseDaylightRule(kNorthStart), 2026).timeSpec(), Qt::UTC);
}

// Every rule of some years against a walk over the days of the month.
void TestClockTime::boundaryOfEveryRule()
{
    for (int year = 1999; year <= 2028; ++year) {
        for (QDate first(year, 1, 1); first.year() == year; first = first.addMonths(1)) {
            for (int weekday = 1; weekday <= 7; ++weekday) {
                QVector<QDate> matches;
                for (QDate date = first; date.month() == first.month(); date = date.addDays(1)) {
                    if (date.dayOfWeek() == weekday)
                        matches << date;
                }
                const QTime noon(12, 0);
                for (int count = 1; count <= 5; ++count)
                    QCOMPARE(BoundaryInYear({first.month(), count, weekday, noon}, year).date(),
                             matches.value(count - 1));
                QCOMPARE(BoundaryInYear({first.month(), DaylightRule::kLast, weekday, noon}, year)
                             .date(),
                         matches.last());
            }
        }
    }
}

void TestClockTime::incompleteRulesHaveNoBoundary()
{
    constexpr int kMax = std::numeric_limits<int>::max();
    constexpr int kMin = std::numeric_limits<int>::min();
    const QTime noon(12, 0);
    QVERIFY(BoundaryInYear({3, 1, 7, noon}, 2026).isValid());
    QVERIFY(!BoundaryInYear({}, 2026).isValid());
    QVERIFY(!BoundaryInYear({3, 1, 7, QTime()}, 2026).isValid());
    for (const int number : {0, -2, 13, kMax, kMin}) {
        QVERIFY(!BoundaryInYear({number, 1, 7, noon}, 2026).isValid());
        QVERIFY(!BoundaryInYear({3, number, 7, noon}, 2026).isValid());
        QVERIFY(!BoundaryInYear({3, 1, number, noon}, 2026).isValid());
    }
}

void TestClockTime::boundaryInYearOutOfRange()
{
    const DaylightRule rule = *ParseDaylightRule(kNorthStart);
    for (const int year :
         {0, -1, 10000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QVERIFY(!BoundaryInYear(rule, year).isValid());
}

void TestClockTime::period_data()
{
    QTest::addColumn<int>("reading");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<bool>("inside");
    QTest::newRow("before start") << 9 << 10 << 20 << false;
    QTest::newRow("at start") << 10 << 10 << 20 << true;
    QTest::newRow("last before end") << 19 << 10 << 20 << true;
    QTest::newRow("at end") << 20 << 10 << 20 << false;
    QTest::newRow("wrapped, before end") << 9 << 20 << 10 << true;
    QTest::newRow("wrapped, at end") << 10 << 20 << 10 << false;
    QTest::newRow("wrapped, last before start") << 19 << 20 << 10 << false;
    QTest::newRow("wrapped, at start") << 20 << 20 << 10 << true;
    QTest::newRow("equal boundaries, at them") << 10 << 10 << 10 << false;
    QTest::newRow("equal boundaries, before") << 9 << 10 << 10 << false;
    QTest::newRow("equal boundaries, after") << 11 << 10 << 10 << false;
}

void TestClockTime::period()
{
    QFETCH(int, reading);
    QFETCH(int, start);
    QFETCH(int, end);
    QTEST(InDaylightPeriod(reading, start, end), "inside");
}

void TestClockTime::shift_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("reading");
    QTest::addColumn<int>("seconds");
    const auto north = [](const char *name, const char *reading, int seconds) {
        QTest::newRow(name) << kNorthStart << kNorthEnd << QString::fromLatin1(reading) << seconds;
    };
    const auto south = [](const char *name, const char *reading, int seconds) {
        QTest::newRow(name) << kSouthStart << kSouthEnd << QString::fromLatin1(reading) << seconds;
    };
    north("north, winter", "2026-01-15T12:00:00", 0);
    north("north, last second of winter", "2026-03-29T01:59:59.999", 0);
    north("north, start", "2026-03-29T02:00:00", 3600);
    north("north, summer", "2026-07-01T00:00:00", 3600);
    north("north, last second of summer", "2026-10-25T02:59:59.999", 3600);
    north("north, end", "2026-10-25T03:00:00", 0);
    north("north, last second of the year", "2026-12-31T23:59:59.999", 0);
    south("south, new year", "2026-01-01T00:00:00", 3600);
    south("south, last second of summer", "2026-04-05T02:59:59.999", 3600);
    south("south, end", "2026-04-05T03:00:00", 0);
    south("south, June", "2026-06-15T12:00:00", 0);
    south("south, last second of winter", "2026-10-04T01:59:59.999", 0);
    south("south, start", "2026-10-04T02:00:00", 3600);
    south("south, last second of the year", "2026-12-31T23:59:59.999", 3600);
}

void TestClockTime::shift()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(QString, reading);
    DaylightSaving saving;
    QTEST(saving.ShiftSeconds(true, start, end, At(reading)), "seconds");
    QCOMPARE(saving.ShiftSeconds(false, start, end, At(reading)), 0);
}

void TestClockTime::noShift_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::newRow("both empty") << ""
                                << "";
    QTest::newRow("start empty") << "" << kNorthEnd;
    QTest::newRow("end empty") << kNorthStart << "";
    QTest::newRow("both malformed") << "x"
                                    << "y";
    QTest::newRow("start malformed") << "3.last.7.02:00:00" << kNorthEnd;
    QTest::newRow("end malformed") << kNorthStart << "10.Last.7.3:00:00";
    QTest::newRow("start on a day that is not there") << "4.5.7.02:00:00" << kNorthEnd;
    QTest::newRow("end on a day that is not there") << kNorthStart << "9.5.7.02:00:00";
    QTest::newRow("equal") << kNorthStart << kNorthStart;
    QTest::newRow("equal, written differently") << "3.5.7.02:00:00" << kNorthStart;
}

void TestClockTime::noShift()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    DaylightSaving saving;
    for (qint64 reading = At("2026-01-01T00:00:00"); reading < At("2027-01-01T00:00:00");
         reading += 3600 * 1000)
        QCOMPARE(saving.ShiftSeconds(true, start, end, reading), 0);
}

void TestClockTime::shiftFollowsTextsAndYears()
{
    DaylightSaving saving;
    const qint64 june = At("2026-06-15T12:00:00");
    QCOMPARE(saving.ShiftSeconds(true, kNorthStart, kNorthEnd, june), 3600);
    QCOMPARE(saving.ShiftSeconds(true, kSouthStart, kSouthEnd, june), 0);
    QCOMPARE(saving.ShiftSeconds(true, kNorthStart, QString(), june), 0);
    QCOMPARE(saving.ShiftSeconds(true, kNorthStart, kNorthEnd, june), 3600);
    QString sameText = kNorthStart;
    sameText.detach();
    QCOMPARE(saving.ShiftSeconds(true, sameText, kNorthEnd, june), 3600);
    // The boundary lies on 29 March in 2026, on 28 March in 2027, on 30 March in 2025.
    QCOMPARE(saving.ShiftSeconds(true, kNorthStart, kNorthEnd, At("2027-03-28T02:00:00")), 3600);
    QCOMPARE(saving.ShiftSeconds(true, kNorthStart, kNorthEnd, At("2026-03-28T02:00:00")), 0);
    QCOMPARE(saving.ShiftSeconds(true, kNorthStart, kNorthEnd, At("2025-03-29T02:00:00")), 0);
    QCOMPARE(saving.ShiftSeconds(true, kNorthStart, kNorthEnd, At("2025-03-30T02:00:00")), 3600);
}

void TestClockTime::shiftOutsideTheYears()
{
    DaylightSaving saving;
    const QString begin = QStringLiteral("1.1.1.00:00:00");
    const QString end = QStringLiteral("12.Last.5.00:00:00");
    const qint64 first = QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    const qint64 last = QDateTime(QDate(9999, 12, 30), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    QCOMPARE(saving.ShiftSeconds(true, begin, end, first), 3600);
    QCOMPARE(saving.ShiftSeconds(true, begin, end, first - 1), 0);
    QCOMPARE(saving.ShiftSeconds(true, begin, end, last), 3600);
    for (const qint64 reading :
         {std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max(),
          last + 300 * Q_INT64_C(86400000)})
        QCOMPARE(saving.ShiftSeconds(true, begin, end, reading), 0);
    QCOMPARE(saving.ShiftSeconds(true, begin, end, last), 3600);
}

void TestClockTime::fieldsOfKnownReadings_data()
{
    QTest::addColumn<qint64>("reading");
    QTest::addColumn<QString>("fields");
    QTest::newRow("epoch") << Q_INT64_C(0) << "1970-1-1 0:0:0 4";
    QTest::newRow("before the epoch") << Q_INT64_C(-1) << "1969-12-31 23:59:59 3";
    QTest::newRow("a day before the epoch") << Q_INT64_C(-86400000) << "1969-12-31 0:0:0 3";
    QTest::newRow("leap day") << At("2024-02-29T23:59:59.999") << "2024-2-29 23:59:59 4";
    QTest::newRow("Sunday") << At("2024-03-03T12:34:56") << "2024-3-3 12:34:56 7";
    QTest::newRow("after 2038") << At("2038-01-19T03:14:08") << "2038-1-19 3:14:8 2";
}

void TestClockTime::fieldsOfKnownReadings()
{
    QFETCH(qint64, reading);
    const DisplayedFields f = SplitReading(reading);
    QTEST(QStringLiteral("%1-%2-%3 %4:%5:%6 %7")
              .arg(f.year)
              .arg(f.month)
              .arg(f.day)
              .arg(f.hour)
              .arg(f.minute)
              .arg(f.second)
              .arg(f.dayOfWeek),
          "fields");
}

void TestClockTime::fieldsAgreeWithDateTime()
{
    const qint64 first = QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    const qint64 last = QDateTime(QDate(9999, 12, 31), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    constexpr qint64 kStep = Q_INT64_C(1000003) * 1009; // some eleven days and odd milliseconds
    for (qint64 reading = first; reading <= last; reading += kStep) {
        const QDateTime expected = QDateTime::fromMSecsSinceEpoch(reading, Qt::UTC);
        const DisplayedFields fields = SplitReading(reading);
        QCOMPARE(QDate(fields.year, fields.month, fields.day), expected.date());
        QCOMPARE(fields.dayOfWeek, expected.date().dayOfWeek());
        QCOMPARE(fields.hour, expected.time().hour());
        QCOMPARE(fields.minute, expected.time().minute());
        QCOMPARE(fields.second, expected.time().second());
    }
}

void TestClockTime::fieldsAtTheEdges()
{
    // The range of the milliseconds ends in the years -292275056 and 292278994.
    const DisplayedFields latest = SplitReading(std::numeric_limits<qint64>::max());
    QCOMPARE(latest.year, 292278994);
    QCOMPARE(latest.month, 8);
    QCOMPARE(latest.day, 17);
    QCOMPARE(latest.hour, 7);
    const DisplayedFields earliest = SplitReading(std::numeric_limits<qint64>::min());
    QCOMPARE(earliest.year, -292275056);
    QCOMPARE(earliest.month, 5);
    QCOMPARE(earliest.day, 16);
    QCOMPARE(earliest.hour, 16);
}

QTEST_GUILESS_MAIN(TestClockTime)
#include "test_clock_time.moc"
