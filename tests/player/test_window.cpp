// The real player in a window of a real display, with real key presses.
#include "stepping_clock.h"
#include "test_display.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QtTest>

#include <csignal>
#include <memory>

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

/// One player in its window, from its first title on.
class Player
{
public:
    Player(const TestDisplay &display, const QStringList &arguments,
           QProcessEnvironment environment)
        : m_display(display)
    {
        environment.insert("QT_QPA_PLATFORM", "xcb");
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(PLAYER), arguments);
        m_process.waitForStarted();
        QElapsedTimer timer;
        timer.start();
        const QString pid = QString::number(m_process.processId());
        while (m_window.isEmpty() && timer.elapsed() < 30000 && !m_process.waitForFinished(20))
            m_window = m_display.Do({"search", "--onlyvisible", "--pid", pid});
        // A window that is only just coming up cannot take the focus yet.
        while (IsOpen() && m_display.Do({"getwindowfocus", "-f"}) != m_window
               && timer.elapsed() < 30000)
            m_display.Do({"windowfocus", m_window});
    }

    ~Player()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    QString Title() const { return m_display.Do({"getwindowname", m_window}); }
    bool IsOpen() const { return !m_window.isEmpty(); }
    void Press(const QString &key) const { m_display.Do({"key", key}); }
    void Signal(int number) const { ::kill(static_cast<pid_t>(m_process.processId()), number); }

    /// UTC; invalid when the title tells none.
    QDateTime Instant() const
    {
        const QString text = QRegularExpression("\\| (\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ)")
                                 .match(Title())
                                 .captured(1);
        return QDateTime::fromString(text, Qt::ISODate);
    }

    QPoint Position() const
    {
        const QRegularExpressionMatch match =
            QRegularExpression("Position: (\\d+),(\\d+)")
                .match(m_display.Do({"getwindowgeometry", m_window}));
        return {match.captured(1).toInt(), match.captured(2).toInt()};
    }

    QString Errors()
    {
        while (m_process.waitForReadyRead(10)) { }
        m_errors += QString::fromLocal8Bit(m_process.readAllStandardError());
        return m_errors;
    }

    /// The exit code of a player that ends by itself, else -1.
    int Finish()
    {
        return m_process.waitForFinished(20000) && m_process.exitStatus() == QProcess::NormalExit
            ? m_process.exitCode()
            : -1;
    }

private:
    const TestDisplay &m_display;
    QProcess m_process;
    QString m_window;
    QString m_errors;
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

private:
    QString Write(const QString &contents);
    std::unique_ptr<Player> Play(const QString &program, const QStringList &arguments = {});

    TestDisplay m_display;
    QTemporaryDir m_directory;
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
    const auto player = Play(kClocks, {"--at", "2024-06-01T12:00:00Z"});
    QTRY_VERIFY(player->Title().contains("2024-06-01T12:00:"));
    player->Press("space");
    QTRY_VERIFY(player->Title().contains(" paused"));
    const QString title = player->Title();
    QTest::qWait(2500);
    QCOMPARE(player->Title(), title);
    const QDateTime stopped = player->Instant();
    player->Press("space");
    QTRY_VERIFY(!player->Title().contains(" paused"));
    QTRY_VERIFY(player->Instant() >= stopped.addSecs(1));
    QVERIFY(player->Instant() < stopped.addSecs(30));
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
    QTest::addColumn<double>("speed");
    QTest::newRow("ten") << 10.0;
    QTest::newRow("an hour a second") << 3600.0;
    QTest::newRow("the fastest") << 100000.0;
}

// Whatever happens between the readings, it lies between the times before and after each.
void TestWindow::Speeds()
{
    QFETCH(double, speed);
    const auto player =
        Play(kClocks, {"--at", "2024-01-01T00:00:00Z", "--speed", QString::number(speed)});
    QTRY_VERIFY_WITH_TIMEOUT(player->Instant().isValid(), 30000);
    QElapsedTimer first;
    first.start();
    const QDateTime from = player->Instant();
    QElapsedTimer second;
    second.start();
    QTest::qWait(2000);
    const double shortest = double(second.elapsed()) / 1000;
    const QDateTime to = player->Instant();
    const double longest = double(first.elapsed()) / 1000;
    // A title may be as old as its second lasts, and the player may be kept waiting: by a machine
    // that tests other things too, as well. The exact times are tested without a window.
    const double passed = double(from.secsTo(to)) / speed;
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
    QVERIFY(player->IsOpen());
    QTest::qWait(3500);
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
    QTest::addColumn<QVector<qint64>>("steps"); // milliseconds from the true time
    QTest::newRow("forwards") << QVector<qint64> {7200500};
    QTest::newRow("backwards") << QVector<qint64> {-86400300};
    QTest::newRow("there and back") << QVector<qint64> {5000, -5000, 0};
    const auto to = [](int year) {
        return QDateTime::currentDateTimeUtc().msecsTo(
            QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC));
    };
    QTest::newRow("to 1970 and back") << QVector<qint64> {to(1970), 0};
    QTest::newRow("to 2051 and beyond 2100") << QVector<qint64> {to(2051), to(2101)};
}

// The window must tell the stepped time long before the second that ran at the step has ended.
void TestWindow::SteppedSystemClock()
{
    QFETCH(QVector<qint64>, steps);
    QFile offset(m_directory.filePath("offset"));
    QVERIFY(offset.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered));
    const auto step = [&offset](qint64 milliseconds) {
        offset.seek(0);
        offset.write(reinterpret_cast<const char *>(&milliseconds), sizeof milliseconds);
    };
    step(0);
    Player player(m_display, {Write(kClocks), "--stats"},
                  WithSteppingClock(m_display.Environment(), offset.fileName()));
    QVERIFY(player.IsOpen());
    QTest::qWait(1500);
    for (const qint64 milliseconds : steps) {
        step(milliseconds);
        const auto isStepped = [&] {
            const QDateTime expected =
                QDateTime::currentDateTimeUtc().addMSecs(milliseconds).addSecs(-1);
            return qAbs(player.Instant().secsTo(expected)) <= 1;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isStepped(), 3000);
        QTest::qWait(2200); // and it goes on
        QTRY_VERIFY(isStepped());
    }
    player.Press("q");
    QVERIFY2(player.Finish() == 0, qPrintable(player.Errors()));
    const QString errors = player.Errors();
    QVERIFY2(errors.contains(QStringLiteral("clock steps: %1,").arg(steps.size())),
             qPrintable(errors));
    const QRegularExpressionMatch missed =
        QRegularExpression("missed seconds: (\\d+)").match(errors);
    QVERIFY2(missed.hasMatch() && missed.captured(1).toInt() < 60, qPrintable(errors));
}

QTEST_GUILESS_MAIN(TestWindow)
#include "test_window.moc"
