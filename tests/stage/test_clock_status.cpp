// The line about a clock's time and its next change, and the settings that it is made from.
#include "clock_status.h"

#include "hnode.h"

#include <QtTest>

using namespace ClockStage;
using Lw::HNodeClock::ZoneSettings;

Q_DECLARE_METATYPE(ClockStage::Status)

namespace {

qint64 Instant(const char *text)
{
    QDateTime instant = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
    instant.setTimeSpec(Qt::UTC);
    return instant.toMSecsSinceEpoch();
}

const ZoneSettings kBerlin {3600, QStringLiteral("3.Last.7.02:00:00"),
                            QStringLiteral("10.Last.7.02:00:00")};

} // namespace

class TestClockStatus : public QObject
{
    Q_OBJECT

private slots:
    void SettingsOfNodes();
    void StatusTexts_data();
    void StatusTexts();
    void MemoryFollowsInstantAndSettings();
};

void TestClockStatus::SettingsOfNodes()
{
    QVERIFY(!SettingsOf(nullptr));
    Lw::HNode node;
    QVERIFY(!SettingsOf(&node));
    node.SetAttribute("TimeZone", "-03:30", false);
    const std::optional<ZoneSettings> plain = SettingsOf(&node);
    QVERIFY(plain.has_value());
    QCOMPARE(plain->offset, -12600);
    QVERIFY(!plain->HasDaylightSaving());
    node.SetAttribute("TimeAdjust", "00:01:05", false);
    node.SetAttribute("AdjustType", 1, false);
    node.SetAttribute("UseDaylightSavingTime", 1, false);
    node.SetAttribute("DaylightSavingTimeStart", kBerlin.start, false);
    node.SetAttribute("DaylightSavingTimeEnd", kBerlin.end, false);
    const std::optional<ZoneSettings> all = SettingsOf(&node);
    QCOMPARE(all->offset, -12665);
    QCOMPARE(all->start, kBerlin.start);
    QCOMPARE(all->end, kBerlin.end);
}

void TestClockStatus::StatusTexts_data()
{
    QTest::addColumn<Status>("status");
    QTest::addColumn<QString>("text");
    const qint64 night = Instant("2024-03-31T00:59:58");
    QTest::newRow("no clock") << Status {night, false, 1, std::nullopt, 1, 1}
                              << "2024-03-31T00:59:58Z";
    QTest::newRow("fast, and paused")
        << Status {night, true, 60, std::nullopt, 1, 1} << "2024-03-31T00:59:58Z x60 paused";
    QTest::newRow("slow") << Status {night, false, 0.5, std::nullopt, 1, 1}
                          << "2024-03-31T00:59:58Z x0.5";
    QTest::newRow("before it begins")
        << Status {night, false, 1, kBerlin, 1, 1}
        << "2024-03-31T00:59:58Z | 2024-03-31 01:59:58 +01:00 | daylight saving begins "
           "2024-03-31T01:00:00Z: 02:00:00 becomes 03:00:00";
    QTest::newRow("before the year 1, as there is no year 0")
        << Status {Instant("0001-01-01T00:00:00"),
                   false,
                   1,
                   ZoneSettings {-3600, QString(), QString()},
                   1,
                   1}
        << "0001-01-01T00:00:00Z | -0001-12-31 23:00:00 -01:00 | no daylight saving";
    QTest::newRow("after the year 9999, adjusted by more than 99 hours")
        << Status {Instant("9999-12-31T00:00:00"),
                   false,
                   1,
                   ZoneSettings {113 * 3600, QString(), QString()},
                   1,
                   1}
        << "9999-12-31T00:00:00Z | 10000-01-04 17:00:00 +113:00 | no daylight saving";
    QTest::newRow("before it ends")
        << Status {night + 2000, false, 1, kBerlin, 2, 4}
        << "2024-03-31T01:00:00Z | clock 2 of 4: 2024-03-31 03:00:00 +02:00 | daylight saving ends "
           "2024-10-27T01:00:00Z: 03:00:00 becomes 02:00:00";
    QTest::newRow("without, and adjusted by seconds")
        << Status {night, false, 1, ZoneSettings {-12665, QString(), QString()}, 1, 1}
        << "2024-03-31T00:59:58Z | 2024-03-30 21:28:53 -03:31:05 | no daylight saving";
}

void TestClockStatus::StatusTexts()
{
    QFETCH(Status, status);
    QFETCH(QString, text);
    ZoneMemory memory;
    QCOMPARE(StatusText(status, memory), text);
    QCOMPARE(StatusText(status, memory), text); // as it is kept
}

// Whatever was asked before, the answers are those of the calculation.
void TestClockStatus::MemoryFollowsInstantAndSettings()
{
    const qint64 march = Instant("2024-03-31T00:59:59");
    const ZoneSettings tokyo {9 * 3600, QString(), QString()};
    const QVector<qint64> instants {
        march,           march + 1000, march, march + 200LL * 86400000, march - 300LL * 86400000,
        march + 86400000};
    ZoneMemory memory;
    for (const qint64 instant : instants) {
        for (const ZoneSettings &zone : {kBerlin, tokyo}) {
            QCOMPARE(memory.OffsetAt(zone, instant), OffsetAt(zone, instant));
            const auto kept = memory.NextChange(zone, instant);
            const auto found = NextChange(zone, instant);
            QCOMPARE(kept.has_value(), found.has_value());
            QCOMPARE(kept ? kept->instant : 0, found ? found->instant : 0);
        }
    }
}

QTEST_GUILESS_MAIN(TestClockStatus)
#include "test_clock_status.moc"
