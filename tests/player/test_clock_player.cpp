// The real player as a shell user meets it, with the panel plugin in place of the clock.
#include "player_process.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

const QString kPanels = QStringLiteral(PANEL_PLUGINS "/good");
// What follows the name of a program whose panel could not write its image.
const QString kUnwritten =
    QStringLiteral(": clock 1000: /none: cannot write the glyph image image: "
                   "No space left on device\n");
const QString kForeign = QStringLiteral(PANEL_PLUGINS "/foreign");

QString Area(int x, const QString &element)
{
    return QStringLiteral("<area x=\"%1\" y=\"0\" width=\"4\" height=\"2\">%2</area>\n")
        .arg(x)
        .arg(element);
}

} // namespace

class TestClockPlayer : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void FramesTellTheSeconds();
    void RunsAreAlike();
    void FramesWithoutInstantShowThePresent();
    void NamesOfFrames();
    void MagnifiedFrames();
    void ScreenTooLargeToMagnify();
    void FramesOfDiodes();
    void FramesFurtherApart_data();
    void FramesFurtherApart();
    void StatsOfFrames();
    void OldFramesAreReplaced();
    void ForeignEntriesAreNoFrames_data();
    void ForeignEntriesAreNoFrames();
    void RedrawRequestsAreGathered();
    void NodeDiesWhilePlaying();

    void DrawnIdsAreSeparated();
    void GivenIdsStay();
    void EqualGivenIdsAreWarnedOf();

    void UnclaimedElement();
    void RefusedElement();
    void RefusedElementOfAPictureClock();
    void MissingProgram();
    void UnparsableProgram();
    void FramesBeyondTheBound();
    void UsageErrors();

    void NoPluginDirectory();
    void NoPlugins();
    void BrokenPlugin();
    void PluginForAnotherHost();
    void BrokenPluginBesideAGoodOne();

    void UnwritableOutput();
    void UnwritableFiles();
    void FilesDirectoryIsKept();
    void TemporaryFilesAreRemoved();

    void AbandonedFilesAreRemoved();
    void FilesOfAKilledPlayerAreRemoved();
    void UnusableTemporaryDirectory();
    void FullDevice();
    void FrameBeyondTheFileSize();

    void NoDisplay();
    void NoFramebuffer();
    void SignalEndsTheWindow_data();
    void SignalEndsTheWindow();
    void SignalEndsTheMakingOfImages();
    void SignalEndsTheFrames();
    void WatchedProgram();
    void ImagesThatCannotBeWritten();
    void ImagesMadeAgainAreChecked();
    void KioskWaitsForItsProgram();

private:
    QString Write(const QString &name, const QString &contents);
    QString WriteProgram(const QString &areas);
    PlayerRun Play(const QStringList &arguments);
    void StartWindow(QProcess &process);
    QString Path(const QString &name) const { return m_directory->filePath(name); }

    QScopedPointer<QTemporaryDir> m_directory;
};

void TestClockPlayer::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

QString TestClockPlayer::Write(const QString &name, const QString &contents)
{
    QFile file(Path(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(contents.toUtf8());
    return file.fileName();
}

// Areas begin on line 2.
QString TestClockPlayer::WriteProgram(const QString &areas)
{
    return Write(QStringLiteral("program.xml"),
                 QStringLiteral("<program width=\"8\" height=\"2\">\n%1</program>\n").arg(areas));
}

/// Plays one panel in a window, with the temporary directory "tmp".
void TestClockPlayer::StartWindow(QProcess &process)
{
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("TMPDIR", Path("tmp"));
    environment.insert("XDG_RUNTIME_DIR", m_directory->path());
    process.setProcessEnvironment(environment);
    StartProgram(
        process, QStringLiteral(PLAYER),
        {"--plugin-dir", kPanels, "-platform", "offscreen", WriteProgram(Area(0, "<panel/>"))});
}

/// With the panel plugin, into the directory "out".
PlayerRun TestClockPlayer::Play(const QStringList &arguments)
{
    return RunPlayer(QStringList {"--plugin-dir", kPanels, "--output", Path("out")} + arguments);
}

void TestClockPlayer::FramesTellTheSeconds()
{
    const PlayerRun run = Play(
        {WriteProgram(Area(2, "<panel/>")), "--frames", "4", "--at", "2024-02-29T23:59:58.900Z"});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output, Path("out") + '\n');
    const QVector<QImage> frames = Frames(Path("out"));
    QCOMPARE(frames.size(), 4);
    for (int i = 0; i < 4; ++i) {
        const QImage &frame = frames[i];
        QCOMPARE(frame.size(), QSize(8, 2));
        QCOMPARE(frame.pixel(1, 1), qRgb(0, 0, 0)); // no area
        QCOMPARE(frame.pixel(2, 1), qRgb(0, 0, 0)); // the key colour
        QCOMPARE(frame.pixel(5, 1), qRgb((58 + i) % 60, 1, 100));
        QCOMPARE(frame.pixel(6, 1), qRgb(0, 0, 0));
    }
}

void TestClockPlayer::RunsAreAlike()
{
    const QStringList arguments {WriteProgram(Area(0, "<panel/>")), "--at", "2024-05-06T07:08:09"};
    QCOMPARE(Play(arguments).exitCode, 0);
    const QVector<QImage> first = Frames(Path("out"));
    QCOMPARE(first.size(), 10);
    QVERIFY(QDir(Path("out")).removeRecursively());
    QCOMPARE(Play(arguments).exitCode, 0);
    QCOMPARE(Frames(Path("out")), first);
}

void TestClockPlayer::FramesWithoutInstantShowThePresent()
{
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    QCOMPARE(Play({WriteProgram(Area(0, "<panel/>")), "--frames", "1"}).exitCode, 0);
    const qint64 after = QDateTime::currentSecsSinceEpoch();
    const int shown = qRed(Frames(Path("out")).value(0).pixel(1, 0));
    QVERIFY((shown - before % 60 + 60) % 60 <= after - before);
}

void TestClockPlayer::MagnifiedFrames()
{
    const QStringList arguments {WriteProgram(Area(2, "<panel/>")), "--frames", "2", "--at",
                                 "2024-05-06T07:08:09"};
    QCOMPARE(Play(arguments).exitCode, 0);
    const QVector<QImage> plain = Frames(Path("out"));
    QCOMPARE(Play(arguments + QStringList {"--magnify", "3"}).exitCode, 0);
    const QVector<QImage> magnified = Frames(Path("out"));
    QCOMPARE(magnified.size(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(magnified[i].size(), QSize(24, 6));
        for (int y = 0; y < 6; ++y) {
            for (int x = 0; x < 24; ++x)
                QCOMPARE(magnified[i].pixel(x, y), plain[i].pixel(x / 3, y / 3));
        }
    }
}

void TestClockPlayer::ScreenTooLargeToMagnify()
{
    const QString program =
        Write("large.xml",
              "<program width=\"1024\" height=\"1024\">" + Area(0, "<panel/>") + "</program>");
    const PlayerRun run = Play({program, "--frames", "1", "--magnify", "16"});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors,
             QStringLiteral("clock_player: the screen is too large to be magnified by 16\n"));
    QVERIFY(Frames(Path("out")).isEmpty());
}

// The panel shows the key colour in its left column, and blue, brighter than a dark lens, beside.
void TestClockPlayer::FramesOfDiodes()
{
    const PlayerRun run = Play({WriteProgram(Area(2, "<panel/>")), "--frames", "1", "--at",
                                "2024-05-06T07:08:09", "--led", "5"});
    QCOMPARE(run.errors, QString());
    const QImage frame = Frames(Path("out")).value(0);
    QCOMPARE(frame.size(), QSize(40, 10));
    for (int x = 0; x < 8; ++x) {
        const bool shines = x >= 3 && x <= 5;
        QCOMPARE(frame.pixel(5 * x + 2, 7), shines ? qRgb(9, 1, 100) : qRgb(18, 18, 20));
        QCOMPARE(frame.pixel(5 * x, 5), qRgb(0, 0, 0));
        QCOMPARE(frame.pixel(5 * x + 4, 9), qRgb(0, 0, 0));
    }
    const QString large =
        Write("large.xml",
              "<program width=\"4096\" height=\"256\">" + Area(0, "<panel/>") + "</program>");
    const PlayerRun tooLarge = Play({large, "--frames", "1", "--led", "9"});
    QCOMPARE(tooLarge.exitCode, 1);
    QCOMPARE(tooLarge.errors,
             QStringLiteral("clock_player: the screen is too large to be magnified by 9\n"));
    QCOMPARE(RunPlayer({"--plugin-dir", kPanels, "-platform", "offscreen", large, "--led", "9"})
                 .exitCode,
             1);
}

void TestClockPlayer::FramesFurtherApart_data()
{
    QTest::addColumn<QString>("speed");
    QTest::addColumn<QVector<int>>("seconds");
    QTest::newRow("seven seconds") << "7" << QVector<int> {58, 5, 12, 19};
    QTest::newRow("an hour and a second") << "3601" << QVector<int> {58, 59, 0, 1};
    QTest::newRow("half a second") << "0.5" << QVector<int> {58, 58, 59, 59};
}

void TestClockPlayer::FramesFurtherApart()
{
    QFETCH(QString, speed);
    QFETCH(QVector<int>, seconds);
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel/>")), "--frames", "4", "--at",
                                "2024-02-29T23:59:58.900Z", "--speed", speed});
    QCOMPARE(run.exitCode, 0);
    QVector<int> shown;
    for (const QImage &frame : Frames(Path("out")))
        shown.append(qRed(frame.pixel(1, 0)));
    QCOMPARE(shown, seconds);
}

void TestClockPlayer::StatsOfFrames()
{
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel/>")), "--frames", "3", "--stats"});
    QCOMPARE(run.exitCode, 0);
    const QStringList lines = run.errors.split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(
        lines[0],
        QString(
            "clock_player: frames: 3, missed seconds: 0, clock steps: 0, second presentations: 0"));
    const QRegularExpression drawing("^clock_player: drawing ms: minimum \\d+\\.\\d\\d, ");
    QVERIFY2(drawing.match(lines[1]).hasMatch(), qPrintable(lines[1]));
    QCOMPARE(lines[2], QString("clock_player: lateness ms: none"));
}

void TestClockPlayer::NamesOfFrames()
{
    QCOMPARE(Play({WriteProgram(Area(0, "<panel/>")), "--frames", "2"}).exitCode, 0);
    QCOMPARE(QDir(Path("out")).entryList(QDir::Files),
             QStringList({"frame_0001.png", "frame_0002.png"}));
}

void TestClockPlayer::OldFramesAreReplaced()
{
    QVERIFY(QDir(m_directory->path()).mkdir("out"));
    Write("out/frame_0001.png", "an old file, longer than it is now: " + QString(10000, 'x'));
    Write("out/other.txt", "not ours");
    QCOMPARE(Play({WriteProgram(Area(0, "<panel/>")), "--frames", "1"}).exitCode, 0);
    QVERIFY(!QImage(Path("out/frame_0001.png")).isNull());
    QVERIFY(QFile::exists(Path("out/other.txt")));
    QCOMPARE(QDir(Path("out")).entryList(QDir::Files).size(), 2);
}

void TestClockPlayer::ForeignEntriesAreNoFrames_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("reason");
    QTest::newRow("link") << "ln -s ../other"
                          << "is a symbolic link";
    QTest::newRow("link to nothing") << "ln -s nowhere"
                                     << "is a symbolic link";
    QTest::newRow("pipe") << "mkfifo"
                          << "is not a regular file";
    QTest::newRow("directory") << "mkdir"
                               << "is not a regular file";
}

void TestClockPlayer::ForeignEntriesAreNoFrames()
{
    QFETCH(QString, command);
    QFETCH(QString, reason);
    const QString other = Write("other", "not a frame");
    QVERIFY(QDir(m_directory->path()).mkdir("out"));
    const QString frame = Path("out/frame_0001.png");
    QCOMPARE(QProcess::execute("sh", {"-c", command + " \"$0\"", frame}), 0);
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel/>")), "--frames", "1"});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors,
             QStringLiteral("clock_player: %1: cannot be written: %2\n").arg(frame, reason));
    QFile unchanged(other);
    QVERIFY(unchanged.open(QFile::ReadOnly));
    QCOMPARE(unchanged.readAll(), QByteArray("not a frame"));
    QVERIFY(!QFileInfo(frame).isFile() || QFileInfo(frame).isSymLink());
}

// The third picture asks seven times; from the fourth on there is a new renderer, once.
void TestClockPlayer::RedrawRequestsAreGathered()
{
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel redraws=\"7\"/>")), "--frames", "5",
                                "--at", "2024-01-01T00:00:10"});
    QCOMPARE(run.exitCode, 0);
    const QVector<QImage> frames = Frames(Path("out"));
    QCOMPARE(frames.size(), 5);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(frames[i].pixel(1, 0), qRgb(10 + i, i < 3 ? 1 : 2, 100));
}

void TestClockPlayer::NodeDiesWhilePlaying()
{
    const PlayerRun run =
        Play({WriteProgram(Area(0, "<panel dies=\"yes\"/>") + Area(4, "<panel/>")), "--frames", "5",
              "--at", "2024-01-01T00:00:10"});
    QCOMPARE(run.exitCode, 0);
    const QImage last = Frames(Path("out")).value(4);
    QCOMPARE(last.pixel(1, 0), qRgb(12, 1, 100)); // its last picture stays
    QCOMPARE(last.pixel(5, 0), qRgb(14, 1, 101));
}

void TestClockPlayer::DrawnIdsAreSeparated()
{
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel/>") + Area(4, "<panel/>")),
                                "--files-dir", Path("files"), "--frames", "1"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    QCOMPARE(QDir(Path("files")).entryList(QDir::Files), QStringList({"panel_1000", "panel_1001"}));
}

void TestClockPlayer::GivenIdsStay()
{
    const QString given = "<panel><attribute key=\"Id\" value=\"1234\"/></panel>";
    const PlayerRun run =
        Play({WriteProgram(Area(0, "<panel/>") + Area(4, given)), "--frames", "1"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors, QString());
    const QImage frame = Frames(Path("out")).value(0);
    QCOMPARE(qBlue(frame.pixel(1, 0)), 100);
    QCOMPARE(qBlue(frame.pixel(5, 0)), 104);
}

void TestClockPlayer::EqualGivenIdsAreWarnedOf()
{
    const QString given = "<panel><attribute key=\"Id\" value=\"77\"/></panel>";
    const QString program = WriteProgram(Area(0, given) + Area(4, given));
    const PlayerRun run = Play({program, "--frames", "1"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.errors,
             QStringLiteral("clock_player: %1:3: the Id 77 is used by another clock; this one "
                            "gets the Id 1000\n")
                 .arg(program));
    const QImage frame = Frames(Path("out")).value(0);
    QCOMPARE(qBlue(frame.pixel(1, 0)), 107);
    QCOMPARE(qBlue(frame.pixel(5, 0)), 100);
}

void TestClockPlayer::UnclaimedElement()
{
    const QString program = WriteProgram(Area(0, "<panel/>") + Area(4, "<foo/>"));
    const PlayerRun run = Play({program});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(
        run.errors,
        QStringLiteral("clock_player: %1:3: no plugin claims the element <foo>\n").arg(program));
    QVERIFY(Frames(Path("out")).isEmpty());
}

void TestClockPlayer::RefusedElement()
{
    const QString program = WriteProgram(Area(0, "<panel accept=\"no\"/>"));
    const PlayerRun run = Play({program});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.startsWith(QStringLiteral("clock_player: %1:2: ").arg(program)),
             qPrintable(run.errors));
    const QString analog = "<attribute key=\"ClockType\" value=\"0\"/>";
    QCOMPARE(Play({WriteProgram(Area(0, "<panel accept=\"no\">" + analog + "</panel>"))}).exitCode,
             3);
}

void TestClockPlayer::RefusedElementOfAPictureClock()
{
    const QString picture = "<attribute key=\"ClockType\" value=\"2\"/>";
    const PlayerRun run =
        Play({WriteProgram(Area(0, "<panel accept=\"no\">" + picture + "</panel>"))});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
}

void TestClockPlayer::MissingProgram()
{
    const PlayerRun run = Play({Path("missing.xml")});
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(
        run.errors,
        QStringLiteral("clock_player: %1: No such file or directory\n").arg(Path("missing.xml")));
}

void TestClockPlayer::UnparsableProgram()
{
    const QString program = WriteProgram("<area>\n<panel>\n</area>\n");
    const PlayerRun run = Play({program});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.startsWith(QStringLiteral("clock_player: %1:4:").arg(program)),
             qPrintable(run.errors));
}

// 32767 x 1024 pixels of four bytes: one screen of two and one area of three frames, 640 MiB.
void TestClockPlayer::FramesBeyondTheBound()
{
    const QString program =
        Write("large.xml",
              "<program width='32767' height='1024'><area x='0' y='0' width='32767' "
              "height='1024'><panel/></area></program>");
    const PlayerRun run = Play({program, "--frames", "1"});
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains("large.xml") && run.errors.contains("640 MiB")
                 && run.errors.contains("--large-frames"),
             qPrintable(run.errors));
    QCOMPARE(Play({program, "--frames", "1", "--large-frames"}).exitCode, 0);
}

void TestClockPlayer::UsageErrors()
{
    for (const QStringList &arguments :
         {QStringList {}, QStringList {"--frames", "0", "a.xml"},
          QStringList {"--at", "x", "a.xml"}, QStringList {"--language", "xx", "a.xml"},
          QStringList {"--nonsense", "a.xml"}}) {
        const PlayerRun run = Play(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.errors.startsWith("clock_player: "), qPrintable(run.errors));
        QCOMPARE(run.errors.count('\n'), 1);
    }
    QCOMPARE(RunPlayer({"--help"}).exitCode, 0);
    QCOMPARE(RunPlayer({"--version"}).exitCode, 0);
}

void TestClockPlayer::NoPluginDirectory()
{
    const PlayerRun run =
        Play({WriteProgram(Area(0, "<panel/>")), "--plugin-dir", Path("nowhere")});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors,
             QStringLiteral("clock_player: %1: no such directory\n").arg(Path("nowhere")));
}

void TestClockPlayer::NoPlugins()
{
    QVERIFY(QDir(m_directory->path()).mkdir("empty"));
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel/>")), "--plugin-dir", Path("empty")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(Path("empty") + ": no plugins"), qPrintable(run.errors));
}

void TestClockPlayer::BrokenPlugin()
{
    QVERIFY(QDir(m_directory->path()).mkdir("broken"));
    const QString file = Write("broken/libbroken.so", "no library at all");
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel/>")), "--plugin-dir", Path("broken")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.startsWith(QStringLiteral("clock_player: %1: not a Qt plugin").arg(file)),
             qPrintable(run.errors));
}

void TestClockPlayer::PluginForAnotherHost()
{
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel/>")), "--plugin-dir", kForeign});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("another.host/1.0"), qPrintable(run.errors));
}

void TestClockPlayer::BrokenPluginBesideAGoodOne()
{
    QVERIFY(QDir(m_directory->path()).mkdir("mixed"));
    const QString broken = Write("mixed/liba.so", "no library at all");
    QVERIFY(QFile::link(kPanels + "/libpanel_plugin.so", Path("mixed/libb.so")));
    const PlayerRun run = Play({WriteProgram(Area(0, "<panel/>")), "--plugin-dir", Path("mixed")});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.errors.contains(broken), qPrintable(run.errors));
}

void TestClockPlayer::UnwritableOutput()
{
    const QString file = Write("file", "in the way");
    const QString program = WriteProgram(Area(0, "<panel/>"));
    const PlayerRun blocked = Play({program, "--output", file + "/out"});
    QCOMPARE(blocked.exitCode, 1);
    QVERIFY2(blocked.errors.contains(file + "/out"), qPrintable(blocked.errors));
    QCOMPARE(Play({program, "--output", file}).exitCode, 1);
    QCOMPARE(QFileInfo(file).size(), 10);
    // A directory is where the second frame belongs: the first one is written.
    QVERIFY(QDir(m_directory->path()).mkpath("out/frame_0002.png"));
    const PlayerRun second = Play({program});
    QCOMPARE(second.exitCode, 1);
    QVERIFY2(second.errors.contains("frame_0002.png"), qPrintable(second.errors));
    QVERIFY(QFile::exists(Path("out/frame_0001.png")));
}

void TestClockPlayer::UnwritableFiles()
{
    const QString file = Write("file", "in the way");
    const PlayerRun run =
        Play({WriteProgram(Area(0, "<panel/>")), "--files-dir", file + "/glyphs"});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(file + "/glyphs"), qPrintable(run.errors));
}

void TestClockPlayer::FilesDirectoryIsKept()
{
    QCOMPARE(Play({WriteProgram(Area(0, "<panel/>")), "--files-dir", Path("a/b")}).exitCode, 0);
    QVERIFY(QFile::exists(Path("a/b/panel_1000")));
}

void TestClockPlayer::TemporaryFilesAreRemoved()
{
    QVERIFY(QDir(m_directory->path()).mkdir("tmp"));
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("TMPDIR", Path("tmp"));
    environment.insert("XDG_RUNTIME_DIR", m_directory->path());
    const PlayerRun run = RunPlayer(
        {"--plugin-dir", kPanels, "--output", Path("out"), WriteProgram(Area(0, "<panel/>"))},
        environment);
    QCOMPARE(run.exitCode, 0);
    QVERIFY(QDir(Path("tmp")).isEmpty());
}

// Only what a killed player left is removed: not what lives, nor what only has such a name, nor the
// files of an older player, which had no lock and may still play.
void TestClockPlayer::AbandonedFilesAreRemoved()
{
    QVERIFY(QDir(m_directory->path()).mkpath("tmp/clock_player-aaaaaa/inner"));
    QVERIFY(QDir(m_directory->path()).mkpath("tmp/clock_player-locked"));
    QVERIFY(QDir(m_directory->path()).mkpath("tmp/clock_player-older1"));
    QVERIFY(QDir(m_directory->path()).mkpath("tmp/other"));
    Write("tmp/clock_player-aaaaaa/.locked_while_in_use", QString());
    Write("tmp/clock_player-locked/.locked_while_in_use", QString());
    Write("tmp/clock_player-older1/digital_1_toptext.png", "shown");
    Write("tmp/clock_player-aaaaaa/inner/file", "left behind");
    QVERIFY(QFile::link(Path("tmp/other"), Path("tmp/clock_player-linked")));
    const int lock = ::open(qPrintable(Path("tmp/clock_player-locked")), O_RDONLY | O_DIRECTORY);
    QVERIFY(lock >= 0 && ::flock(lock, LOCK_EX) == 0);
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("TMPDIR", Path("tmp"));
    environment.insert("XDG_RUNTIME_DIR", m_directory->path());
    const PlayerRun run = RunPlayer({"--plugin-dir", kPanels, "--output", Path("out"), "--frames",
                                     "1", WriteProgram(Area(0, "<panel/>"))},
                                    environment);
    ::close(lock);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(QDir(Path("tmp")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(
                 {"clock_player-linked", "clock_player-locked", "clock_player-older1", "other"}));
    QVERIFY(QFile::exists(Path("tmp/clock_player-older1/digital_1_toptext.png")));
}

// A killed player leaves what the next one knows and removes.
void TestClockPlayer::FilesOfAKilledPlayerAreRemoved()
{
    QVERIFY(QDir(m_directory->path()).mkdir("tmp"));
    const auto left = [this] {
        return QDir(Path("tmp")).entryList({"clock_player-*"}, QDir::Dirs);
    };
    QProcess process;
    StartWindow(process);
    const auto plays = [&] {
        return left().size() == 1 && QFile::exists(Path("tmp/" + left()[0] + "/panel_1000"));
    };
    QTRY_VERIFY_WITH_TIMEOUT(plays(), 20000);
    const QStringList arguments {"--plugin-dir", kPanels, "--output",         Path("out"),
                                 "--frames",     "1",     Path("program.xml")};
    QCOMPARE(RunPlayer(arguments, process.processEnvironment()).exitCode, 0);
    QVERIFY(plays());
    process.kill();
    QVERIFY(process.waitForFinished(20000));
    QVERIFY(plays());
    QCOMPARE(RunPlayer(arguments, process.processEnvironment()).exitCode, 0);
    QCOMPARE(left(), QStringList());
}

void TestClockPlayer::UnusableTemporaryDirectory()
{
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("TMPDIR", Path("nowhere"));
    environment.insert("XDG_RUNTIME_DIR", m_directory->path());
    const PlayerRun run = RunPlayer(
        {"--plugin-dir", kPanels, "--output", Path("out"), WriteProgram(Area(0, "<panel/>"))},
        environment);
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(
        run.errors,
        QStringLiteral("clock_player: %1: cannot create a temporary directory: No such file or "
                       "directory\n")
            .arg(Path("nowhere")));
}

void TestClockPlayer::FullDevice()
{
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    StartProgram(process, QStringLiteral(PLAYER), {"--help"});
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("No space left on device"));
}

void TestClockPlayer::FrameBeyondTheFileSize()
{
    const PlayerRun run =
        RunInShell("trap '' XFSZ; ulimit -f 0; exec \"$@\"", PLAYER,
                   {"--plugin-dir", kPanels, "--output", Path("out"), "--files-dir", Path("files"),
                    WriteProgram(Area(0, "<panel/>"))});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors,
             QStringLiteral("clock_player: %1: cannot be written: File too large\n")
                 .arg(Path("out/frame_0001.png")));
    QVERIFY(QDir(Path("out")).isEmpty());
}

void TestClockPlayer::NoDisplay()
{
    const PlayerRun run =
        RunPlayer({"--plugin-dir", kPanels, "-platform", "xcb", WriteProgram(Area(0, "<panel/>"))});
    QVERIFY(!run.crashed);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("no display can be reached"), qPrintable(run.errors));
}

void TestClockPlayer::NoFramebuffer()
{
    if (QFile::exists("/dev/fb0"))
        QSKIP("this machine has a framebuffer");
    // Qt's framebuffer platform leaks its input devices where it fails.
    const QByteArray options = qgetenv("ASAN_OPTIONS");
    qputenv("ASAN_OPTIONS", options + ":detect_leaks=0");
    const auto restored = qScopeGuard([&] { qputenv("ASAN_OPTIONS", options); });
    const PlayerRun run = RunPlayer(
        {"--plugin-dir", kPanels, "-platform", "linuxfb", WriteProgram(Area(0, "<panel/>"))});
    QVERIFY(!run.crashed);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains("no display can be reached"), qPrintable(run.errors));
}

void TestClockPlayer::SignalEndsTheWindow_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("terminal closed") << SIGHUP;
    QTest::newRow("pipe closed") << SIGPIPE;
}

void TestClockPlayer::SignalEndsTheWindow()
{
    QFETCH(int, signal);
    QVERIFY(QDir(m_directory->path()).mkdir("tmp"));
    QProcess process;
    StartWindow(process);
    // It plays once the panel's file is there, and the redraws go on every millisecond.
    const auto plays = [this] {
        const QStringList directories =
            QDir(Path("tmp")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        return directories.size() == 1
            && QFile::exists(Path("tmp/" + directories.first() + "/panel_1000"));
    };
    QTRY_VERIFY_WITH_TIMEOUT(plays(), 20000);
    QTest::qWait(50);
    QCOMPARE(process.state(), QProcess::Running);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(QDir(Path("tmp")).isEmpty());
}

void TestClockPlayer::SignalEndsTheMakingOfImages()
{
    QVERIFY(QDir(m_directory->path()).mkdir("tmp"));
    QProcessEnvironment environment = DisplaylessEnvironment();
    environment.insert("TMPDIR", Path("tmp"));
    environment.insert("XDG_RUNTIME_DIR", m_directory->path());
    QProcess process;
    process.setProcessEnvironment(environment);
    StartProgram(process, QStringLiteral(PLAYER),
                 {"--plugin-dir", kPanels, "-platform", "offscreen",
                  WriteProgram(Area(0, "<panel images=\"1000000\"/>"))});
    QTRY_VERIFY_WITH_TIMEOUT(!QDir(Path("tmp")).isEmpty(), 20000);
    QTest::qWait(300);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGTERM), 0);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(QDir(Path("tmp")).isEmpty());
}

// A panel leaves a file with its Id, so the files tell what played.
void TestClockPlayer::WatchedProgram()
{
    const auto panel = [](int id) {
        return Area(0,
                    QStringLiteral("<panel><attribute key=\"Id\" value=\"%1\"/></panel>").arg(id));
    };
    const auto played = [this](int id) {
        return QFile::exists(Path(QStringLiteral("files/panel_%1").arg(id)));
    };
    QProcess process;
    process.setProcessEnvironment(DisplaylessEnvironment());
    StartProgram(process, QStringLiteral(PLAYER),
                 {"--plugin-dir", kPanels, "-platform", "offscreen", "--watch", "--files-dir",
                  Path("files"), WriteProgram(panel(1))});
    QTRY_VERIFY_WITH_TIMEOUT(played(1), 20000);
    QVERIFY(QFile::rename(WriteProgram(panel(2)), Path("new.xml"))); // gone for a moment
    QVERIFY(QFile::rename(Path("new.xml"), Path("program.xml")));
    QTRY_VERIFY_WITH_TIMEOUT(played(2), 20000);
    WriteProgram("<area");
    QByteArray errors;
    const auto isReported = [&process, &errors] {
        errors += process.readAllStandardError();
        return errors.contains("program.xml:2: the tag <area>");
    };
    QTRY_VERIFY_WITH_TIMEOUT(isReported(), 20000);
    QVERIFY(QFile::remove(Path("files/panel_2")));
    WriteProgram(panel(3));
    QTRY_VERIFY_WITH_TIMEOUT(played(3), 20000);
    QVERIFY(!played(2));
    process.terminate();
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 0);
}

void TestClockPlayer::ImagesThatCannotBeWritten()
{
    const QString program = WriteProgram(Area(0, "<panel unwritten=\"1\"/>"));
    for (const QStringList &arguments :
         {QStringList {"--output", Path("out")}, QStringList {"-platform", "offscreen"}}) {
        const PlayerRun run = RunPlayer(QStringList {"--plugin-dir", kPanels, program} + arguments);
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.errors, "clock_player: " + program + kUnwritten);
    }
}

// For a changed setting, and for a changed program; each is told once, and the window plays on.
void TestClockPlayer::ImagesMadeAgainAreChecked()
{
    const QString program = WriteProgram(Area(0, "<panel redraws=\"2\" unwritten=\"2\"/>"));
    QProcess process;
    process.setProcessEnvironment(DisplaylessEnvironment());
    StartProgram(process, QStringLiteral(PLAYER),
                 {"--plugin-dir", kPanels, "-platform", "offscreen", "--watch", program});
    QByteArray errors;
    const auto isTold = [&](int times) {
        errors += process.readAllStandardError();
        return errors.count((program + kUnwritten).toUtf8()) == times;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isTold(1), 20000);
    WriteProgram(Area(0, "<panel unwritten=\"1\"/>"));
    QTRY_VERIFY_WITH_TIMEOUT(isTold(2), 20000);
    QTest::qWait(3000); // two more looks at the program
    QVERIFY(isTold(2));
    process.terminate();
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 0);
}

// Nothing but a request to quit ends it, and its status tells what the screen shows.
void TestClockPlayer::KioskWaitsForItsProgram()
{
    const auto status = [this] {
        QFile file(Path("status.json"));
        const QByteArray text = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
        return QJsonDocument::fromJson(text).object();
    };
    QProcess process;
    process.setProcessEnvironment(DisplaylessEnvironment());
    StartProgram(process, QStringLiteral(PLAYER),
                 {"--plugin-dir", kPanels, "-platform", "offscreen", "--kiosk", "--status-file",
                  Path("status.json"), Path("program.xml")});
    QTRY_COMPARE_WITH_TIMEOUT(status()["notice"].toString(), QString("P1"), 20000);
    WriteProgram("<area");
    QTRY_COMPARE_WITH_TIMEOUT(status()["notice"].toString(), QString("P2"), 20000);
    const QString program = WriteProgram(Area(0, "<panel/>"));
    QTRY_VERIFY_WITH_TIMEOUT(status()["notice"].isNull() && !status().isEmpty(), 20000);
    QFile file(program);
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray digest =
        QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex();
    QTRY_COMPARE_WITH_TIMEOUT(status()["program_sha256"].toString(), QString(digest), 20000);
    QVERIFY(QFile::remove(Path("status.json")));
    const auto pid = static_cast<pid_t>(process.processId());
    QCOMPARE(::kill(pid, SIGHUP), 0);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Path("status.json")), 20000);
    QVERIFY(QFile::remove(Path("status.json")));
    QCOMPARE(::kill(pid, SIGUSR1), 0);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Path("status.json")), 20000);
    QCOMPARE(process.state(), QProcess::Running);
    QCOMPARE(::kill(pid, SIGTERM), 0);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 0);
}

void TestClockPlayer::SignalEndsTheFrames()
{
    QProcess process;
    process.setProcessEnvironment(DisplaylessEnvironment());
    StartProgram(process, QStringLiteral(PLAYER),
                 {"--plugin-dir", kPanels, "--output", Path("out"), "--frames", "1000000",
                  WriteProgram(Area(0, "<panel/>"))});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(Path("out/frame_0000002.png")), 20000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().endsWith("clock_player: interrupted\n"));
    for (const QImage &frame : Frames(Path("out")))
        QVERIFY(!frame.isNull());
}

QTEST_GUILESS_MAIN(TestClockPlayer)
#include "test_clock_player.moc"
