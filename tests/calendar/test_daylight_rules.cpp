#include "calendar/clock_time.h"

#include <QTest>
#include <QVector>

#include <limits>

using namespace Lw::HNodeClock;

namespace {

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

constexpr const char *kMalformedRules[] = {
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

} // namespace

class TestDaylightRules : public QObject
{
    Q_OBJECT

private slots:
    void HugeTexts();
    void MalformedRules_data();
    void MalformedRules();
    void RuleFields();
    void BoundariesOfYears_data();
    void BoundariesOfYears();
    void BoundaryIsTaggedUtc();
    void BoundaryOfEveryRule();
    void IncompleteRulesHaveNoBoundary();
    void BoundaryInYearOutOfRange();
    void DaylightPeriodHoldsTheTime_data();
    void DaylightPeriodHoldsTheTime();
    void ShiftInAndOutOfThePeriod_data();
    void ShiftInAndOutOfThePeriod();
    void NoShift_data();
    void NoShift();
    void ShiftFollowsTextsAndYears();
    void ShiftOutsideTheYears();
};

void TestDaylightRules::HugeTexts()
{
    constexpr int kHuge = 1 << 20;
    const QString digits(kHuge, QLatin1Char('1'));
    const QString points(kHuge, QLatin1Char('.'));
    const QString blanks(kHuge, QLatin1Char(' '));
    for (const QString &text : {digits, points, blanks})
        QVERIFY(!ParseDaylightRule(text));
    QVERIFY(!ParseDaylightRule(digits + QStringLiteral(".1.7.02:00:00")));
    QVERIFY(!ParseDaylightRule(QStringLiteral("3.1.7.") + digits));
    QCOMPARE(BoundaryText(blanks + kNorthStart, 2026), QStringLiteral("2026-03-29T02:00:00Z"));
}

void TestDaylightRules::MalformedRules_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : kMalformedRules)
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("null") << QString();
}

void TestDaylightRules::MalformedRules()
{
    QFETCH(QString, text);
    QVERIFY(!ParseDaylightRule(text));
}

void TestDaylightRules::RuleFields()
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

void TestDaylightRules::BoundariesOfYears_data()
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

void TestDaylightRules::BoundariesOfYears()
{
    QFETCH(QString, rule);
    QFETCH(int, year);
    QTEST(BoundaryText(rule, year), "boundary");
}

void TestDaylightRules::BoundaryIsTaggedUtc()
{
    QCOMPARE(BoundaryInYear(*ParseDaylightRule(kNorthStart), 2026).timeSpec(), Qt::UTC);
}

// Every rule of some years against a walk over the days of the month.
void TestDaylightRules::BoundaryOfEveryRule()
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

void TestDaylightRules::IncompleteRulesHaveNoBoundary()
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

void TestDaylightRules::BoundaryInYearOutOfRange()
{
    const DaylightRule rule = *ParseDaylightRule(kNorthStart);
    for (const int year :
         {0, -1, 10000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QVERIFY(!BoundaryInYear(rule, year).isValid());
}

void TestDaylightRules::DaylightPeriodHoldsTheTime_data()
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

void TestDaylightRules::DaylightPeriodHoldsTheTime()
{
    QFETCH(int, reading);
    QFETCH(int, start);
    QFETCH(int, end);
    QTEST(InDaylightPeriod(reading, start, end), "inside");
}

void TestDaylightRules::ShiftInAndOutOfThePeriod_data()
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

void TestDaylightRules::ShiftInAndOutOfThePeriod()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(QString, reading);
    DaylightSaving saving;
    QTEST(saving.ShiftSeconds(start, end, At(reading)), "seconds");
}

void TestDaylightRules::NoShift_data()
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

void TestDaylightRules::NoShift()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    DaylightSaving saving;
    for (qint64 reading = At("2026-01-01T00:00:00"); reading < At("2027-01-01T00:00:00");
         reading += 3600 * 1000)
        QCOMPARE(saving.ShiftSeconds(start, end, reading), 0);
}

void TestDaylightRules::ShiftFollowsTextsAndYears()
{
    DaylightSaving saving;
    const qint64 june = At("2026-06-15T12:00:00");
    QCOMPARE(saving.ShiftSeconds(kNorthStart, kNorthEnd, june), 3600);
    QCOMPARE(saving.ShiftSeconds(kSouthStart, kSouthEnd, june), 0);
    QCOMPARE(saving.ShiftSeconds(kNorthStart, QString(), june), 0);
    QCOMPARE(saving.ShiftSeconds(kNorthStart, kNorthEnd, june), 3600);
    QString sameText = kNorthStart;
    sameText.detach();
    QCOMPARE(saving.ShiftSeconds(sameText, kNorthEnd, june), 3600);
    // The boundary is on 29 March in 2026, on 28 March in 2027, on 30 March in 2025.
    QCOMPARE(saving.ShiftSeconds(kNorthStart, kNorthEnd, At("2027-03-28T02:00:00")), 3600);
    QCOMPARE(saving.ShiftSeconds(kNorthStart, kNorthEnd, At("2026-03-28T02:00:00")), 0);
    QCOMPARE(saving.ShiftSeconds(kNorthStart, kNorthEnd, At("2025-03-29T02:00:00")), 0);
    QCOMPARE(saving.ShiftSeconds(kNorthStart, kNorthEnd, At("2025-03-30T02:00:00")), 3600);
}

void TestDaylightRules::ShiftOutsideTheYears()
{
    DaylightSaving saving;
    const QString begin = QStringLiteral("1.1.1.00:00:00");
    const QString end = QStringLiteral("12.Last.5.00:00:00");
    const qint64 first = QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    const qint64 last = QDateTime(QDate(9999, 12, 30), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    QCOMPARE(saving.ShiftSeconds(begin, end, first), 3600);
    QCOMPARE(saving.ShiftSeconds(begin, end, first - 1), 0);
    QCOMPARE(saving.ShiftSeconds(begin, end, last), 3600);
    for (const qint64 reading :
         {std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max(),
          last + 300 * Q_INT64_C(86400000)})
        QCOMPARE(saving.ShiftSeconds(begin, end, reading), 0);
    QCOMPARE(saving.ShiftSeconds(begin, end, last), 3600);
}

QTEST_GUILESS_MAIN(TestDaylightRules)
#include "test_daylight_rules.moc"
