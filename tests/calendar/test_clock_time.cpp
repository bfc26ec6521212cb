#include "calendar/clock_time.h"

#include <QLocale>
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

/// The program's locale, until it goes.
class LocaleForAWhile
{
public:
    explicit LocaleForAWhile(const QLocale &locale) { QLocale::setDefault(locale); }
    ~LocaleForAWhile() { QLocale::setDefault(m_before); }
    Q_DISABLE_COPY(LocaleForAWhile)

private:
    const QLocale m_before;
};

} // namespace

class TestClockTime : public QObject
{
    Q_OBJECT

private slots:
    void TimeOfDay_data();
    void TimeOfDay();
    void Zone_data();
    void Zone();
    void Adjustment_data();
    void Adjustment();
    void ZoneAndAdjustmentAdd_data();
    void ZoneAndAdjustmentAdd();
    void OtherDigits_data();
    void OtherDigits();
    void TextsOfTimes();
    void HugeTexts();
    void FieldsOfKnownReadings_data();
    void FieldsOfKnownReadings();
    void FieldsAgreeWithDateTime();
    void FieldsAtTheEdges();
};

void TestClockTime::TimeOfDay_data()
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

void TestClockTime::TimeOfDay()
{
    QFETCH(QString, text);
    QTEST(ParseTimeOfDay(text), "time");
}

void TestClockTime::Zone_data()
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
    QTest::newRow("sign for a leading zero") << "-+5:+7" << -18420;
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

void TestClockTime::Zone()
{
    QFETCH(QString, text);
    QTEST(ParseZoneOffset(text), "seconds");
}

void TestClockTime::Adjustment_data()
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

void TestClockTime::Adjustment()
{
    QFETCH(QString, text);
    QTEST(ParseAdjustment(text), "seconds");
}

void TestClockTime::ZoneAndAdjustmentAdd_data()
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

void TestClockTime::ZoneAndAdjustmentAdd()
{
    QFETCH(QString, zone);
    QFETCH(QString, adjustment);
    QFETCH(int, type);
    QTEST(ClockOffset(zone, adjustment, type), "seconds");
}

void TestClockTime::OtherDigits_data()
{
    QTest::addColumn<QString>("locale");
    for (const char *locale : {"C", "fa_IR", "ar_EG", "bn_BD", "my_MM"})
        QTest::newRow(locale) << QString::fromLatin1(locale);
}

// Texts of times travel: what a program of one language wrote, the device of another reads.
void TestClockTime::OtherDigits()
{
    QFETCH(QString, locale);
    const LocaleForAWhile chosen {QLocale(locale)};
    QCOMPARE(ParseTimeOfDay(QStringLiteral("13:05:09")), QTime(13, 5, 9));
    QCOMPARE(ParseZoneOffset(QStringLiteral("-5:30")), -19800);
    QCOMPARE(ParseAdjustment(QStringLiteral("01A30B15")), 5415);
    for (const char16_t *zero : {u"\u0660", u"\u06f0", u"\u09e6", u"\u1040", u"\uff10"}) {
        const QChar one(QString::fromUtf16(zero).at(0).unicode() + 1);
        const QString text = one + QStringLiteral("1:00:00");
        QVERIFY2(!ParseTimeOfDay(text).isValid(), qPrintable(text));
        QVERIFY(!ParseTimeOfDay(QStringLiteral("01:00:0") + one).isValid());
        QVERIFY(!ParseDaylightRule(QStringLiteral("3.Last.7.") + text));
        QVERIFY(!ParseDaylightRule(one + QStringLiteral(".Last.7.01:00:00")));
        QCOMPARE(ParseZoneOffset(QLatin1Char('+') + text.left(5)), 0);
        QCOMPARE(ParseZoneOffset(QLatin1Char('+') + one + QStringLiteral(":30")), 0);
        QCOMPARE(ParseAdjustment(QString(2, one) + QStringLiteral("A30B00")), 1800);
    }
}

void TestClockTime::TextsOfTimes()
{
    const QDateTime instant(QDate(2024, 3, 5), QTime(7, 8, 9), Qt::UTC);
    QCOMPARE(FormatAscii(instant.time(), "hh:mm"), QString("07:08"));
    QCOMPARE(FormatAscii(instant.time(), "hh'A'mm'B'ss"), QString("07A08B09"));
    QCOMPARE(FormatAscii(instant.date(), "yyyy/MM/dd"), QString("2024/03/05"));
    QCOMPARE(FormatAscii(instant, "yyyy-MM-dd'T'HH:mm:ss'Z'"), QString("2024-03-05T07:08:09Z"));
    QCOMPARE(FormatAscii(QTime(), "hh:mm"), QString());
}

void TestClockTime::HugeTexts()
{
    const QString digits(kHuge, QLatin1Char('1'));
    const QString points(kHuge, QLatin1Char('.'));
    const QString blanks(kHuge, QLatin1Char(' '));
    for (const QString &text : {digits, points, blanks}) {
        QCOMPARE(ParseZoneOffset(text), 0);
        QVERIFY(!ParseTimeOfDay(text).isValid());
    }
    QCOMPARE(ParseAdjustment(digits), 11 * 3600 + 11 * 60 + 11);
}

void TestClockTime::FieldsOfKnownReadings_data()
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

void TestClockTime::FieldsOfKnownReadings()
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

void TestClockTime::FieldsAgreeWithDateTime()
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

void TestClockTime::FieldsAtTheEdges()
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
