// A clock's settings for zones that are given as numbers.
#include "zone_rule.h"
#include "zone_times.h"

#include <QTest>

Q_DECLARE_METATYPE(ClockZones::CivilTime)
Q_DECLARE_METATYPE(ClockZones::ZoneSettings)

using namespace ClockZones;

namespace {

struct Change
{
    const char *at;
    int offset; // seconds
};

CivilTime Civil(const char *begin, const char *end, int offset, std::initializer_list<Change> list)
{
    CivilTime civil {At(begin), At(end), offset, {}};
    for (const Change &change : list)
        civil.changes.append({At(change.at), change.offset});
    return civil;
}

// The dates are those of the public announcements.
CivilTime Berlin()
{
    return Civil("2024-01-01T00:00:00", "2027-01-01T00:00:00", kHour,
                 {{"2024-03-31T01:00:00", 2 * kHour},
                  {"2024-10-27T01:00:00", kHour},
                  {"2025-03-30T01:00:00", 2 * kHour},
                  {"2025-10-26T01:00:00", kHour},
                  {"2026-03-29T01:00:00", 2 * kHour},
                  {"2026-10-25T01:00:00", kHour}});
}

CivilTime Auckland()
{
    return Civil("2024-01-01T00:00:00", "2027-01-01T00:00:00", 13 * kHour,
                 {{"2024-04-06T14:00:00", 12 * kHour},
                  {"2024-09-28T14:00:00", 13 * kHour},
                  {"2025-04-05T14:00:00", 12 * kHour},
                  {"2025-09-27T14:00:00", 13 * kHour},
                  {"2026-04-04T14:00:00", 12 * kHour},
                  {"2026-09-26T14:00:00", 13 * kHour}});
}

// Until Thursday 24:00 of summer time, which is Thursday 23:00 of standard time.
CivilTime Cairo()
{
    return Civil("2024-01-01T00:00:00", "2027-01-01T00:00:00", 2 * kHour,
                 {{"2024-04-25T22:00:00", 3 * kHour},
                  {"2024-10-31T21:00:00", 2 * kHour},
                  {"2025-04-24T22:00:00", 3 * kHour},
                  {"2025-10-30T21:00:00", 2 * kHour},
                  {"2026-04-23T22:00:00", 3 * kHour},
                  {"2026-10-29T21:00:00", 2 * kHour}});
}

// The span after one of which nothing more is known.
CivilTime Nothing(const CivilTime &civil)
{
    return {civil.end, civil.end, civil.offset, {}};
}

QString Text(const ZoneSettings &settings)
{
    return settings.ZoneText() + QLatin1Char(' ') + settings.start + QLatin1Char(' ')
        + settings.end;
}

QStringList Texts(const QVector<WrongTime> &times)
{
    QStringList texts;
    for (const WrongTime &time : times) {
        const auto text = [](qint64 at) {
            return QDateTime::fromMSecsSinceEpoch(at, Qt::UTC).toString(Qt::ISODate);
        };
        texts.append(
            QStringLiteral("%1 %2 %3").arg(text(time.begin), text(time.end)).arg(time.error));
    }
    return texts;
}

ZoneSettings Settings(int offset, const char *start, const char *end)
{
    return {offset, QString::fromLatin1(start), QString::fromLatin1(end)};
}

} // namespace

class TestZoneRule : public QObject
{
    Q_OBJECT

private slots:
    void ZoneTexts_data();
    void ZoneTexts();
    void OtherShifts_data();
    void OtherShifts();
    void RulesNameTheInstant_data();
    void RulesNameTheInstant();
    void BestSettingsAreFound_data();
    void BestSettingsAreFound();
    void BestSettingsAfterwards_data();
    void BestSettingsAfterwards();
    void WrongTimesAreTold_data();
    void WrongTimesAreTold();
    void NothingToLookAt();
};

void TestZoneRule::ZoneTexts_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("text");
    QTest::newRow("UTC") << 0 << "+00:00";
    QTest::newRow("east") << kHour << "+01:00";
    QTest::newRow("quarter") << 45900 << "+12:45";
    QTest::newRow("west") << -12600 << "-03:30";
    QTest::newRow("less than an hour west") << -1800 << "-00:30";
}

void TestZoneRule::ZoneTexts()
{
    QFETCH(int, offset);
    QTEST(Settings(offset, "", "").ZoneText(), "text");
}

void TestZoneRule::OtherShifts_data()
{
    QTest::addColumn<CivilTime>("civil");
    QTest::addColumn<int>("seconds");
    const char *const begin = "2025-01-01T00:00:00";
    const char *const end = "2026-01-01T00:00:00";
    QTest::newRow("an hour") << Berlin() << 0;
    QTest::newRow("no change") << Civil(begin, end, kHour, {}) << 0;
    QTest::newRow("half an hour") << Civil(
        begin, end, 39600, {{"2025-04-05T15:00:00", 37800}, {"2025-10-04T15:30:00", 39600}})
                                  << 1800;
    QTest::newRow("two hours, after one of an hour")
        << Civil(begin, end, 0, {{"2025-03-30T01:00:00", kHour}, {"2025-10-26T01:00:00", -kHour}})
        << 7200;
    QTest::newRow("another name for the same time")
        << Civil(begin, end, kHour, {{"2025-03-30T01:00:00", kHour}}) << 0;
}

void TestZoneRule::OtherShifts()
{
    QFETCH(CivilTime, civil);
    QTEST(OtherShift(civil), "seconds");
}

void TestZoneRule::RulesNameTheInstant_data()
{
    QTest::addColumn<QString>("reading");
    QTest::addColumn<QString>("rules");
    QTest::newRow("first") << "2026-11-01T01:00:00"
                           << "11.1.7.01:00:00";
    QTest::newRow("second") << "2026-03-08T02:00:00"
                            << "3.2.7.02:00:00";
    QTest::newRow("third") << "2026-03-21T23:59:59"
                           << "3.3.6.23:59:59";
    QTest::newRow("fourth, not the last") << "2026-03-22T02:00:00"
                                          << "3.4.7.02:00:00";
    QTest::newRow("fourth and last") << "2026-04-24T00:00:00"
                                     << "4.Last.5.00:00:00 4.4.5.00:00:00";
    QTest::newRow("fifth") << "2026-03-29T02:00:00"
                           << "3.Last.7.02:00:00";
    QTest::newRow("last of a leap February") << "2024-02-29T00:00:00"
                                             << "2.Last.4.00:00:00";
}

void TestZoneRule::RulesNameTheInstant()
{
    QFETCH(QString, reading);
    QTEST(RulesNaming(At(qPrintable(reading))).join(' '), "rules");
}

void TestZoneRule::BestSettingsAreFound_data()
{
    QTest::addColumn<CivilTime>("civil");
    QTest::addColumn<QString>("settings");
    QTest::newRow("north") << Berlin() << "+01:00 3.Last.7.02:00:00 10.Last.7.02:00:00";
    QTest::newRow("south") << Auckland() << "+12:00 9.Last.7.02:00:00 4.1.7.02:00:00";
    QTest::newRow("end goes back past midnight")
        << Cairo() << "+02:00 4.Last.5.00:00:00 10.Last.4.23:00:00";
    QTest::newRow("no change") << Civil("2024-01-01T00:00:00", "2034-01-01T00:00:00", 20700, {})
                               << "+05:45  ";
    QTest::newRow("the longer of two offsets, at the end")
        << Civil("2024-01-01T00:00:00", "2034-01-01T00:00:00", 5 * kHour,
                 {{"2024-03-01T00:00:00", 6 * kHour}})
        << "+06:00  ";
    QTest::newRow("the longer of two offsets, at the begin")
        << Civil("2024-01-01T00:00:00", "2026-01-01T00:00:00", 6 * kHour,
                 {{"2025-11-01T00:00:00", 5 * kHour}})
        << "+06:00  ";
    QTest::newRow("half an hour of daylight saving")
        << Civil("2025-06-01T00:00:00", "2026-06-01T00:00:00", 37800,
                 {{"2025-10-04T15:30:00", 39600}, {"2026-04-04T15:00:00", 37800}})
        << "+10:30  "; // 183 of 365 days
    QTest::newRow("two hours of daylight saving")
        << Civil("2025-01-01T00:00:00", "2026-01-01T00:00:00", 0,
                 {{"2025-03-30T01:00:00", 2 * kHour}, {"2025-10-26T01:00:00", 0}})
        << "+02:00  "; // 210 of 365 days
    QTest::newRow("an offset that is no whole minute")
        << Civil("1900-01-01T00:00:00", "1901-01-01T00:00:00", 561, {}) << "+00:09  ";
    QTest::newRow("more than a day")
        << Civil("1900-01-01T00:00:00", "1901-01-01T00:00:00", 90000, {}) << "+00:00  ";
}

void TestZoneRule::BestSettingsAreFound()
{
    QFETCH(CivilTime, civil);
    QTEST(Text(BestSettings(civil, Nothing(civil))), "settings");
}

// From 2024 to 2026 April has four Fridays, and the fourth is the last. In 2027 fourth and last
// are the 23rd and the 30th.
void TestZoneRule::BestSettingsAfterwards_data()
{
    QTest::addColumn<CivilTime>("after");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("until");
    const auto row = [](const char *name, const char *start, const char *settings,
                        const char *until) {
        QTest::newRow(name) << Civil("2027-01-01T00:00:00", "2028-01-01T00:00:00", 2 * kHour,
                                     {{start, 3 * kHour}, {"2027-10-28T21:00:00", 2 * kHour}})
                            << settings << until;
    };
    row("the last goes on", "2027-04-29T22:00:00", "+02:00 4.Last.5.00:00:00 10.Last.4.23:00:00",
        "2028-01-01T00:00:00Z");
    row("the fourth goes on", "2027-04-22T22:00:00", "+02:00 4.4.5.00:00:00 10.Last.4.23:00:00",
        "2028-01-01T00:00:00Z");
    // The fourth begins a week before the change, the last one only two hours after it.
    row("neither, and the last is right for longer", "2027-04-29T20:00:00",
        "+02:00 4.Last.5.00:00:00 10.Last.4.23:00:00", "2027-04-29T20:00:00Z");
    // Both miss a change before either; the first one tried stays.
    row("neither, and both as long", "2027-03-25T22:00:00",
        "+02:00 4.Last.5.00:00:00 10.Last.4.23:00:00", "2027-03-25T22:00:00Z");
}

void TestZoneRule::BestSettingsAfterwards()
{
    QFETCH(CivilTime, after);
    const ZoneSettings best = BestSettings(Cairo(), after);
    QTEST(Text(best), "settings");
    QVERIFY(WrongTimes(best, Cairo()).isEmpty());
    const qint64 until = RightUntil(best, after);
    QTEST(QDateTime::fromMSecsSinceEpoch(until, Qt::UTC).toString(Qt::ISODate), "until");
}

void TestZoneRule::WrongTimesAreTold_data()
{
    QTest::addColumn<CivilTime>("civil");
    QTest::addColumn<ZoneSettings>("settings");
    QTest::addColumn<QStringList>("wrong");
    const auto row = [](const char *name, const CivilTime &civil, const ZoneSettings &settings,
                        const QStringList &wrong) {
        QTest::newRow(name) << civil << settings << wrong;
    };
    row("north", Berlin(), Settings(kHour, "3.Last.7.02:00:00", "10.Last.7.02:00:00"), {});
    row("south", Auckland(), Settings(12 * kHour, "9.Last.7.02:00:00", "4.1.7.02:00:00"), {});
    row("past midnight", Cairo(), Settings(2 * kHour, "4.Last.5.00:00:00", "10.Last.4.23:00:00"),
        {});
    row("the published end", Berlin(), Settings(kHour, "3.Last.7.02:00:00", "10.Last.7.03:00:00"),
        {"2024-10-27T01:00:00Z 2024-10-27T02:00:00Z 3600",
         "2025-10-26T01:00:00Z 2025-10-26T02:00:00Z 3600",
         "2026-10-25T01:00:00Z 2026-10-25T02:00:00Z 3600"});
    row("fourth in place of the last", Berlin(),
        Settings(kHour, "3.4.7.02:00:00", "10.4.7.02:00:00"),
        {"2024-03-24T01:00:00Z 2024-03-31T01:00:00Z 3600",
         "2025-03-23T01:00:00Z 2025-03-30T01:00:00Z 3600",
         "2026-03-22T01:00:00Z 2026-03-29T01:00:00Z 3600"});
    row("no rules", Berlin(), Settings(kHour, "", ""),
        {"2024-03-31T01:00:00Z 2024-10-27T01:00:00Z -3600",
         "2025-03-30T01:00:00Z 2025-10-26T01:00:00Z -3600",
         "2026-03-29T01:00:00Z 2026-10-25T01:00:00Z -3600"});
    row("malformed rule", Civil("2024-01-01T00:00:00", "2025-01-01T00:00:00", kHour, {}),
        Settings(kHour, "3.last.7.02:00:00", "10.Last.7.02:00:00"), {});
    row("a fifth Sunday that one year has",
        Civil("2025-01-01T00:00:00", "2027-01-01T00:00:00", kHour, {}),
        Settings(kHour, "5.5.7.02:00:00", "6.1.1.02:00:00"),
        {"2026-05-31T01:00:00Z 2026-06-01T01:00:00Z 3600"});
    row("a whole year wrong is one time",
        Civil("2024-06-01T00:00:00", "2027-06-01T00:00:00", 2 * kHour, {}), Settings(kHour, "", ""),
        {"2024-06-01T00:00:00Z 2027-06-01T00:00:00Z -3600"});
    row("the error changes",
        Civil("2024-01-01T00:00:00", "2025-01-01T00:00:00", 0,
              {{"2024-05-01T00:00:00", 1800}, {"2024-06-01T00:00:00", 3600}}),
        Settings(0, "", ""),
        {"2024-05-01T00:00:00Z 2024-06-01T00:00:00Z -1800",
         "2024-06-01T00:00:00Z 2025-01-01T00:00:00Z -3600"});
}

void TestZoneRule::WrongTimesAreTold()
{
    QFETCH(CivilTime, civil);
    QFETCH(ZoneSettings, settings);
    QTEST(Texts(WrongTimes(settings, civil)), "wrong");
}

void TestZoneRule::NothingToLookAt()
{
    const CivilTime nothing;
    QCOMPARE(Text(BestSettings(nothing, nothing)), QStringLiteral("+00:00  "));
    QVERIFY(WrongTimes(Settings(kHour, "", ""), nothing).isEmpty());
    QCOMPARE(RightUntil(Settings(kHour, "", ""), nothing), nothing.end);
}

QTEST_GUILESS_MAIN(TestZoneRule)
#include "test_zone_rule.moc"
