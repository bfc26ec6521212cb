// The zone that a person means who writes another name.
#include "zone_words/nearest_zone.h"

#include "system_zones.h"

#include <QTest>

using namespace ClockTool;
using ClockZones::ZoneNames;

class TestNearestZone : public QObject
{
    Q_OBJECT

private slots:
    void Nearest_data();
    void Nearest();
    void CitiesAreInZonesThatExist();
};

void TestNearestZone::Nearest_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("nearest");
    QTest::newRow("city") << "Berlin"
                          << "Europe/Berlin";
    QTest::newRow("city in small letters") << "berlin"
                                           << "Europe/Berlin";
    QTest::newRow("city with a slip") << "Berln"
                                      << "Europe/Berlin";
    QTest::newRow("city of two words") << "new york"
                                       << "America/New_York";
    QTest::newRow("slip") << "Europe/Berln"
                          << "Europe/Berlin";
    QTest::newRow("small letters") << "europe/berlin"
                                   << "Europe/Berlin";
    QTest::newRow("another continent") << "Asia/Berlin"
                                       << "Europe/Berlin";
    QTest::newRow("nothing like it") << "Xyzzyplugh"
                                     << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("huge") << QString(1 << 20, QLatin1Char('x')) << "";
}

void TestNearestZone::Nearest()
{
    QFETCH(QString, name);
    QTEST(NearestZone(name), "nearest");
}

// Each city of the list leads to a zone of the system, and none has one of its own name.
void TestNearestZone::CitiesAreInZonesThatExist()
{
    const QList<QByteArray> zones = ZoneNames();
    for (const char *city : {"Beijing", "mumbai", "Munich", "San Francisco", "rio_de_janeiro"}) {
        const QString zone = NearestZone(city);
        QVERIFY2(zones.contains(zone.toLatin1()), city);
    }
    QCOMPARE(NearestZone(QString::fromUtf8("münchen")), QString("Europe/Berlin"));
}

QTEST_GUILESS_MAIN(TestNearestZone)
#include "test_nearest_zone.moc"
