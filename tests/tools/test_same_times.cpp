// All kinds of clocks with the same zone, adjustment and daylight saving show the same time,
// played, exported and written as SDK XML.
#include "tool_process.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int kSide = 64;
constexpr char kInstant[] = "2024-07-01T06:00:00Z";

const QByteArray kWords[] = {"dial", "digital", "picture"};
constexpr int kKinds = 3;

/// Settings, and the reading that a clock has with them at the instant, by hand.
struct TimeRow
{
    QByteArray zone;
    QByteArray adjustment;
    bool savesDaylight;
    const char *reading;
};

// clang-format off
const TimeRow kRows[] = {
    {"+05:30", "",          false, "2024-07-01T11:30:00Z"},
    {"+05:30", "+00:10:00", false, "2024-07-01T11:40:00Z"},
    {"+05:30", "-00:10:05", false, "2024-07-01T11:19:55Z"},
    {"-09:00", "",          false, "2024-06-30T21:00:00Z"},
    {"-09:00", "+00:10:00", false, "2024-06-30T21:10:00Z"},
    {"-09:00", "-00:10:05", false, "2024-06-30T20:49:55Z"},
    {"+05:30", "",          true,  "2024-07-01T12:30:00Z"},
    {"+05:30", "+00:10:00", true,  "2024-07-01T12:40:00Z"},
    {"+05:30", "-00:10:05", true,  "2024-07-01T12:19:55Z"},
    {"-09:00", "",          true,  "2024-06-30T22:00:00Z"},
    {"-09:00", "+00:10:00", true,  "2024-06-30T22:10:00Z"},
    {"-09:00", "-00:10:05", true,  "2024-06-30T21:49:55Z"},
};
// clang-format on
constexpr int kCount = sizeof(kRows) / sizeof(*kRows);

QByteArray Setting(const QByteArray &key, const QByteArray &value)
{
    return "<attribute key='" + key + "' value='" + value + "'/>";
}

QByteArray Area(int column, int row, const QByteArray &clock)
{
    return "<area x='" + QByteArray::number(column * kSide) + "' y='"
        + QByteArray::number(row * kSide) + "' width='64' height='64'>" + clock + "</area>\n";
}

QByteArray Screen(int rows, const QByteArray &areas)
{
    return "<program width='192' height='" + QByteArray::number(rows * kSide) + "'>\n" + areas
        + "</program>";
}

/// A clock of a kind; the attributes are those of its element.
QByteArray ClockOf(int kind, const QByteArray &attributes, const QByteArray &settings)
{
    return "<clock type='" + kWords[kind] + "'" + attributes + ">"
        + (kind == 2 ? QByteArray()
                     : "<title display='false'/><week display='false'/><date display='true'/>")
        + settings + "</clock>";
}

QByteArray AttributesOf(const TimeRow &row)
{
    return " timezone='" + row.zone + "'"
        + (row.adjustment.isEmpty() ? QByteArray() : " adjust='" + row.adjustment + "'");
}

QByteArray RulesOf(const TimeRow &row)
{
    if (!row.savesDaylight)
        return {};
    return Setting("UseDaylightSavingTime", "1")
        + Setting("DaylightSavingTimeStart", "3.Last.7.02:00:00")
        + Setting("DaylightSavingTimeEnd", "10.Last.7.02:00:00");
}

/// One row of areas for each row of the table, in it one clock of each kind.
QByteArray AllTimes()
{
    QByteArray areas;
    for (int i = 0; i < kCount; ++i) {
        for (int kind = 0; kind < kKinds; ++kind)
            areas += Area(kind, i, ClockOf(kind, AttributesOf(kRows[i]), RulesOf(kRows[i])));
    }
    return Screen(kCount, areas);
}

/// The same kinds without any settings.
QByteArray PlainClocks()
{
    QByteArray areas;
    for (int kind = 0; kind < kKinds; ++kind)
        areas += Area(kind, 0, ClockOf(kind, QByteArray(), QByteArray()));
    return Screen(1, areas);
}

} // namespace

class TestSameTimes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void PlayedClocksShowTheTime_data();
    void PlayedClocksShowTheTime();
    void ExportedClocksShowTheTime_data() { PlayedClocksShowTheTime_data(); }
    void ExportedClocksShowTheTime();
    void LintSaysTheSameOfEach();
    void SdkHasTheSameOfEach();
    void EveryWayToWriteAPictureClock_data();
    void EveryWayToWriteAPictureClock();

private:
    QString Path(const QString &name) const { return m_directory.filePath(name); }

    QImage FrameAt(const QString &program, const QString &instant, const QStringList &more = {})
    {
        const QString frames = Path(QStringLiteral("frames%1").arg(++m_plays));
        const ProcessRun run = RunPlayer(QStringList {program, "--output", frames, "--frames", "1",
                                                      "--at", instant, "--language", "en"}
                                         + more);
        if (run.exitCode != 0)
            qWarning("%s", qPrintable(run.errors));
        return Frames(frames).value(0);
    }

    void CompareRow(const QImage &screen);
    QImage Expected(int row);

    QTemporaryDir m_directory;
    int m_plays = 0;
    QImage m_played;
    QImage m_exported;
    QHash<int, QImage> m_expected; // by row
};

void TestSameTimes::initTestCase()
{
    QVERIFY(WriteText(Path("all.xml"), AllTimes()));
    QVERIFY(WriteText(Path("plain.xml"), PlainClocks()));
    m_played = FrameAt(Path("all.xml"), kInstant);
    QCOMPARE(m_played.size(), QSize(kKinds * kSide, kCount * kSide));
    QCOMPARE(RunTool({"export", Path("all.xml"), Path("sent"), "--language", "en"}).exitCode, 0);
    m_exported = FrameAt(Path("sent/program.xml"), kInstant, {"--use-files"});
}

void TestSameTimes::PlayedClocksShowTheTime_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < kCount; ++i)
        QTest::newRow((kRows[i].zone + ' ' + kRows[i].adjustment
                       + (kRows[i].savesDaylight ? " daylight saving" : ""))
                          .constData())
            << i;
}

QImage TestSameTimes::Expected(int row)
{
    if (!m_expected.contains(row))
        m_expected.insert(row, FrameAt(Path("plain.xml"), kRows[row].reading));
    return m_expected[row];
}

void TestSameTimes::CompareRow(const QImage &screen)
{
    QFETCH(int, row);
    const QImage expected = Expected(row);
    QCOMPARE(expected.size(), QSize(kKinds * kSide, kSide));
    for (int kind = 0; kind < kKinds; ++kind) {
        const QRect place(kind * kSide, 0, kSide, kSide);
        QVERIFY2(screen.copy(place.translated(0, row * kSide)) == expected.copy(place),
                 kWords[kind].constData());
    }
}

void TestSameTimes::PlayedClocksShowTheTime()
{
    CompareRow(m_played);
}

void TestSameTimes::ExportedClocksShowTheTime()
{
    CompareRow(m_exported);
}

void TestSameTimes::LintSaysTheSameOfEach()
{
    const ProcessRun run = RunTool({"lint", "--no-fit", Path("all.xml")});
    QCOMPARE(run.exitCode, 0);
    QStringList lines = run.errors.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), kCount / 2 * kKinds); // a note for each clock that saves daylight
    for (int i = 0; i < lines.size(); i += kKinds) {
        for (int kind = 1; kind < kKinds; ++kind)
            QCOMPARE(lines[i + kind].section(": ", 1), lines[i].section(": ", 1));
    }
}

void TestSameTimes::SdkHasTheSameOfEach()
{
    const ProcessRun run = RunTool({"sdk", Path("all.xml")});
    QCOMPARE(run.exitCode, 0);
    QDomDocument document;
    QVERIFY(document.setContent(run.output));
    const QDomNodeList clocks = document.elementsByTagName("clock");
    QCOMPARE(clocks.count(), kCount * kKinds);
    for (int i = 0; i < clocks.count(); ++i) {
        const TimeRow &row = kRows[i / kKinds];
        const QDomElement clock = clocks.at(i).toElement();
        QCOMPARE(clock.attribute("timezone").toLatin1(), row.zone);
        QCOMPARE(clock.attribute("adjust").toLatin1(),
                 row.adjustment.isEmpty() ? QByteArray("+00:00:00") : row.adjustment);
    }
}

void TestSameTimes::EveryWayToWriteAPictureClock_data()
{
    QTest::addColumn<QByteArray>("clock");
    const QByteArray time = " timezone='+05:30' adjust='+00:10:00'";
    const QByteArray kind = Setting("ClockType", "2");
    QTest::newRow("type") << "<clock type='picture'" + time + "/>";
    QTest::newRow("type and setting") << "<clock type='picture'" + time + ">" + kind + "</clock>";
    QTest::newRow("setting") << "<clock" + time + ">" + kind + "</clock>";
    QTest::newRow("unknown type and setting")
        << "<clock type='round'" + time + ">" + kind + "</clock>";
    QTest::newRow("older form") << QByteArray(
        "<clock><clockCom clockType='2' timeZone='+05:30' timeAdjust='600'/></clock>");
    QTest::newRow("type over the older form") << QByteArray(
        "<clock type='picture'><clockCom timeZone='+05:30' timeAdjust='600'/></clock>");
    QTest::newRow("settings only") << "<clock type='picture'>" + Setting("TimeZone", "+05:30")
            + Setting("TimeAdjust", "00A10B00") + "</clock>";
}

void TestSameTimes::EveryWayToWriteAPictureClock()
{
    QFETCH(QByteArray, clock);
    QVERIFY(WriteText(Path("one.xml"), Screen(1, Area(0, 0, clock))));
    QVERIFY(WriteText(Path("utc.xml"), Screen(1, Area(0, 0, "<clock type='picture'/>"))));
    const QImage expected = FrameAt(Path("utc.xml"), "2024-07-01T11:40:00Z");
    QVERIFY(!expected.isNull());
    QVERIFY(FrameAt(Path("one.xml"), kInstant) == expected);
    QVERIFY(FrameAt(Path("utc.xml"), kInstant) != expected);
}

QTEST_GUILESS_MAIN(TestSameTimes)
#include "test_same_times.moc"
