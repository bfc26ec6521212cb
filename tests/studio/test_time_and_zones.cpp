// The next change of anything, zones by city, and templates that lint finds nothing in.
#include "sample_programs.h"

#include "files/templates.h"
#include "findings/finding_fix.h"
#include "panels/time_changes.h"
#include "panels/view_positions.h"
#include "properties/zone_choice.h"

using namespace ClockStudio;

namespace {

qint64 Utc(const char *text)
{
    return QDateTime::fromString(QLatin1String(text), Qt::ISODate).toMSecsSinceEpoch();
}

const qint64 kInstant = Utc("2026-06-01T00:00:00Z");
const Lw::HNodeClock::ZoneSettings kBerlin {3600, "3.Last.7.02:00:00", "10.Last.7.02:00:00"};
const Lw::HNodeClock::ZoneSettings kTokyo {9 * 3600, {}, {}};

QStringList Cities(const QString &search)
{
    QStringList cities;
    for (const ZoneName &zone : MatchingZones(search))
        cities.append(zone.city);
    return cities;
}

} // namespace

class TestTimeAndZones : public QObject
{
    Q_OBJECT

private slots:
    void NextChange_data();
    void NextChange();
    void FirstOfSeveral();
    void Search();
    void Settings();
    void TemplatesAreGood();
    void FindingsAreFixed();
    void EditorPositions();
};

void TestTimeAndZones::NextChange_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QString>("next");
    const auto row = [](const char *name, ChangeKind kind, const char *now, const char *next) {
        QTest::newRow(name) << int(kind) << now << next;
    };
    row("summer", ChangeKind::DaylightSaving, "2026-01-01T00:00:00Z", "2026-03-29T01:00:00Z");
    row("winter", ChangeKind::DaylightSaving, "2026-06-01T00:00:00Z", "2026-10-25T01:00:00Z");
    row("midnight", ChangeKind::Midnight, "2026-01-01T12:00:00Z", "2026-01-01T23:00:00Z");
    row("midnight in summer", ChangeKind::Midnight, "2026-07-01T12:00:00Z", "2026-07-01T22:00:00Z");
    row("month", ChangeKind::Month, "2026-01-15T12:00:00Z", "2026-01-31T23:00:00Z");
    row("year", ChangeKind::Year, "2026-07-15T12:00:00Z", "2026-12-31T23:00:00Z");
    // The Chinese new year of 2026 is 17 February.
    row("lunar month", ChangeKind::LunarMonth, "2026-02-10T12:00:00Z", "2026-02-16T23:00:00Z");
}

void TestTimeAndZones::NextChange()
{
    QFETCH(int, kind);
    QFETCH(QString, now);
    QFETCH(QString, next);
    const auto found = NextChangeOf(static_cast<ChangeKind>(kind), {kBerlin}, Utc(qPrintable(now)));
    QVERIFY(found);
    QCOMPARE(*found, Utc(qPrintable(next)));
}

void TestTimeAndZones::FirstOfSeveral()
{
    const qint64 now = Utc("2026-01-01T12:00:00Z");
    QCOMPARE(NextChangeOf(ChangeKind::Midnight, {kBerlin, kTokyo}, now).value(),
             Utc("2026-01-01T15:00:00Z"));
    QVERIFY(!NextChangeOf(ChangeKind::DaylightSaving, {kTokyo}, now));
    QVERIFY(!NextChangeOf(ChangeKind::Midnight, {}, now));
}

void TestTimeAndZones::Search()
{
    QVERIFY(Cities({}).size() > 300);
    QVERIFY(Cities("berlin").contains("Berlin"));
    QVERIFY(Cities("Germany").contains("Berlin"));
    QVERIFY(Cities("new york").contains("New York"));
    QVERIFY(Cities("Tehran") == QStringList("Tehran"));
    QVERIFY(Cities("+05:30").contains("Kolkata"));
    QVERIFY(!Cities("+05:30").contains("Berlin"));
    QCOMPARE(Cities("no such place"), QStringList());
    // Chagos is in the British Indian Ocean Territory.
    const QStringList found = Cities(" te");
    QVERIFY(found.contains("Tehran") && found.contains("Chagos"));
    QVERIFY(found.indexOf("Tehran") < found.indexOf("Chagos"));
}

void TestTimeAndZones::Settings()
{
    const auto berlin = SettingsFor("Europe/Berlin", QDate(2026, 1, 1));
    QVERIFY(berlin);
    QCOMPARE(berlin->settings.ZoneText(), QString("+01:00"));
    QCOMPARE(berlin->settings.start, QString("3.Last.7.02:00:00"));
    QVERIFY(berlin->wrong.isEmpty());
    // Its daylight saving stops for Ramadan, which moves through the year.
    const auto casablanca = SettingsFor("Africa/Casablanca", QDate(2026, 1, 1));
    QVERIFY(casablanca);
    QVERIFY(!casablanca->wrong.isEmpty());
    QVERIFY(!SettingsFor("Europe/Atlantis", QDate(2026, 1, 1)));
}

void TestTimeAndZones::TemplatesAreGood()
{
    QVERIFY(Templates().size() >= 12);
    for (const Template &one : Templates()) {
        const QByteArray bytes = ContentsOf(QStringLiteral(TEMPLATES "/%1.xml").arg(one.name));
        QVERIFY2(!bytes.isEmpty(), qPrintable(one.name));
        for (const ClockTool::Finding &finding :
             FindingsIn(MustRead(QString::fromUtf8(bytes)), kInstant))
            QVERIFY2(finding.severity == ClockTool::Severity::Note,
                     qPrintable(one.name + ": " + finding.text));
    }
}

void TestTimeAndZones::FindingsAreFixed()
{
    const ParsedProgram parsed =
        MustRead("<program width=\"9\" height=\"9\">\n<area x=\"0\" y=\"0\" width=\"9\" "
                 "height=\"9\">\n<clock type=\"digital\">\n<date colour=\"red\"/>\n</clock></area>"
                 "</program>");
    bool isFixed = false;
    for (const ClockTool::Finding &finding : FindingsIn(parsed, kInstant)) {
        if (finding.place.element != "date")
            continue; // an area this small has others
        QCOMPARE(finding.place.line, 4);
        QCOMPARE(parsed.elements[ElementOf(parsed, finding)].name, QString("date"));
        if (const auto edit = FixOf(parsed, finding, kInstant)) {
            QString text = parsed.text;
            ApplyEdits(text, {*edit});
            QVERIFY(text.contains("<date color=\"red\"/>"));
            isFixed = true;
        }
    }
    QVERIFY(isFixed);
}

void TestTimeAndZones::EditorPositions()
{
    const QString text = "a\r\nb\rc\n\r\nd";
    QCOMPARE(InEditor(text), QString("a\nb\nc\n\nd"));
    const int both[][2] = {{0, 0}, {1, 1}, {3, 2}, {4, 3}, {5, 4}, {6, 5}, {7, 6}, {9, 7}, {10, 8}};
    for (const auto &pair : both) {
        QCOMPARE(ToEditor(text, pair[0]), pair[1]);
        QCOMPARE(FromEditor(text, pair[1]), pair[0]);
    }
}

QTEST_MAIN(TestTimeAndZones)
#include "test_time_and_zones.moc"
