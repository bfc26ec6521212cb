// The self-test's frames drawn by the plain renderers, and the command as a process.
#include "plain_clocks.h"
#include "plain_digital.h"
#include "self_test/checks.h"
#include "self_test/frame_checks.h"
#include "tool_process.h"

#include "calendar/device_clock.h"
#include "happconfig.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

using namespace ClockTool;
using Lw::HNodeClock::HClockNode;

class TestSelfTest : public QObject
{
    Q_OBJECT

private slots:
    void DigitalDigest();
    void AnalogDigest();
    void PictureDigests();
    void EverythingIsWell();
    void UnwritableFolder();
    void Pictures();
    void FailuresAreSeen();
};

// 2024-03-05T05:07:42 in UTC is 13:07:42 at UTC+8, a Tuesday, the 25th day of lunar month 1.
void TestSelfTest::DigitalDigest()
{
    const QTemporaryDir folder;
    HClockNode clock;
    QVERIFY(SetUpPatternClock(clock, 1, folder.path()));
    PlainDigitalClock::Shown shown =
        PlainDigitalClock::Gregorian(QDateTime(QDate(2024, 3, 5), QTime(13, 7, 42), Qt::UTC));
    shown.lunarMonth = 1;
    shown.lunarDay = 25;
    const QImage frame = PlainDigitalClock(clock).Frame(shown);
    QCOMPARE(PictureDigest(frame), QByteArray(kDigitalFrameDigest));
}

void TestSelfTest::AnalogDigest()
{
    const QTemporaryDir folder;
    HClockNode clock;
    QVERIFY(SetUpPatternClock(clock, 0, folder.path()));
    Lw::HAppConfig::SetRenderImageFormat(QImage::Format_RGB32);
    clock_set_time_source(&TestInstant);
    PlainClock plain(&clock);
    plain.Frame(); // its texts show from the second one on
    const QImage frame = plain.Frame();
    clock_set_time_source(nullptr);
    QCOMPARE(PictureDigest(frame), QByteArray(kAnalogFrameDigest));
}

// SHA-256 of "2x1" and the bytes 01 02 03 04 05 06, by coreutils' sha256sum.
void TestSelfTest::PictureDigests()
{
    QImage picture(2, 1, QImage::Format_ARGB32);
    picture.setPixel(0, 0, qRgb(1, 2, 3));
    picture.setPixel(1, 0, qRgb(4, 5, 6));
    QCOMPARE(PictureDigest(picture),
             QByteArray("657e9f2a8f0ed6f29fa0362b5746d05bee200c9d85e70d28af0cd70757a80f06"));
    picture.setPixel(1, 0, qRgb(4, 5, 7));
    QVERIFY(PictureDigest(picture)
            != QByteArray("657e9f2a8f0ed6f29fa0362b5746d05bee200c9d85e70d28af0cd70757a80f06"));
    QVERIFY(PictureDigest(QImage()) != PictureDigest(picture));
}

void TestSelfTest::EverythingIsWell()
{
    QElapsedTimer timer;
    timer.start();
    const ProcessRun run = RunTool({"self-test"});
    QVERIFY2(run.exitCode == 0, qPrintable(run.output + run.errors));
    QCOMPARE(run.errors, QString());
    const QStringList lines = run.output.trimmed().split('\n');
    QCOMPARE(lines.size(), 7);
    for (const QString &line : lines)
        QVERIFY2(line.contains(" ... ok") || line.contains(" ... not checked: no pictures"),
                 qPrintable(line));
    QVERIFY(run.output.contains("lunar calendar, 55162 days ... ok\n"));
    QVERIFY(IsEmulated() || timer.elapsed() < 5000);
}

// No folder can be made there.
void TestSelfTest::UnwritableFolder()
{
    qputenv("TMPDIR", "/proc");
    const ProcessRun run = RunTool({"self-test"});
    qunsetenv("TMPDIR");
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.output.contains("digital clock, a frame ... FAILED"), qPrintable(run.output));
    QVERIFY2(run.output.contains("lunar calendar, 55162 days ... ok"), qPrintable(run.output));
}

// A copy of the program, with a folder of pictures beside it.
void TestSelfTest::Pictures()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath("bin/clock_tool");
    const QString styles = folder.filePath("image/ClockType/");
    QVERIFY(QDir().mkpath(folder.filePath("bin")) && QFile::copy(QStringLiteral(TOOL), copy));
    ProcessRun run = RunProcess(copy, {"self-test"});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.contains("picture clock, 10 styles ... not checked: no pictures in"),
             qPrintable(run.output));

    QVERIFY(QDir().mkpath(styles));
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QStringList names {"hour", "minute", "second", "center"};
    for (int style = 1; style <= 10; ++style)
        names.append(QStringLiteral("picbutton%1").arg(style));
    for (const QString &name : names)
        QVERIFY(picture.save(styles + name + ".png"));
    run = RunProcess(copy, {"self-test"});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.contains("picture clock, 10 styles ... ok"), qPrintable(run.output));

    QVERIFY(WriteText(styles + "picbutton7.png", "no picture"));
    run = RunProcess(copy, {"self-test"});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.output.contains("... FAILED: picbutton7.png cannot be read"),
             qPrintable(run.output));
}

void TestSelfTest::FailuresAreSeen()
{
    for (const CheckResult &result : CheckFrames(QStringLiteral("/dev/null/none"))) {
        if (!result.what.contains("picture"))
            QCOMPARE(result.outcome, Outcome::Failed);
    }
}

QTEST_MAIN(TestSelfTest)
#include "test_self_test.moc"
