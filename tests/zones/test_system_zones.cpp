// Every zone of the system: a clock that is set as it is told shows the zone's time, but where it
// is told otherwise.
#include "system_zones.h"

#include "calendar/clock_time.h"

#include <QDateTime>
#include <QTest>
#include <QTimeZone>

Q_DECLARE_METATYPE(ClockZones::ZoneSettings)

using namespace ClockZones;

namespace {

Span YearsFrom(int year)
{
    return TenYearsFrom(QDate(year, 1, 1));
}

QDateTime Utc(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

// A clock as a program sets it.
class Clock
{
public:
    explicit Clock(const ZoneSettings &settings) : m_settings(settings)
    {
        m_settings.offset = Lw::HNodeClock::ParseZoneOffset(settings.ZoneText());
    }

    int OffsetAt(qint64 utc) { return Lw::HNodeClock::OffsetAt(m_settings, utc, m_daylight); }

private:
    ZoneSettings m_settings;
    Lw::HNodeClock::DaylightSaving m_daylight;
};

int ToldError(const QVector<WrongTime> &wrong, qint64 utc)
{
    for (const WrongTime &time : wrong) {
        if (time.begin <= utc && utc < time.end)
            return time.error;
    }
    return 0;
}

// Every change of the zone and every told boundary by a second, and every tenth of a month.
QVector<qint64> InstantsToCheck(const QTimeZone &zone, const QVector<WrongTime> &wrong,
                                const Span &span)
{
    const auto begin = span.begin;
    const auto end = span.end;
    QVector<qint64> instants;
    const auto around = [&](qint64 at) {
        for (const qint64 instant : {at - 1000, at - 1, at, at + 1000}) {
            if (instant >= begin && instant < end)
                instants.append(instant);
        }
    };
    for (const QTimeZone::OffsetData &change : zone.transitions(Utc(begin), Utc(end)))
        around(change.atUtc.toMSecsSinceEpoch());
    for (const WrongTime &time : wrong) {
        around(time.begin);
        around(time.end);
    }
    constexpr qint64 kStep = Q_INT64_C(3) * 86400 * 1000 + 3600 * 1000;
    for (qint64 at = begin; at < end; at += kStep)
        instants.append(at);
    return instants;
}

// What is listed of a zone after a span.
CivilTime After(const QByteArray &zone, const Span &span)
{
    return CivilTimeOf(zone, ListedAfter(span)).value_or(CivilTime());
}

void RequireZones()
{
    QVERIFY2(ZoneNames().size() > 100, "the system's time zone data (tzdata) is missing");
}

} // namespace

class TestSystemZones : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { RequireZones(); }
    void TenYears_data();
    void TenYears();
    void EveryZoneIsAsTold_data();
    void EveryZoneIsAsTold();
    void Exactness_data();
    void Exactness();
    void SettingsAreRightUntil_data();
    void SettingsAreRightUntil();
    void OldDecades_data();
    void OldDecades();
    void OtherNames_data();
    void OtherNames();
    void UnknownNames_data();
    void UnknownNames();
    void ZonesWithSettings_data();
    void ZonesWithSettings();
    void ZoneData();
};

void TestSystemZones::TenYears_data()
{
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QString>("end");
    QTest::newRow("new year") << QDate(2026, 1, 1) << "2036-01-01";
    QTest::newRow("day of a leap year") << QDate(2024, 2, 29) << "2034-02-28";
    QTest::newRow("as far as changes are listed") << QDate(2030, 5, 1) << "2038-01-01";
}

void TestSystemZones::TenYears()
{
    QFETCH(QDate, first);
    const Span span = TenYearsFrom(first);
    QCOMPARE(DateOf(span.begin), first.toString(Qt::ISODate));
    QTEST(DateOf(span.end), "end");
    QCOMPARE(ListedAfter(span).begin, span.end);
    QCOMPARE(DateOf(ListedAfter(span).end), QStringLiteral("2038-01-01"));
    QVERIFY(TenYearsFrom(QDate(2038, 6, 1)).end < TenYearsFrom(QDate(2038, 6, 1)).begin);
}

void TestSystemZones::EveryZoneIsAsTold_data()
{
    QTest::addColumn<int>("year");
    QTest::newRow("1990") << 1990; // many zones changed their rules
    QTest::newRow("2010") << 2010;
    QTest::newRow("2026") << 2026;
}

void TestSystemZones::EveryZoneIsAsTold()
{
    QFETCH(int, year);
    const Span span = YearsFrom(year);
    int exact = 0;
    const QList<QByteArray> names = ZoneNames();
    for (const QByteArray &name : names) {
        const auto civil = CivilTimeOf(name, span);
        QVERIFY2(civil, name.constData());
        const ZoneSettings settings = BestSettings(*civil, After(name, span));
        const QVector<WrongTime> wrong = WrongTimes(settings, *civil);
        exact += wrong.isEmpty() ? 1 : 0;
        Clock clock(settings);
        const QTimeZone zone(name);
        for (const qint64 at : InstantsToCheck(zone, wrong, span)) {
            const int error = clock.OffsetAt(at) - zone.offsetFromUtc(Utc(at));
            if (error != ToldError(wrong, at))
                QFAIL(qPrintable(QStringLiteral("%1 is %2 s wrong at %3, %4 s told")
                                     .arg(QString::fromLatin1(name))
                                     .arg(error)
                                     .arg(Utc(at).toString(Qt::ISODateWithMs))
                                     .arg(ToldError(wrong, at))));
        }
    }
    // Most of the world can be shown at any time.
    QVERIFY2(exact > names.size() / 2, qPrintable(QString::number(exact)));
}

void TestSystemZones::Exactness_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<bool>("exact");
    const auto row = [](const char *zone, const char *settings, bool exact) {
        QTest::newRow(zone) << QString::fromLatin1(settings) << exact;
    };
    row("Europe/Berlin", "+01:00 3.Last.7.02:00:00 10.Last.7.02:00:00", true);
    // Winter is Ireland's exception by law, and summer by the clock.
    row("Europe/Dublin", "+00:00 3.Last.7.01:00:00 10.Last.7.01:00:00", true);
    row("America/New_York", "-05:00 3.2.7.02:00:00 11.1.7.01:00:00", true);
    row("Pacific/Chatham", "+12:45 9.Last.7.02:45:00 4.1.7.02:45:00", true);
    row("Africa/Cairo", "+02:00 4.Last.5.00:00:00 10.Last.4.23:00:00", true);
    row("Asia/Kathmandu", "+05:45  ", true);
    row("UTC", "+00:00  ", true);
    row("Australia/Lord_Howe", "+10:30  ", false);
    row("America/Santiago", "-04:00 9.1.6.23:59:59 4.1.6.23:00:00", false);
    row("Asia/Beirut", "+02:00 3.Last.7.00:00:00 10.Last.7.00:00:00", false);
    row("Asia/Jerusalem", "+02:00 3.4.5.02:00:00 10.Last.7.01:00:00", false);
}

void TestSystemZones::Exactness()
{
    QFETCH(QString, settings);
    QFETCH(bool, exact);
    const auto civil = CivilTimeOf(QTest::currentDataTag(), YearsFrom(2026));
    QVERIFY(civil);
    const ZoneSettings best = BestSettings(*civil, After(QTest::currentDataTag(), YearsFrom(2026)));
    QCOMPARE(QStringList({best.ZoneText(), best.start, best.end}).join(' '), settings);
    QCOMPARE(WrongTimes(best, *civil).isEmpty(), exact);
}

// Found hour by hour: these zones change on whole hours.
void TestSystemZones::SettingsAreRightUntil_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<QString>("until");
    QTest::newRow("Europe/Berlin") << 2026 << "2038-01-01T00:00:00Z";
    QTest::newRow("America/New_York") << 2020 << "2038-01-01T00:00:00Z";
    // By the rules of 1990 to 1999. Since 2007 it begins on the second Sunday of March, the 11th.
    QTest::newRow("America/Chicago") << 1990 << "2007-03-11T08:00:00Z";
}

void TestSystemZones::SettingsAreRightUntil()
{
    QFETCH(int, year);
    QFETCH(QString, until);
    const QByteArray name = QTest::currentDataTag();
    const Span span = YearsFrom(year);
    const auto civil = CivilTimeOf(name, span);
    QVERIFY(civil);
    const ZoneSettings best = BestSettings(*civil, After(name, span));
    QVERIFY(WrongTimes(best, *civil).isEmpty());
    QCOMPARE(Utc(RightUntil(best, After(name, span))).toString(Qt::ISODate), until);
    Clock clock(best);
    const QTimeZone zone(name);
    constexpr qint64 kHour = 3600 * 1000;
    qint64 at = ListedAfter(span).begin;
    while (at < ListedAfter(span).end && clock.OffsetAt(at) == zone.offsetFromUtc(Utc(at)))
        at += kHour;
    QCOMPARE(Utc(at).toString(Qt::ISODate), until);
}

void TestSystemZones::OldDecades_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<QString>("settings");
    // The last Sunday of October since 1996, the last of September before it.
    QTest::newRow("Europe/Berlin") << 1985 << "+01:00 3.Last.7.02:00:00 9.Last.7.02:00:00";
    // The first Sunday of April and the last of October, until 2006.
    QTest::newRow("America/New_York") << 1990 << "-05:00 4.1.7.02:00:00 10.Last.7.01:00:00";
}

void TestSystemZones::OldDecades()
{
    QFETCH(int, year);
    const auto civil = CivilTimeOf(QTest::currentDataTag(), YearsFrom(year));
    QVERIFY(civil);
    const ZoneSettings best = BestSettings(*civil, After(QTest::currentDataTag(), YearsFrom(year)));
    QTEST(QStringList({best.ZoneText(), best.start, best.end}).join(' '), "settings");
    QVERIFY(WrongTimes(best, *civil).isEmpty());
}

void TestSystemZones::OtherNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("offset");
    QTest::newRow("old name") << QByteArray("US/Eastern") << -5 * 3600;
    QTest::newRow("fixed") << QByteArray("Etc/GMT-3") << 3 * 3600; // its sign is reversed
    QTest::newRow("three parts") << QByteArray("America/Argentina/Ushuaia") << -3 * 3600;
}

void TestSystemZones::OtherNames()
{
    QFETCH(QByteArray, name);
    const auto civil = CivilTimeOf(name, YearsFrom(2026));
    QVERIFY(civil);
    QTEST(civil->offset, "offset");
}

void TestSystemZones::UnknownNames_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"", " ", "Berlin", "Europe/Berln", "Europe", "Europe/", "/Europe/Berlin",
          "../zoneinfo/Europe/Berlin", "Europe/../Europe/Berlin", "/etc/passwd", "zone.tab",
          "Europe/Berlin ", "Europe/Berl\xc3\xafn", "%n", "-", "a/b/c/d/e"})
        QTest::newRow(name) << QByteArray(name);
    QTest::newRow("huge") << QByteArray(1 << 20, 'a');
    QTest::newRow("zero byte") << QByteArray("Europe/Berlin\0x", 15);
}

void TestSystemZones::UnknownNames()
{
    QFETCH(QByteArray, name);
    QVERIFY(!CivilTimeOf(name, YearsFrom(2026)));
}

void TestSystemZones::ZonesWithSettings_data()
{
    QTest::addColumn<ZoneSettings>("settings");
    QTest::addColumn<QByteArray>("zone");
    const auto row = [](const char *name, int hours, const char *start, const char *end,
                        const char *zone) {
        QTest::newRow(name) << ZoneSettings {hours * 3600, QString::fromLatin1(start),
                                             QString::fromLatin1(end)}
                            << QByteArray(zone);
    };
    row("central Europe", 1, "3.Last.7.02:00:00", "10.Last.7.02:00:00", "Europe/Berlin");
    row("as published", 1, "3.Last.7.02:00:00", "10.Last.7.03:00:00", "");
    row("eastern America", -5, "3.2.7.02:00:00", "11.1.7.01:00:00", "America/New_York");
    row("another offset", 3, "3.2.7.02:00:00", "11.1.7.01:00:00", "");
    row("one zone only", 11, "10.1.7.02:00:00", "4.1.7.02:00:00", "Pacific/Norfolk");
}

void TestSystemZones::ZonesWithSettings()
{
    QFETCH(ZoneSettings, settings);
    QTEST(ZoneWith(settings, YearsFrom(2026)), "zone");
}

// Without zone data Qt lists these.
void TestSystemZones::ZoneData()
{
    QVERIFY(HasZoneData(ZoneNames()));
    QVERIFY(!HasZoneData({}));
    QVERIFY(!HasZoneData({"UTC", "UTC+01:00", "UTC-14:00"}));
}

QTEST_GUILESS_MAIN(TestSystemZones)
#include "test_system_zones.moc"
