// The real player in a window of a real display, with real key presses. Where rows wait for seconds
// to pass, their players run side by side and wait together, at the first row.
#include "stepped_player.h"

#include <QtTest>

#include <memory>
#include <vector>

namespace {

const QString kPanels = QStringLiteral(PANEL_PLUGINS "/good");

QString Clock(int x, const QString &zone, const QString &rules)
{
    return QStringLiteral("<area x=\"%1\" y=\"0\" width=\"128\" height=\"48\"><clock>"
                          "<clockCom clockType=\"1\" timeZone=\"%2\" %3/>"
                          "<title display=\"false\"/><date display=\"false\"/>"
                          "<week display=\"false\"/>"
                          "<time display=\"true\" format=\"0\" fontName=\"DejaVu Sans Mono\" "
                          "fontSize=\"20\" color=\"#ffffff\"/></clock></area>")
        .arg(x)
        .arg(zone, rules);
}

// Berlin, and a clock without daylight saving.
const QString kClocks = "<program width=\"256\" height=\"48\">"
    + Clock(0, "+01:00",
            "isDaylightSavingTime=\"1\" Start=\"3.Last.7.02:00:00\" End=\"10.Last.7.02:00:00\"")
    + Clock(128, "+09:00", "isDaylightSavingTime=\"0\"") + "</program>";

const QString kPanel =
    "<program width=\"80\" height=\"20\">"
    "<area x=\"10\" y=\"5\" width=\"40\" height=\"10\"><panel/></area></program>";

/// A player at a speed, and since when it is watched.
struct SpeedPlayer
{
    const char *name;
    double speed;
    std::unique_ptr<Player> player;
    QElapsedTimer before; ///< the first look at its time
    QDateTime from;
    QElapsedTimer after;
};

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void TitleFollowsTheTime();
    void KeysStep_data();
    void KeysStep();
    void PauseStopsTheTime();
    void NowReturns();
    void TabGoesFromClockToClock();
    void Speeds_data();
    void Speeds();
    void QuitKeys_data();
    void QuitKeys();

    void DiodesOnTheDisplay();
    void OverlayOnTheDisplay();

    void StatsOnDemandAndAtTheEnd();
    void SteppedSystemClock_data();
    void SteppedSystemClock();

    void DisplayGoesAway();

private:
    QString Write(const QString &contents);
    void StartSpeeds();
    void PlaySteps();
    std::unique_ptr<Player> Play(const QString &program, const QStringList &arguments = {});

    TestDisplay m_display;
    QTemporaryDir m_directory;
    std::vector<SpeedPlayer> m_speeds;
    std::vector<SteppedPlayer> m_stepped;
};

void TestWindow::initTestCase()
{
    if (!TestDisplay::IsInstalled())
        QFAIL("needs Xvfb and xdotool");
    QVERIFY(m_display.Start());
}

QString TestWindow::Write(const QString &contents)
{
    QFile file(m_directory.filePath("program.xml"));
    if (file.open(QIODevice::WriteOnly))
        file.write(contents.toUtf8());
    return file.fileName();
}

std::unique_ptr<Player> TestWindow::Play(const QString &program, const QStringList &arguments)
{
    return std::make_unique<Player>(m_display, QStringList {Write(program)} + arguments,
                                    m_display.Environment());
}

void TestWindow::TitleFollowsTheTime()
{
    const auto player = Play(kClocks);
    QVERIFY(player->IsOpen());
    QTRY_VERIFY_WITH_TIMEOUT(player->Instant().isValid(), 30000);
    const auto isPresent = [&player] {
        const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-2);
        const QDateTime shown = player->Instant();
        return shown >= before && shown <= QDateTime::currentDateTimeUtc();
    };
    QTRY_VERIFY(isPresent());
    const QDateTime first = player->Instant();
    QTRY_VERIFY(player->Instant() > first);
    QTRY_VERIFY(isPresent());
}

void TestWindow::KeysStep_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("title");
    const QString night = "program.xml | 2024-03-31T00:";
    const QString begins =
        " +01:00 | daylight saving begins 2024-03-31T01:00:00Z: 02:00:00 becomes 03:00:00";
    const QString ends =
        " +02:00 | daylight saving ends 2024-10-27T01:00:00Z: 03:00:00 becomes 02:00:00";
    const auto row = [](const char *name, const QStringList &keys, const QString &title) {
        QTest::newRow(name) << keys << "program.xml | " + title;
    };
    const QString clock = "Z paused | clock 1 of 2: ";
    row("a second", {"Right"}, "2024-03-31T00:59:59" + clock + "2024-03-31 01:59:59" + begins);
    row("two seconds, into the period", {"Right", "Right"},
        "2024-03-31T01:00:00" + clock + "2024-03-31 03:00:00" + ends);
    row("and out of it", {"Right", "Right", "Left"},
        "2024-03-31T00:59:59" + clock + "2024-03-31 01:59:59" + begins);
    row("a minute", {"Up"}, "2024-03-31T01:00:58" + clock + "2024-03-31 03:00:58" + ends);
    row("a minute back", {"Down"}, "2024-03-31T00:58:58" + clock + "2024-03-31 01:58:58" + begins);
    row("an hour", {"shift+Right"}, "2024-03-31T01:59:58" + clock + "2024-03-31 03:59:58" + ends);
    row("an hour back", {"shift+Left"},
        "2024-03-30T23:59:58" + clock + "2024-03-31 00:59:58" + begins);
    row("a day", {"shift+Up"}, "2024-04-01T00:59:58" + clock + "2024-04-01 02:59:58" + ends);
    row("a day back", {"shift+Down"},
        "2024-03-30T00:59:58" + clock + "2024-03-30 01:59:58" + begins);
}

// Slow enough that the first second lasts until the key that stops it has been pressed.
void TestWindow::KeysStep()
{
    QFETCH(QStringList, keys);
    QFETCH(QString, title);
    const auto player = Play(kClocks, {"--at", "2024-03-31T00:59:58Z", "--speed", "0.01"});
    player->Press("space");
    QTRY_VERIFY(player->Title().contains("2024-03-31T00:59:58Z x0.01 paused"));
    for (const QString &key : keys)
        player->Press(key);
    QTRY_COMPARE(player->Title().remove(" x0.01"), title);
}

void TestWindow::PauseStopsTheTime()
{
    const auto player = Play(kClocks, {"--at", "2024-06-01T12:00:00Z", "--speed", "10"});
    QTRY_VERIFY(player->Title().contains("2024-06-01T12:00:"));
    player->Press("space");
    QTRY_VERIFY(player->Title().contains(" paused"));
    const QString title = player->Title();
    QTest::qWait(500); // five seconds at this speed
    QCOMPARE(player->Title(), title);
    const QDateTime stopped = player->Instant();
    player->Press("space");
    QTRY_VERIFY(!player->Title().contains(" paused"));
    QTRY_VERIFY(player->Instant() >= stopped.addSecs(1));
    QVERIFY(player->Instant() < stopped.addSecs(300));
}

void TestWindow::NowReturns()
{
    const auto player = Play(kClocks, {"--at", "1999-12-31T23:59:59Z", "--speed", "60"});
    QTRY_VERIFY(player->Title().contains("Z x60 | "));
    player->Press("space");
    QTRY_VERIFY(player->Title().contains(" x60 paused"));
    player->Press("n");
    QTRY_VERIFY(!player->Title().contains(" x60"));
    QVERIFY(!player->Title().contains(" paused"));
    const qint64 late = player->Instant().secsTo(QDateTime::currentDateTimeUtc());
    QVERIFY2(late >= 0 && late <= 3, qPrintable(QString::number(late)));
}

void TestWindow::TabGoesFromClockToClock()
{
    const auto player = Play(kClocks, {"--at", "2024-06-01T12:00:00Z", "--speed", "0.01"});
    QTRY_VERIFY(player->Title().contains("clock 1 of 2: 2024-06-01 14:00:00 +02:00"));
    player->Press("Tab");
    QTRY_VERIFY(player->Title().contains("clock 2 of 2: 2024-06-01 21:00:00 +09:00"));
    QVERIFY(player->Title().endsWith(" | no daylight saving"));
    player->Press("Tab");
    QTRY_VERIFY(player->Title().contains("clock 1 of 2"));
}

void TestWindow::Speeds_data()
{
    m_speeds.push_back({"ten", 10, {}, {}, {}, {}});
    m_speeds.push_back({"an hour a second", 3600, {}, {}, {}, {}});
    m_speeds.push_back({"the fastest", 100000, {}, {}, {}, {}});
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < m_speeds.size(); ++i)
        QTest::newRow(m_speeds[i].name) << int(i);
}

void TestWindow::StartSpeeds()
{
    for (SpeedPlayer &speed : m_speeds)
        speed.player = Play(
            kClocks, {"--at", "2024-01-01T00:00:00Z", "--speed", QString::number(speed.speed)});
    for (SpeedPlayer &speed : m_speeds) {
        QTRY_VERIFY_WITH_TIMEOUT(speed.player->Instant().isValid(), 30000);
        speed.before.start();
        speed.from = speed.player->Instant();
        speed.after.start();
    }
    QTest::qWait(2000);
}

// Whatever delays a look at the time, the time belongs to a moment between those before and after.
void TestWindow::Speeds()
{
    QFETCH(int, index);
    SpeedPlayer &speed = m_speeds[std::size_t(index)];
    if (!speed.player)
        StartSpeeds();
    const double shortest = double(speed.after.elapsed()) / 1000;
    const QDateTime to = speed.player->Instant();
    const double longest = double(speed.before.elapsed()) / 1000;
    // A title may be as old as its second lasts, and the player may be kept waiting: by a machine
    // that tests other things too, as well. The exact times are tested without a window.
    const double passed = double(speed.from.secsTo(to)) / speed.speed;
    speed.player.reset();
    QVERIFY2(passed > shortest - 1 && passed < longest + 1,
             qPrintable(QStringLiteral("%1 s in %2 to %3").arg(passed).arg(shortest).arg(longest)));
}

void TestWindow::QuitKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("q") << "q";
    QTest::newRow("Escape") << "Escape";
}

void TestWindow::QuitKeys()
{
    QFETCH(QString, key);
    const auto player = Play(kPanel, {"--plugin-dir", kPanels});
    QVERIFY(player->IsOpen());
    player->Press(key);
    QVERIFY2(player->Finish() == 0, qPrintable(player->Errors()));
    QCOMPARE(player->Errors(), QString());
}

void TestWindow::DiodesOnTheDisplay()
{
    const auto player = Play(
        kPanel,
        {"--plugin-dir", kPanels, "--at", "2024-05-06T07:08:33Z", "--speed", "0.01", "--led", "8"});
    QVERIFY(player->IsOpen());
    const QPoint origin = player->Position();
    const auto pixel = [&](int x, int y, int inX, int inY) {
        return m_display.Screenshot().pixel(origin + QPoint(8 * x + inX, 8 * y + inY))
            | 0xff000000U;
    };
    QTRY_COMPARE(pixel(20, 8, 4, 4), qRgb(33, 1, 100));
    QCOMPARE(pixel(49, 14, 4, 4), qRgb(33, 1, 100));
    QCOMPARE(pixel(20, 8, 0, 0), qRgb(0, 0, 0));
    QCOMPARE(pixel(20, 8, 7, 7), qRgb(0, 0, 0));
    QCOMPARE(pixel(10, 8, 4, 4), qRgb(18, 18, 20)); // the key colour
    QCOMPARE(pixel(50, 8, 4, 4), qRgb(18, 18, 20)); // no area
    player->Press("Right");
    QTRY_COMPARE(pixel(20, 8, 4, 4), qRgb(34, 1, 100));
    QCOMPARE(pixel(10, 8, 4, 4), qRgb(18, 18, 20));
}

void TestWindow::OverlayOnTheDisplay()
{
    const auto player = Play(
        kPanel,
        {"--plugin-dir", kPanels, "--led", "8", "--at", "2024-05-06T07:08:33Z", "--speed", "0.01"});
    QVERIFY(player->IsOpen());
    const QRect window(player->Position(), QSize(640, 160));
    const auto whitePixels = [&] {
        const QImage picture = m_display.Screenshot().copy(window);
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += qGray(picture.pixel(x, y)) > 200 ? 1 : 0;
        }
        return count;
    };
    QTRY_COMPARE(whitePixels(), 0);
    player->Press("o");
    QTRY_VERIFY(whitePixels() > 50);
    const int status = whitePixels();
    player->Press("h");
    QTRY_VERIFY(whitePixels() > 3 * status);
    player->Press("h");
    player->Press("o");
    QTRY_COMPARE(whitePixels(), 0);
}

void TestWindow::StatsOnDemandAndAtTheEnd()
{
    const auto player = Play(kClocks, {"--stats"});
    QTRY_VERIFY(player->Instant().isValid());
    const QDateTime start = player->Instant();
    QTRY_VERIFY(player->Instant() >= start.addSecs(3));
    player->Press("s");
    QTRY_COMPARE(player->Errors().count("lateness ms: "), 1);
    player->Signal(SIGUSR1);
    QTRY_COMPARE(player->Errors().count("lateness ms: "), 2);
    player->Press("q");
    QVERIFY2(player->Finish() == 0, qPrintable(player->Errors()));
    const QString errors = player->Errors();
    const QRegularExpression report(
        "clock_player: frames: (\\d+), missed seconds: (\\d+), clock steps: (\\d+), "
        "second presentations: \\d+\n"
        "clock_player: drawing ms: minimum ([\\d.]+), median ([\\d.]+), 99th percentile ([\\d.]+), "
        "maximum ([\\d.]+)\n"
        "clock_player: lateness ms: minimum ([\\d.]+), median ([\\d.]+), 99th percentile "
        "([\\d.]+), maximum ([\\d.]+)\n");
    QRegularExpressionMatchIterator reports = report.globalMatch(errors);
    QRegularExpressionMatch last;
    int count = 0;
    for (; reports.hasNext(); ++count)
        last = reports.next();
    QVERIFY2(count == 3, qPrintable(errors));
    QVERIFY(last.captured(1).toInt() >= 3);
    QCOMPARE(last.captured(3), QString("0"));
    for (const int first : {4, 8}) {
        for (int i = first; i < first + 3; ++i)
            QVERIFY(last.captured(i).toDouble() <= last.captured(i + 1).toDouble());
    }
    QVERIFY(last.captured(4).toDouble() > 0);
    QVERIFY(last.captured(8).toDouble() >= 0);
    QVERIFY2(last.captured(8).toDouble() < 500, qPrintable(errors));
}

void TestWindow::SteppedSystemClock_data()
{
    const auto to = [](int year) {
        return QDateTime::currentDateTimeUtc().msecsTo(
            QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC));
    };
    m_stepped.emplace_back("forwards", QVector<qint64> {7200500});
    m_stepped.emplace_back("backwards", QVector<qint64> {-86400300});
    m_stepped.emplace_back("there and back", QVector<qint64> {5000, -5000, 0});
    m_stepped.emplace_back("to 1970 and back", QVector<qint64> {to(1970), 0});
    m_stepped.emplace_back("to 2051 and beyond 2100", QVector<qint64> {to(2051), to(2101)});
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < m_stepped.size(); ++i)
        QTest::newRow(m_stepped[i].Name()) << int(i);
}

void TestWindow::PlaySteps()
{
    const QString program = Write(kClocks);
    int most = 0;
    for (SteppedPlayer &player : m_stepped) {
        player.Start(m_display, program, m_directory.path());
        most = qMax(most, player.Steps());
    }
    for (SteppedPlayer &player : m_stepped)
        QTRY_VERIFY_WITH_TIMEOUT(player.ShowsItsTime(), 30000);
    for (SteppedPlayer &player : m_stepped)
        QTRY_VERIFY(player.GoesOn());
    for (int step = 0; step < most; ++step) {
        for (SteppedPlayer &player : m_stepped)
            player.Step(step);
        for (SteppedPlayer &player : m_stepped)
            player.AwaitStep(step);
        for (SteppedPlayer &player : m_stepped)
            player.AwaitNextSecond(step);
    }
}

void TestWindow::SteppedSystemClock()
{
    QFETCH(int, index);
    SteppedPlayer &stepped = m_stepped[std::size_t(index)];
    if (!stepped.HasStarted())
        PlaySteps();
    Player &player = stepped.Window();
    QVERIFY(player.IsOpen());
    QCOMPARE(stepped.FollowedSteps(), stepped.Steps());
    QCOMPARE(stepped.ContinuedSteps(), stepped.Steps());
    player.Focus();
    player.Press("q");
    QVERIFY2(player.Finish() == 0, qPrintable(player.Errors()));
    const QString errors = player.Errors();
    QVERIFY2(errors.contains(QStringLiteral("clock steps: %1,").arg(stepped.Steps())),
             qPrintable(errors));
    const QRegularExpressionMatch missed =
        QRegularExpression("missed seconds: (\\d+)").match(errors);
    QVERIFY2(missed.hasMatch() && missed.captured(1).toInt() < 60, qPrintable(errors));
}

// The player ends as where it reaches none, and tidies up.
void TestWindow::DisplayGoesAway()
{
    TestDisplay display;
    QVERIFY(display.Start());
    const QTemporaryDir temporary;
    QProcessEnvironment environment = display.Environment();
    environment.insert("XDG_RUNTIME_DIR", m_directory.path());
    environment.insert("TMPDIR", temporary.path());
    Player player(display, {Write(kClocks)}, environment);
    QVERIFY(player.IsOpen());
    const QDir directory(temporary.path());
    QTRY_COMPARE_WITH_TIMEOUT(directory.entryList({"clock_player-*"}, QDir::Dirs).size(), 1, 30000);
    display.Kill();
    QCOMPARE(player.Finish(), 1);
    QVERIFY2(player.Errors().contains("X11 connection broke"), qPrintable(player.Errors()));
    QVERIFY2(directory.isEmpty(), qPrintable(directory.entryList().join(' ')));
}

QTEST_GUILESS_MAIN(TestWindow)
#include "test_window.moc"
