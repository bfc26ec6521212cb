#include "calendar/calendar_deviations.h"
#include "calendar/persian_calendar.h"

#include <QFile>
#include <QTest>
#include <QVector>

#include <limits>

#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
#include <QCalendar>
#endif

using namespace Lw::HNodeClock;

namespace {

const QDate kFirstDay(1993, 3, 21);
const QDate kLastDay(2060, 12, 31);

// A year that the arithmetic rule begins a day early, with the days for which its answers are a day
// ahead.
struct Exception
{
    const char *name;
    int year;
    QDate first;
    QDate last;
};

const Exception kAheadOfEquinox[] = {
    {"1404 leap in place of 1403", 1404, QDate(2025, 3, 20), QDate(2026, 3, 20)},
    {"1437 leap in place of 1436", 1437, QDate(2058, 3, 20), QDate(2059, 3, 20)},
};

// Qt's own rule has 1437 leap as well.
const Exception kAheadOfQt[] = {
    {"1404 leap in place of 1403", 1404, QDate(2025, 3, 20), QDate(2026, 3, 20)},
};

// The days that begin the years from 1372 on, by the equinox.
QVector<QDate> ReadNewYears()
{
    QFile file(QStringLiteral(CLOCK_REFERENCE_DIR "/nowruz.csv"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    file.readLine();
    QVector<QDate> days;
    while (!file.atEnd()) {
        const QString row = QString::fromLatin1(file.readLine().trimmed());
        if (row.section(QLatin1Char(','), 0, 0).toInt() != 1372 + days.size())
            return {};
        days << QDate::fromString(row.section(QLatin1Char(','), 1), Qt::ISODate);
    }
    return days;
}

// The rule as it was first written down, in fractions of a cycle of 128 years. The product and the
// fraction, a multiple of 1/128, are exact in double and single precision.
float FractionOfCycle(qint64 value)
{
    const double cycles = static_cast<double>(value) * 0.0078125;
    return static_cast<float>(cycles - static_cast<double>(static_cast<qint64>(cycles)));
}

bool IsLeapByFractions(int year)
{
    const qint64 total = (qint64(year) + 38) * 31;
    if (FractionOfCycle(total) >= 0.31)
        return false;
    if (FractionOfCycle(total - 31) >= 0.31)
        return true;
    return FractionOfCycle(total + 31) < 0.31;
}

QString Text(int year, int month, int day)
{
    return QStringLiteral("%1-%2-%3").arg(year).arg(month).arg(day);
}

QString Text(const PersianDate &date)
{
    return Text(date.year, date.month, date.day);
}

// The date of the given day of a year, month by month.
QString TextOfDay(int year, int dayOfYear)
{
    int month = 1;
    for (; dayOfYear > (month <= 6 ? 31 : 30); ++month)
        dayOfYear -= month <= 6 ? 31 : 30;
    return Text(year, month, dayOfYear);
}

// The date that the rule gives by an exception; empty for a date that is none.
template<std::size_t Size>
QString TextByException(const Exception (&exceptions)[Size], const QDate &date)
{
    for (const Exception &exception : exceptions) {
        if (exception.first <= date && date <= exception.last)
            return TextOfDay(exception.year, static_cast<int>(exception.first.daysTo(date)) + 1);
    }
    return {};
}

QString TextByEquinox(const QVector<QDate> &newYears, const QDate &date)
{
    int i = newYears.size() - 1;
    while (newYears.at(i) > date)
        --i;
    return TextOfDay(1372 + i, static_cast<int>(newYears.at(i).daysTo(date)) + 1);
}

bool IsAmong(const QVector<DeviatingDays> &deviations, const QDate &date)
{
    return std::any_of(deviations.begin(), deviations.end(), [&date](const DeviatingDays &days) {
        return days.first <= date && date <= days.last;
    });
}

} // namespace

class TestPersianCalendar : public QObject
{
    Q_OBJECT

private slots:
    void EveryDayByEquinox();
    void EveryDayByQt();
    void EveryDeviationIsKnown();
    void KnownDays_data();
    void KnownDays();
    void Unconvertible_data();
    void Unconvertible();
    void LeapYears();
    void LeapYearsAsByFractions_data();
    void LeapYearsAsByFractions();
    void LeapAtTheEdges();
    void EveryYearIsWhole();
    void DistantDates_data();
    void DistantDates();
};

void TestPersianCalendar::EveryDayByEquinox()
{
    const QVector<QDate> newYears = ReadNewYears();
    QCOMPARE(newYears.size(), 2061 - 1993 + 1);
    for (QDate date = kFirstDay; date <= kLastDay; date = date.addDays(1)) {
        const QString byEquinox = TextByEquinox(newYears, date);
        const QString exception = TextByException(kAheadOfEquinox, date);
        QVERIFY2(exception != byEquinox, "an exception that is not needed");
        QCOMPARE(Text(ToPersianDate(date)), exception.isEmpty() ? byEquinox : exception);
    }
}

// Qt has this calendar since 5.14; with an older one there is only the sweep by equinoxes.
void TestPersianCalendar::EveryDayByQt()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    const QCalendar calendar(QCalendar::System::Jalali);
    for (QDate date = kFirstDay; date <= kLastDay; date = date.addDays(1)) {
        const auto parts = calendar.partsFromDate(date);
        const QString byQt = Text(parts.year, parts.month, parts.day);
        const QString exception = TextByException(kAheadOfQt, date);
        QVERIFY2(exception != byQt, "an exception that is not needed");
        QCOMPARE(Text(ToPersianDate(date)), exception.isEmpty() ? byQt : exception);
    }
#endif
}

void TestPersianCalendar::EveryDeviationIsKnown()
{
    const QVector<QDate> newYears = ReadNewYears();
    const QVector<DeviatingDays> deviations = PersianDeviations();
    for (QDate date = kFirstDay; date <= kLastDay; date = date.addDays(1)) {
        const bool isWrong = Text(ToPersianDate(date)) != TextByEquinox(newYears, date);
        QCOMPARE(IsAmong(deviations, date), isWrong);
    }
}

void TestPersianCalendar::KnownDays_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("persian");
    QTest::newRow("anchor") << QDate(1993, 3, 21) << "1372-1-1";
    QTest::newRow("day 186") << QDate(1993, 9, 22) << "1372-6-31";
    QTest::newRow("day 187") << QDate(1993, 9, 23) << "1372-7-1";
    QTest::newRow("end of a common year") << QDate(1994, 3, 20) << "1372-12-29";
    QTest::newRow("second year") << QDate(1994, 3, 21) << "1373-1-1";
    QTest::newRow("day 366 of a leap year") << QDate(1997, 3, 20) << "1375-12-30";
    QTest::newRow("year after a leap year") << QDate(1997, 3, 21) << "1376-1-1";
    QTest::newRow("new year 2024") << QDate(2024, 3, 20) << "1403-1-1";
    QTest::newRow("a day ahead begins") << QDate(2025, 3, 20) << "1404-1-1";
    QTest::newRow("a day ahead ends") << QDate(2026, 3, 20) << "1404-12-30";
    QTest::newRow("right again") << QDate(2026, 3, 21) << "1405-1-1";
}

void TestPersianCalendar::KnownDays()
{
    QFETCH(QDate, date);
    QTEST(Text(ToPersianDate(date)), "persian");
}

void TestPersianCalendar::Unconvertible_data()
{
    QTest::addColumn<QDate>("date");
    QTest::newRow("day before the anchor") << QDate(1993, 3, 20);
    QTest::newRow("1900") << QDate(1900, 1, 1);
    QTest::newRow("before Christ") << QDate(-4000, 1, 1);
    QTest::newRow("null") << QDate();
    QTest::newRow("30 February") << QDate(2024, 2, 30);
    QTest::newRow("latest") << QDate::fromJulianDay(Q_INT64_C(784354017364));
    QTest::newRow("earliest") << QDate::fromJulianDay(Q_INT64_C(-784350574879));
}

void TestPersianCalendar::Unconvertible()
{
    QFETCH(QDate, date);
    QCOMPARE(Text(ToPersianDate(date)), QStringLiteral("1372--1--1"));
}

void TestPersianCalendar::LeapYears()
{
    const QVector<int> expected = {1375, 1379, 1383, 1387, 1391, 1395,
                                   1399, 1404, 1408, 1412, 1416};
    QVector<int> leapYears;
    for (int year = 1372; year <= 1419; ++year) {
        if (IsPersianLeapYear(year))
            leapYears << year;
    }
    QCOMPARE(leapYears, expected);
}

void TestPersianCalendar::LeapYearsAsByFractions_data()
{
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("last");
    QTest::addColumn<int>("step");
    constexpr qint64 lowest = std::numeric_limits<int>::min();
    constexpr qint64 highest = std::numeric_limits<int>::max();
    QTest::newRow("a thousand cycles around the year 0") << -64000LL << 64000LL << 1;
    QTest::newRow("lowest years") << lowest << lowest + 1000 << 1;
    QTest::newRow("highest years") << highest - 1000 << highest << 1;
    // Odd, so that every place in the cycle is met.
    QTest::newRow("every 997th year of all") << lowest << highest << 997;
}

void TestPersianCalendar::LeapYearsAsByFractions()
{
    QFETCH(qint64, first);
    QFETCH(qint64, last);
    QFETCH(int, step);
    for (qint64 i = first; i <= last; i += step) {
        const int year = static_cast<int>(i);
        if (IsPersianLeapYear(year) != IsLeapByFractions(year))
            QFAIL(qPrintable(QString::number(year)));
    }
}

void TestPersianCalendar::LeapAtTheEdges()
{
    // 2147483647 + 38 is 37 modulo 128, and 37 * 31 is 123 modulo 128: not below 31.
    QVERIFY(!IsPersianLeapYear(std::numeric_limits<int>::max()));
    // Below -38 the fractions are negative, hence below 0.31: always leap.
    QVERIFY(IsPersianLeapYear(std::numeric_limits<int>::min()));
    QVERIFY(IsPersianLeapYear(-1000));
}

void TestPersianCalendar::EveryYearIsWhole()
{
    PersianDate previous = ToPersianDate(kFirstDay);
    for (QDate date = kFirstDay.addDays(1); date.year() < 3000; date = date.addDays(1)) {
        const PersianDate next = ToPersianDate(date);
        if (next.day == 1 && next.month == 1) {
            QCOMPARE(next.year, previous.year + 1);
            QCOMPARE(previous.month, 12);
            QCOMPARE(previous.day, IsPersianLeapYear(previous.year) ? 30 : 29);
        } else if (next.day == 1) {
            QCOMPARE(next.month, previous.month + 1);
            QCOMPARE(previous.day, previous.month <= 6 ? 31 : 30);
        } else {
            QCOMPARE(next.day, previous.day + 1);
        }
        previous = next;
    }
}

void TestPersianCalendar::DistantDates_data()
{
    QTest::addColumn<QDate>("date");
    QTest::newRow("whole cycles") << kFirstDay.addDays(Q_INT64_C(46751) * 1000);
    QTest::newRow("year 9999") << QDate(9999, 12, 31);
    QTest::newRow("year 1000000") << QDate(1000000, 6, 1);
    QTest::newRow("year 2147480000") << QDate(2147480000, 1, 1);
}

void TestPersianCalendar::DistantDates()
{
    QFETCH(QDate, date);
    // 128 Persian years have 46751 days, which brings the date near the anchor.
    constexpr qint64 kCycle = 46751;
    const qint64 cycles = kFirstDay.daysTo(date) / kCycle;
    const PersianDate near = ToPersianDate(date.addDays(-cycles * kCycle));
    QCOMPARE(Text(ToPersianDate(date)),
             Text(near.year + static_cast<int>(cycles * 128), near.month, near.day));
}

QTEST_GUILESS_MAIN(TestPersianCalendar)
#include "test_persian_calendar.moc"
