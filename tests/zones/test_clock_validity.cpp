// Until when clocks are right: rules by the zones' announced changes, dates by the known deviations
// of the calendars.
#include "clock_validity.h"
#include "zone_times.h"

#include <QTest>

using namespace ClockZones;

namespace {

ZoneSettings Zone(int offset, const char *start = "", const char *end = "")
{
    return {offset, QString::fromLatin1(start), QString::fromLatin1(end)};
}

const ZoneSettings kBerlin = Zone(kHour, "3.Last.7.02:00:00", "10.Last.7.02:00:00");

// "until code", such as "2030-03-22T00:00:00Z daylight_saving_rules"; empty if no end is known.
QString EndOf(const ValidityTerms &terms, const char *now)
{
    RulesEnds rules;
    const std::optional<Validity> validity = ValidityOf(terms, At(now), rules);
    if (!validity)
        return {};
    return QDateTime::fromMSecsSinceEpoch(validity->until, Qt::UTC).toString(Qt::ISODate) + ' '
        + CodeOf(validity->end);
}

// Central Europe, whose rule is given up in 2025: summer time goes on.
CivilTime GivenUp()
{
    return {At("2022-01-01T00:00:00"),
            At("2030-01-01T00:00:00"),
            kHour,
            {{At("2022-03-27T01:00:00"), 2 * kHour},
             {At("2022-10-30T01:00:00"), kHour},
             {At("2023-03-26T01:00:00"), 2 * kHour},
             {At("2023-10-29T01:00:00"), kHour},
             {At("2024-03-31T01:00:00"), 2 * kHour},
             {At("2024-10-27T01:00:00"), kHour},
             {At("2025-03-30T01:00:00"), 2 * kHour}}};
}

} // namespace

class TestClockValidity : public QObject
{
    Q_OBJECT

private slots:
    void Agreements_data();
    void Agreements();
    void RulesOfZones_data();
    void RulesOfZones();
    void Calendars_data();
    void Calendars();
    void EarliestEnd();
    void NinetyDaysBefore();
    void Texts();
    void EachZoneOnce();
    void OneMemoryForAll();
};

void TestClockValidity::Agreements_data()
{
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("end");
    const QString end = "2025-10-26T01:00:00Z"; // where winter would have begun
    QTest::newRow("while it has them") << "2024-06-01T00:00:00" << end;
    QTest::newRow("in the last hour") << "2025-10-26T00:59:59" << end;
    QTest::newRow("after them") << "2027-01-01T00:00:00" << end;
    QTest::newRow("before them") << "2021-12-31T23:59:59" << QString();
}

// From autumn 2025 on the zone agrees each summer, but never for two years.
void TestClockValidity::Agreements()
{
    QFETCH(QString, now);
    const auto end = LastAgreement(kBerlin, GivenUp(), At(now.toLatin1().constData()));
    QTEST(end ? QDateTime::fromMSecsSinceEpoch(*end, Qt::UTC).toString(Qt::ISODate) : QString(),
          "end");
}

void TestClockValidity::RulesOfZones_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("until");
    const auto row = [](const char *name, int offset, const char *start, const char *end,
                        const char *now, const char *until) {
        QTest::newRow(name) << offset << start << end << now << until;
    };
    row("as long as the data", kHour, "3.Last.7.02:00:00", "10.Last.7.02:00:00",
        "2026-11-22T00:00:00", "2038-01-01T00:00:00Z zone_data");
    row("after the data", kHour, "3.Last.7.02:00:00", "10.Last.7.02:00:00", "2038-01-01T00:00:00",
        "");
    // The fourth Friday of March 2030 is a week before the Friday before the last Sunday.
    row("Israel until 2030", 2 * kHour, "3.4.5.02:00:00", "10.Last.7.01:00:00",
        "2026-11-22T00:00:00", "2030-03-22T00:00:00Z daylight_saving_rules");
    row("Israel in that week", 2 * kHour, "3.4.5.02:00:00", "10.Last.7.01:00:00",
        "2030-03-25T00:00:00", "2030-03-22T00:00:00Z daylight_saving_rules");
    row("Israel after it", 2 * kHour, "3.4.5.02:00:00", "10.Last.7.01:00:00", "2030-03-29T00:00:00",
        "2038-01-01T00:00:00Z zone_data");
    // Summer time ended in October 2022, and did not begin on the first Sunday of April 2023.
    row("Mexico in winter", -6 * kHour, "4.1.7.02:00:00", "10.Last.7.01:00:00",
        "2026-11-22T00:00:00", "2023-04-02T08:00:00Z daylight_saving_rules");
    row("Mexico in summer", -6 * kHour, "4.1.7.02:00:00", "10.Last.7.01:00:00",
        "2026-06-01T00:00:00", "2023-04-02T08:00:00Z daylight_saving_rules");
    row("Mexico before", -6 * kHour, "4.1.7.02:00:00", "10.Last.7.01:00:00", "2020-06-01T00:00:00",
        "2023-04-02T08:00:00Z daylight_saving_rules");
    row("another offset", 3 * kHour, "3.2.7.02:00:00", "11.1.7.01:00:00", "2026-11-22T00:00:00",
        "");
    row("no rules", kHour, "", "", "2026-11-22T00:00:00", "");
    row("malformed", kHour, "3.last.7.02:00:00", "10.Last.7.02:00:00", "2026-11-22T00:00:00", "");
    // A second each year, at the start: never two years without an error.
    row("Chile", -4 * kHour, "9.1.6.23:59:59", "4.1.6.23:00:00", "2026-11-22T00:00:00", "");
}

void TestClockValidity::RulesOfZones()
{
    QFETCH(int, offset);
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(QString, now);
    QTEST(EndOf({{offset, start, end}, false, false}, now.toLatin1().constData()), "until");
}

void TestClockValidity::Calendars_data()
{
    QTest::addColumn<bool>("isPersian");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("until");
    const auto row = [](const char *name, bool isPersian, const char *now, const char *until) {
        QTest::newRow(name) << isPersian << now << until;
    };
    // Midnight at eight hours before UTC.
    const char *lunar = "2033-08-24T16:00:00Z lunar_calendar";
    const char *table = "2051-02-10T16:00:00Z lunar_table";
    row("lunar", false, "2026-11-22T00:00:00", lunar);
    row("lunar, the last wrong second", false, "2033-12-21T15:59:59", lunar);
    row("lunar, right again", false, "2033-12-21T16:00:00", table);
    row("lunar, after the table", false, "2060-01-01T00:00:00", table);
    row("Persian, before the first", true, "2025-03-01T00:00:00",
        "2025-03-19T16:00:00Z persian_calendar");
    row("Persian, the last wrong second", true, "2026-03-20T15:59:59",
        "2025-03-19T16:00:00Z persian_calendar");
    row("Persian, right again", true, "2026-03-20T16:00:00",
        "2058-03-19T16:00:00Z persian_calendar");
    row("Persian, after the last", true, "2059-03-20T16:00:00", "");
}

void TestClockValidity::Calendars()
{
    QFETCH(bool, isPersian);
    QFETCH(QString, now);
    QTEST(EndOf({Zone(8 * kHour), !isPersian, isPersian}, now.toLatin1().constData()), "until");
}

// Summer time: the lunar day begins at 01:00, the Persian day at midnight.
void TestClockValidity::EarliestEnd()
{
    const char *now = "2026-11-22T00:00:00";
    QCOMPARE(EndOf({kBerlin, true, true}, now), QString("2033-08-24T23:00:00Z lunar_calendar"));
    QCOMPARE(EndOf({kBerlin, false, true}, now), QString("2038-01-01T00:00:00Z zone_data"));
    const ZoneSettings always = Zone(kHour, "1.1.1.00:00:00", "12.Last.7.00:00:00");
    QCOMPARE(EndOf({always, false, true}, now), QString("2058-03-19T22:00:00Z persian_calendar"));
    QCOMPARE(EndOf({Zone(kHour), false, false}, now), QString());
}

void TestClockValidity::NinetyDaysBefore()
{
    const Validity lunar {At("2033-08-24T16:00:00"), ValidityEnd::LunarDate, {}};
    QVERIFY(!IsDue(lunar, At("2033-05-26T15:59:59"))); // May 5 days, 30, 31, August 24
    QVERIFY(IsDue(lunar, At("2033-05-26T16:00:00")));
    QVERIFY(IsDue(lunar, At("2034-01-01T00:00:00")));
    const Validity data {At("2038-01-01T00:00:00"), ValidityEnd::ZoneData, "Europe/Berlin"};
    QVERIFY(!IsDue(data, At("2037-12-31T00:00:00")));
}

void TestClockValidity::Texts()
{
    QCOMPARE(TextOf({At("2030-03-22T00:00:00"), ValidityEnd::Rules, "Asia/Jerusalem"}),
             QString("the daylight-saving rules are those of Asia/Jerusalem only until "
                     "2030-03-22T00:00:00Z"));
    QCOMPARE(TextOf({At("2051-02-10T16:00:00"), ValidityEnd::LunarTable, {}}),
             QString("the lunar date is missing from 2051-02-10T16:00:00Z on"));
}

void TestClockValidity::EachZoneOnce()
{
    RulesEnds rules;
    const auto end = rules.Of(Zone(-6 * kHour, "4.1.7.02:00:00", "10.Last.7.01:00:00"),
                              At("2026-11-22T00:00:00"));
    QCOMPARE(end->zone, QByteArray("America/Mexico_City"));
    QVERIFY(end->all.contains("America/Merida"));
    for (const QByteArray &zone : end->all)
        QCOMPARE(end->all.count(zone), 1);
}

// One memory serves different rules, and forgets when the day changes.
void TestClockValidity::OneMemoryForAll()
{
    RulesEnds rules;
    const ZoneSettings israel = Zone(2 * kHour, "3.4.5.02:00:00", "10.Last.7.01:00:00");
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(rules.Of(kBerlin, At("2026-11-22T00:00:00"))->zone, QByteArray("Europe/Berlin"));
        QCOMPARE(rules.Of(israel, At("2026-11-22T00:00:00"))->until, At("2030-03-22T00:00:00"));
    }
    QVERIFY(!rules.Of(israel, At("2031-01-01T00:00:00"))->isListed);
}

QTEST_GUILESS_MAIN(TestClockValidity)
#include "test_clock_validity.moc"
