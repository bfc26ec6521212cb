#include "calendar/lunar_calendar.h"

#include <QDate>
#include <QTest>
#include <QTextCodec>

#include <cstddef>
#include <limits>

static_assert(sizeof(Lunar_info) == 24 && sizeof(Chinese_era) == 12);
static_assert(offsetof(Lunar_info, leapMonth) == 16 && offsetof(Lunar_info, isLeap) == 20);
static_assert(sizeof returnstr == 20);

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();

// The texts of a table, decoded and parted by blanks.
template<std::size_t Rows, std::size_t Width>
QString Decode(const char (&table)[Rows][Width])
{
    QTextCodec *codec = QTextCodec::codecForName("GB18030");
    QStringList texts;
    for (const char *text : table)
        texts << (codec ? codec->toUnicode(text) : QString());
    return texts.join(QLatin1Char(' '));
}

} // namespace

class TestLunarHelpers : public QObject
{
    Q_OBJECT

private slots:
    void GregorianYears_data();
    void GregorianYears();
    void DaysOfMonthFollowTheGlobalYear();
    void SolarTotalOfEveryMonth();
    void SolarTotalAtTheEdges();
    void SolarTotalUsesItsOwnYear();
    void WeekdayOfEveryMonth();
    void WeekdayAtTheEdges();
    void MonthsOf1900();
    void MonthsWithLongLeapMonth();
    void YearsOutsideTable_data();
    void YearsOutsideTable();
    void MonthsOutsideYear();
    void ReservedBitsAreZero();
    void FirstOfMonthOutOfRange_data();
    void FirstOfMonthOutOfRange();
    void CycleNumbers();
    void Texts();
    void EraText_data();
    void EraText();
    void DayText_data();
    void DayText();
};

void TestLunarHelpers::GregorianYears_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("days");
    QTest::newRow("divisible by 4") << 2024 << 366;
    QTest::newRow("common") << 2023 << 365;
    QTest::newRow("century") << 1900 << 365;
    QTest::newRow("fourth century") << 2000 << 366;
    QTest::newRow("negative") << -4 << 366;
    QTest::newRow("largest") << kIntMax << 365;
    QTest::newRow("smallest") << kIntMin << 366; // -2147483648 is divisible by 4, not by 100
}

void TestLunarHelpers::GregorianYears()
{
    QFETCH(int, year);
    QTEST(leap(year), "days");
}

void TestLunarHelpers::DaysOfMonthFollowTheGlobalYear()
{
    for (const int year : {1900, 2000, 2023, 2024}) {
        s_year = year;
        for (int month = 1; month <= 12; ++month)
            QCOMPARE(day(month), QDate(year, month, 1).daysInMonth());
        for (const int month : {0, 13, -1, kIntMax, kIntMin})
            QCOMPARE(day(month), 28);
    }
}

void TestLunarHelpers::SolarTotalOfEveryMonth()
{
    const QDate epoch(1900, 1, 1);
    for (int year = 1; year <= 9999; ++year) {
        for (int month = 1; month <= 12; ++month)
            QCOMPARE(get_solar_total(year, month),
                     static_cast<int>(epoch.daysTo(QDate(year, month, 1))));
    }
}

void TestLunarHelpers::SolarTotalAtTheEdges()
{
    QCOMPARE(get_solar_total(1900, 1), 0);
    QCOMPARE(get_solar_total(2000, 1), 36524);
    QCOMPARE(get_solar_total(kIntMax, 12), kIntMax);
    QCOMPARE(get_solar_total(kIntMin, 1), kIntMin);
    QCOMPARE(get_solar_total(2024, kIntMax), get_solar_total(2024, 12));
    QCOMPARE(get_solar_total(2024, kIntMin), get_solar_total(2024, 1));
}

void TestLunarHelpers::SolarTotalUsesItsOwnYear()
{
    for (const int queried : {2023, 2024}) {
        s_year = queried;
        QCOMPARE(get_solar_total(2024, 3) - get_solar_total(2024, 2), 29);
        QCOMPARE(get_solar_total(2023, 3) - get_solar_total(2023, 2), 28);
    }
}

void TestLunarHelpers::WeekdayOfEveryMonth()
{
    for (QDate date(1700, 1, 1); date.year() <= 2300; date = date.addMonths(1))
        QCOMPARE(get_week(date.year(), date.month()), date.dayOfWeek() % 7 + 1);
}

void TestLunarHelpers::WeekdayAtTheEdges()
{
    QCOMPARE(get_week(1900, 1), 2); // a Monday
    QCOMPARE(get_week(2024, 9), 1); // a Sunday
    QCOMPARE(get_week(2024, 6), 7); // a Saturday
    // The calendar repeats after 400 years: 2147483647 is like 2047, -2147483648 like 1952.
    QCOMPARE(get_week(kIntMax, 1), get_week(2047, 1));
    QCOMPARE(get_week(kIntMin, 1), get_week(1952, 1));
}

void TestLunarHelpers::MonthsOf1900()
{
    QCOMPARE(get_leap_month(1900), 8);
    QCOMPARE(get_leap_month_day(1900), 29);
    const int lengths[] = {29, 30, 29, 29, 30, 29, 30, 30, 30, 30, 29, 30};
    for (int month = 1; month <= 12; ++month)
        QCOMPARE(get_lunar_month_total(1900, month), lengths[month - 1]);
    QCOMPARE(get_lunar_year_total(1900), 384); // to 18 February 1901
}

void TestLunarHelpers::MonthsWithLongLeapMonth()
{
    QCOMPARE(get_leap_month(2017), 6);
    QCOMPARE(get_leap_month_day(2017), 30);
    QCOMPARE(get_lunar_year_total(2017), 384); // 28 January 2017 to 15 February 2018
    QCOMPARE(get_leap_month(2024), 0);
    QCOMPARE(get_leap_month_day(2024), 0);
    QCOMPARE(get_lunar_year_total(2024), 354); // 10 February 2024 to 28 January 2025
}

void TestLunarHelpers::YearsOutsideTable_data()
{
    QTest::addColumn<int>("year");
    for (const int year : {1899, 2051, 0, -1, kIntMax, kIntMin})
        QTest::newRow(QByteArray::number(year).constData()) << year;
}

void TestLunarHelpers::YearsOutsideTable()
{
    QFETCH(int, year);
    QCOMPARE(get_leap_month(year), 0);
    QCOMPARE(get_leap_month_day(year), 0);
    QCOMPARE(get_lunar_month_total(year, 1), 29);
    QCOMPARE(get_lunar_year_total(year), 348);
}

void TestLunarHelpers::MonthsOutsideYear()
{
    for (const int month : {0, 13, -1, -16, 17, kIntMax, kIntMin})
        QCOMPARE(get_lunar_month_total(2017, month), 29);
    QCOMPARE(get_leap_month(2014), 9); // the number beside the last month is not a thirteenth
    QCOMPARE(get_lunar_month_total(2014, 13), 29);
}

void TestLunarHelpers::ReservedBitsAreZero()
{
    for (const unsigned int entry : lunar_info) {
        QCOMPARE(entry >> 17, 0u);
        QVERIFY((entry & 0xF) <= 12);
        QVERIFY((entry & 0xF) != 0 || entry >> 16 == 0);
    }
}

void TestLunarHelpers::FirstOfMonthOutOfRange_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");
    QTest::newRow("January 1900") << 1900 << 1;
    QTest::newRow("March 2051") << 2051 << 3;
    QTest::newRow("month 0") << 2000 << 0;
    QTest::newRow("month 13") << 2000 << 13;
    QTest::newRow("largest") << kIntMax << kIntMax;
    QTest::newRow("smallest") << kIntMin << kIntMin;
}

void TestLunarHelpers::FirstOfMonthOutOfRange()
{
    QFETCH(int, year);
    QFETCH(int, month);
    Lunar_info info = {1, 1, 1, 1, 1, 1};
    Chinese_era era = {1, 1, 1};
    get_lunar_info(year, month, &info, &era);
    QCOMPARE(info.year, 0);
    QCOMPARE(info.month, 0);
    QCOMPARE(info.day, 0);
    QCOMPARE(info.isLeap, 0);
    QCOMPARE(era.day, 0);
}

void TestLunarHelpers::CycleNumbers()
{
    // 1 January 2000 was a day wu-wu of the month bing-zi of the year ji-mao.
    Lunar_info info;
    Chinese_era era;
    get_lunar_info(2000, 1, &info, &era);
    QCOMPARE(era.year % 10, 5);
    QCOMPARE(era.year % 12, 3);
    QCOMPARE(era.month % 10, 2);
    QCOMPARE(era.month % 12, 0);
    QCOMPARE(era.day % 10, 4);
    QCOMPARE(era.day % 12, 6);
}

void TestLunarHelpers::Texts()
{
    QVERIFY2(QTextCodec::codecForName("GB18030"), "Qt lacks the codec that decodes the texts");
    QCOMPARE(Decode(Gan), QStringLiteral(u"甲 乙 丙 丁 戊 己 庚 辛 壬 癸"));
    QCOMPARE(Decode(Zhi), QStringLiteral(u"子 丑 寅 卯 辰 巳 午 未 申 酉 戌 亥"));
    QCOMPARE(Decode(Animals), QStringLiteral(u"鼠 牛 虎 兔 龙 蛇 马 羊 猴 鸡 狗 猪"));
    QCOMPARE(Decode(chinese_month), QStringLiteral(u"正 二 三 四 五 六 七 八 九 十 冬 腊"));
    QStringList days;
    for (int number = 1; number <= 30; ++number)
        days << QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    QCOMPARE(Decode(chinese_day), days.join(QLatin1Char(' ')));
}

void TestLunarHelpers::EraText_data()
{
    QTest::addColumn<int>("cycle");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("jia-zi") << 0 << QByteArray("\xBC\xD7\xD7\xD3");
    QTest::newRow("gui-hai") << 59 << QByteArray("\xB9\xEF\xBA\xA5");
    QTest::newRow("jia-zi again") << 60 << QByteArray("\xBC\xD7\xD7\xD3");
    QTest::newRow("jia-chen, year 2024") << 2024 - 1864 << QByteArray("\xBC\xD7\xB3\xBD");
    QTest::newRow("gui-hai, year 1863") << -1 << QByteArray("\xB9\xEF\xBA\xA5");
    QTest::newRow("jia-zi, year 1804") << -60 << QByteArray("\xBC\xD7\xD7\xD3");
    // 2147483647 is 7 mod 10 and 7 mod 12; -2147483648 is 2 mod 10 and 4 mod 12.
    QTest::newRow("largest") << kIntMax << QByteArray("\xD0\xC1\xCE\xB4");
    QTest::newRow("smallest") << kIntMin << QByteArray("\xB1\xFB\xB3\xBD");
}

void TestLunarHelpers::EraText()
{
    QFETCH(int, cycle);
    QFETCH(QByteArray, bytes);
    char text[6] = {'x', 'x', 'x', 'x', 'x', 'x'};
    get_chinese_era(cycle, text);
    QCOMPARE(QByteArray(text), bytes);
    QCOMPARE(text[5], 'x');
}

void TestLunarHelpers::DayText_data()
{
    QTest::addColumn<int>("day");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("first") << 1 << QByteArray("01");
    QTest::newRow("tenth") << 10 << QByteArray("10");
    QTest::newRow("thirtieth") << 30 << QByteArray("30");
    for (const int outside : {0, 31, -1, kIntMax, kIntMin})
        QTest::newRow(QByteArray::number(outside).constData()) << outside << QByteArray("");
}

void TestLunarHelpers::DayText()
{
    QFETCH(int, day);
    QFETCH(QByteArray, text);
    Lunar_info info = {2024, 1, day, 30, 0, 0};
    char out[4] = {'x', 'x', 'x', 'x'};
    out_chinese(&info, out);
    QCOMPARE(QByteArray(out), text);
    QCOMPARE(out[3], 'x');
}

QTEST_GUILESS_MAIN(TestLunarHelpers)
#include "test_lunar_helpers.moc"
