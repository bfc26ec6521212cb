#include "zone_words/rule_note.h"

#include <QTest>

using namespace ClockTool;
using ClockZones::ZoneSettings;

class TestRuleNote : public QObject
{
    Q_OBJECT

private slots:
    void Notes_data();
    void Notes();
};

void TestRuleNote::Notes_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("note");
    const auto row = [](const char *name, int hours, const char *start, const char *end,
                        const char *note) {
        QTest::newRow(name) << hours * 3600 << start << end << note;
    };
    row("a zone's", 1, "3.Last.7.02:00:00", "10.Last.7.02:00:00",
        "these rules give the time of Europe/Berlin until 2036");
    row("written otherwise", 1, " 03 .Last.+7.02:00:00", "10.Last.7.02:00:00",
        "these rules give the time of Europe/Berlin until 2036");
    row("a zone that few know", -6, "9.1.6.22:00:00", "4.1.6.21:00:00",
        "these rules give the time of Pacific/Easter until 2036");
    row("end as published", 1, "3.Last.7.02:00:00", "10.Last.7.03:00:00",
        "daylight saving ends an hour late for Europe/Berlin: the end is in standard time, an hour "
        "before the published one; accepted: 10.Last.7.02:00:00");
    row("another offset", 3, "3.2.7.02:00:00", "11.1.7.01:00:00", "no known zone uses these rules");
    row("end at midnight", 3, "3.2.7.02:00:00", "11.1.7.00:30:00",
        "no known zone uses these rules");
    row("a fifth Sunday, the last until 2026", 1, "3.5.7.02:00:00", "10.Last.7.02:00:00", "");
    row("malformed start", 1, "3.last.7.02:00:00", "10.Last.7.02:00:00", "");
    row("malformed end", 1, "3.Last.7.02:00:00", "10.Last.7.2:00:00", "");
    row("no rules", 1, "", "", "");
}

void TestRuleNote::Notes()
{
    QFETCH(int, offset);
    QFETCH(QString, start);
    QFETCH(QString, end);
    const ZoneSettings settings {offset, start, end};
    QTEST(NoteOnRules(settings, QDate(2026, 1, 1)).text, "note");
    QTEST(NoteOnRules(settings, QDate(2026, 1, 1)).text, "note"); // remembered
    QVERIFY(NoteOnRules(settings, QDate(2039, 1, 1)).text.isEmpty());
    const bool isLate = end == "10.Last.7.03:00:00";
    QCOMPARE(NoteOnRules(settings, QDate(2026, 1, 1)).rightEnd,
             QString(isLate ? "10.Last.7.02:00:00" : ""));
}

QTEST_GUILESS_MAIN(TestRuleNote)
#include "test_rule_note.moc"
