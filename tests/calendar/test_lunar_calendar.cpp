// The lunar date of every day against a computed calendar, and the host's functions over it.
#include "calendar/calendar_deviations.h"
#include "calendar/lunar_calendar.h"
#include "calendar/lunar_date.h"

#include <QDate>
#include <QFile>
#include <QTest>
#include <QVector>

#include <limits>

using namespace Lw::HNodeClock;

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();

const QDate kFirstDay(1900, 2, 1);
const QDate kLastDay(2051, 2, 10);
const QDate kTableBegin(1900, 1, 31); // the first day of the first month of lunar_months.csv

struct LunarDay
{
    int year = 0;
    int month = 0;
    int leap = 0;
    int day = 0;
    int monthDays = 0;

    bool operator!=(const LunarDay &other) const
    {
        return year != other.year || month != other.month || leap != other.leap || day != other.day;
    }
};

// A run of days for which the product's table departs from the calendar: one month of the table,
// or the wrong part of it.
struct Exception
{
    const char *name;
    QDate first;
    int days;
    LunarDay date; // of the first day
};

// All that the table has wrong, month by month; every day of every row differs from the calendar.
const Exception kExceptions[] = {
    // The new moon of 23 April 1906 came at 23:52 by the mean time of Beijing, past midnight by
    // UTC+8.
    {"1906 month 3 ends a day late", QDate(1906, 4, 23), 1, {1906, 3, 0, 30, 30}},
    {"1906 month 4 is a day behind", QDate(1906, 4, 24), 29, {1906, 4, 0, 1, 29}},
    {"1933 month 6 is a day ahead", QDate(1933, 7, 22), 30, {1933, 6, 0, 1, 30}},
    {"1996 month 6 is a day ahead", QDate(1996, 7, 15), 30, {1996, 6, 0, 1, 30}},
    {"1996 month 8 is a day ahead", QDate(1996, 9, 12), 30, {1996, 8, 0, 1, 30}},
    {"2033 leap month 7 in place of month 8", QDate(2033, 8, 25), 29, {2033, 7, 1, 1, 29}},
    {"2033 month 8 in place of 9", QDate(2033, 9, 23), 30, {2033, 8, 0, 1, 30}},
    {"2033 month 9 in place of 10", QDate(2033, 10, 23), 30, {2033, 9, 0, 1, 30}},
    {"2033 month 10 in place of 11", QDate(2033, 11, 22), 30, {2033, 10, 0, 1, 30}},
    {"2033 month 11 in place of leap month 11", QDate(2033, 12, 22), 29, {2033, 11, 0, 1, 29}},
};

// The months of the calendar, day by day from kTableBegin.
QVector<LunarDay> ReadCalendar()
{
    QFile file(QStringLiteral(CLOCK_REFERENCE_DIR "/lunar_months.csv"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    file.readLine();
    QVector<LunarDay> days;
    while (!file.atEnd()) {
        const QList<QByteArray> row = file.readLine().trimmed().split(',');
        const QDate first = QDate::fromString(QString::fromLatin1(row.at(0)), Qt::ISODate);
        if (kTableBegin.daysTo(first) != days.size())
            return {};
        const int length = row.at(4).toInt();
        for (int day = 1; day <= length; ++day)
            days.append({row.at(1).toInt(), row.at(2).toInt(), row.at(3).toInt(), day, length});
    }
    return days;
}

int IndexOf(const QDate &date)
{
    return static_cast<int>(kTableBegin.daysTo(date));
}

// A month's length is the distance of the first days around it, which exceptions move.
void SetMonthLengths(QVector<LunarDay> &days)
{
    int begin = 0;
    for (int i = 1; i <= days.size(); ++i) {
        if (i < days.size() && days.at(i).day != 1)
            continue;
        for (int j = begin; j < i; ++j)
            days[j].monthDays = i - begin;
        begin = i;
    }
}

QVector<LunarDay> ExpectedDays()
{
    QVector<LunarDay> days = ReadCalendar();
    for (const Exception &exception : kExceptions) {
        for (int i = 0; i < exception.days; ++i) {
            LunarDay date = exception.date;
            date.day += i;
            days[IndexOf(exception.first) + i] = date;
        }
    }
    SetMonthLengths(days);
    return days;
}

QByteArray TextOf(const LunarDay &date)
{
    return QByteArray::number(date.month) + '$'
        + QByteArray::number(date.day).rightJustified(2, '0');
}

QByteArray Ask(const QDate &date)
{
    return LunarCalendarSetup(date.year(), date.month(), date.day());
}

} // namespace

class TestLunarCalendar : public QObject
{
    Q_OBJECT

private slots:
    void BufferIsEmptyAtFirst();
    void CalendarFileIsWhole();
    void ExceptionsAreNeeded();
    void EveryDay();
    void EveryDeviationIsKnown();
    void EveryAnswerOfTheEntryPoint();
    void NoDateOutsideTheTable();
    void EveryFirstOfMonth();
    void KnownDays_data();
    void KnownDays();
    void DayOutsideMonthKeepsAnswer_data();
    void DayOutsideMonthKeepsAnswer();
    void OutOfRange_data();
    void OutOfRange();
    void DaysOfTheTable_data();
    void DaysOfTheTable();
    void SubMenueReadsGlobals();
    void SetupLeavesDayAlone();
};

void TestLunarCalendar::BufferIsEmptyAtFirst()
{
    QCOMPARE(returnstr[0], '\0');
    QCOMPARE(LunarCalendarSetup(2023, 6, 31), static_cast<char *>(returnstr));
    QCOMPARE(returnstr[0], '\0');
}

void TestLunarCalendar::CalendarFileIsWhole()
{
    const QVector<LunarDay> days = ReadCalendar();
    QCOMPARE(days.size(), IndexOf(kLastDay) + 1);
    QCOMPARE(days.last().year, 2050);
    QCOMPARE(days.last().month, 12);
    QCOMPARE(days.last().day, days.last().monthDays);
}

void TestLunarCalendar::ExceptionsAreNeeded()
{
    const QVector<LunarDay> calendar = ReadCalendar();
    const QVector<LunarDay> expected = ExpectedDays();
    QCOMPARE(calendar.size(), expected.size());
    for (const Exception &exception : kExceptions) {
        const int first = IndexOf(exception.first);
        for (int i = first; i < first + exception.days; ++i)
            QVERIFY2(calendar.at(i) != expected.at(i), exception.name);
    }
}

void TestLunarCalendar::EveryDay()
{
    const QVector<LunarDay> expected = ExpectedDays();
    for (QDate date = kFirstDay; date <= kLastDay; date = date.addDays(1)) {
        const LunarDay &day = expected.at(IndexOf(date));
        const LunarDate answer = LunarDateOf(date);
        const LunarDay found {answer.year, answer.month, answer.isLeapMonth ? 1 : 0, answer.day,
                              answer.monthDays};
        if (found != day || found.monthDays != day.monthDays)
            QFAIL(qPrintable(date.toString(Qt::ISODate)));
    }
}

// Those of month and day, which are shown. What 1906 has depends on whose midnight is meant.
void TestLunarCalendar::EveryDeviationIsKnown()
{
    const QVector<LunarDay> calendar = ReadCalendar();
    QVector<DeviatingDays> deviations = LunarDeviations();
    QCOMPARE(deviations.takeLast().first, kLastDay.addDays(1));
    QVector<DeviatingDays> found;
    for (QDate date(1907, 1, 1); date <= kLastDay; date = date.addDays(1)) {
        const LunarDay &day = calendar.at(IndexOf(date));
        const LunarDate answer = LunarDateOf(date);
        if (answer.month == day.month && answer.day == day.day)
            continue;
        if (found.isEmpty() || found.last().last.addDays(1) != date)
            found.append({date, date});
        found.last().last = date;
    }
    QCOMPARE(found.size(), deviations.size());
    for (int i = 0; i < found.size(); ++i) {
        QCOMPARE(deviations[i].first, found[i].first);
        QCOMPARE(deviations[i].last, found[i].last);
    }
}

void TestLunarCalendar::EveryAnswerOfTheEntryPoint()
{
    const QVector<LunarDay> expected = ExpectedDays();
    for (QDate date = kFirstDay; date <= kLastDay; date = date.addDays(1)) {
        const QByteArray text = Ask(date);
        if (text != TextOf(expected.at(IndexOf(date))))
            QFAIL(qPrintable(date.toString(Qt::ISODate) + QLatin1String(" answers ")
                             + QLatin1String(text)));
    }
}

void TestLunarCalendar::NoDateOutsideTheTable()
{
    QVERIFY(!LunarDateOf(kFirstDay.addDays(-1)).IsValid());
    QVERIFY(!LunarDateOf(kLastDay.addDays(1)).IsValid());
    QVERIFY(!LunarDateOf(QDate()).IsValid());
    QVERIFY(!LunarDateOf(QDate::fromJulianDay(Q_INT64_C(784354017364))).IsValid());
    QVERIFY(!LunarDateOf(QDate::fromJulianDay(Q_INT64_C(-784350574879))).IsValid());
}

void TestLunarCalendar::EveryFirstOfMonth()
{
    const QVector<LunarDay> expected = ExpectedDays();
    for (QDate date = kFirstDay; date <= kLastDay; date = date.addMonths(1)) {
        Lunar_info info;
        Chinese_era era;
        get_lunar_info(date.year(), date.month(), &info, &era);
        const LunarDay &day = expected.at(IndexOf(date));
        QCOMPARE(info.year, day.year);
        QCOMPARE(info.month, day.month);
        QCOMPARE(info.day, day.day);
        QCOMPARE(info.isLeap, day.leap);
        QCOMPARE(info.monthDays, day.monthDays);
        QCOMPARE(info.leapMonth, get_leap_month(day.year));
        QCOMPARE(era.year, day.year - 1864);
        QCOMPARE(era.month, 14 + 12 * (day.year - 1900) + day.month - 1);
        QCOMPARE(era.day, static_cast<int>(QDate(1900, 1, 1).daysTo(date)) + 10);
    }
}

void TestLunarCalendar::KnownDays_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("first day of the range") << QDate(1900, 2, 1) << QByteArray("1$02");
    QTest::newRow("year 2000 begins") << QDate(2000, 1, 1) << QByteArray("11$25");
    QTest::newRow("new year 2000") << QDate(2000, 2, 5) << QByteArray("1$01");
    QTest::newRow("new year 2024") << QDate(2024, 2, 10) << QByteArray("1$01");
    QTest::newRow("new year 2030") << QDate(2030, 2, 3) << QByteArray("1$01");
    QTest::newRow("leap second month begins") << QDate(2023, 3, 22) << QByteArray("2$01");
    QTest::newRow("leap second month ends") << QDate(2023, 4, 19) << QByteArray("2$29");
    QTest::newRow("third month begins") << QDate(2023, 4, 20) << QByteArray("3$01");
    QTest::newRow("mid-autumn 2024") << QDate(2024, 9, 17) << QByteArray("8$15");
    QTest::newRow("leap day") << QDate(2024, 2, 29) << QByteArray("1$20");
    QTest::newRow("February 2051 begins") << QDate(2051, 2, 1) << QByteArray("12$20");
    QTest::newRow("last day of the range") << QDate(2051, 2, 10) << QByteArray("12$29");
}

void TestLunarCalendar::KnownDays()
{
    QFETCH(QDate, date);
    QFETCH(QByteArray, answer);
    QCOMPARE(Ask(date), answer);
}

void TestLunarCalendar::DayOutsideMonthKeepsAnswer_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");
    QTest::newRow("day 31 of a month of 30") << 2023 << 6 << 31;
    QTest::newRow("day 29 of a common February") << 2023 << 2 << 29;
    QTest::newRow("day 30 of a leap February") << 2024 << 2 << 30;
    QTest::newRow("day 32") << 2024 << 1 << 32;
    QTest::newRow("day 0") << 2024 << 1 << 0;
    QTest::newRow("negative day") << 2024 << 1 << -1;
    QTest::newRow("largest day") << 2024 << 1 << kIntMax;
    QTest::newRow("smallest day") << 2024 << 1 << kIntMin;
}

void TestLunarCalendar::DayOutsideMonthKeepsAnswer()
{
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(int, day);
    QCOMPARE(Ask(QDate(2024, 9, 17)), QByteArray("8$15"));
    QCOMPARE(QByteArray(LunarCalendarSetup(year, month, day)), QByteArray("8$15"));
    QCOMPARE(s_year, year);
    QCOMPARE(s_month, month);
}

void TestLunarCalendar::OutOfRange_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day");
    QTest::newRow("last day of January 1900") << 1900 << 1 << 31;
    QTest::newRow("first day of January 1900") << 1900 << 1 << 1;
    QTest::newRow("1899") << 1899 << 12 << 31;
    QTest::newRow("before the first cycle year") << 1800 << 5 << 5;
    QTest::newRow("year 0") << 0 << 1 << 1;
    QTest::newRow("negative year") << -5 << 1 << 1;
    QTest::newRow("smallest year") << kIntMin << 1 << 1;
    QTest::newRow("day after the last lunar year") << 2051 << 2 << 11;
    QTest::newRow("last of February 2051") << 2051 << 2 << 28;
    QTest::newRow("March 2051") << 2051 << 3 << 1;
    QTest::newRow("2052") << 2052 << 1 << 1;
    QTest::newRow("largest year") << kIntMax << 12 << 31;
    QTest::newRow("month 0") << 2024 << 0 << 1;
    QTest::newRow("month 13") << 2024 << 13 << 1;
    QTest::newRow("negative month") << 2024 << -1 << 1;
    QTest::newRow("largest month") << 2024 << kIntMax << 1;
    QTest::newRow("smallest month") << 2024 << kIntMin << 1;
}

void TestLunarCalendar::OutOfRange()
{
    QFETCH(int, year);
    QFETCH(int, month);
    QFETCH(int, day);
    QCOMPARE(Ask(QDate(2024, 9, 17)), QByteArray("8$15"));
    QCOMPARE(QByteArray(LunarCalendarSetup(year, month, day)), QByteArray());
    QCOMPARE(s_year, year);
    QCOMPARE(s_month, month);
    QVERIFY(!Lw::HNodeClock::InLunarRange(year, month, day));
}

void TestLunarCalendar::DaysOfTheTable_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<bool>("inside");
    QTest::newRow("day before") << QDate(1900, 1, 31) << false;
    QTest::newRow("first day") << QDate(1900, 2, 1) << true;
    QTest::newRow("January after the first year") << QDate(1901, 1, 1) << true;
    QTest::newRow("end of a year") << QDate(2026, 12, 31) << true;
    QTest::newRow("January of the last year") << QDate(2051, 1, 31) << true;
    QTest::newRow("last day") << QDate(2051, 2, 10) << true;
    QTest::newRow("day after") << QDate(2051, 2, 11) << false;
}

void TestLunarCalendar::DaysOfTheTable()
{
    QFETCH(QDate, date);
    QTEST(Lw::HNodeClock::InLunarRange(date.year(), date.month(), date.day()), "inside");
    QVERIFY(!Lw::HNodeClock::InLunarRange(date.year(), date.month(), 0));
    QVERIFY(!Lw::HNodeClock::InLunarRange(date.year(), date.month(), 32));
}

void TestLunarCalendar::SubMenueReadsGlobals()
{
    s_year = 2024;
    s_month = 2;
    sub_menue(10);
    QCOMPARE(QByteArray(returnstr), QByteArray("1$01"));
    s_month = 13;
    sub_menue(10);
    QCOMPARE(QByteArray(returnstr), QByteArray());
}

void TestLunarCalendar::SetupLeavesDayAlone()
{
    s_day = 77;
    LunarCalendarSetup(2024, 2, 10);
    QCOMPARE(s_day, 77);
}

QTEST_GUILESS_MAIN(TestLunarCalendar)
#include "test_lunar_calendar.moc"
