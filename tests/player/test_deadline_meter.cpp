#include "deadline_meter.h"

#include <QtTest>

#include <algorithm>

using namespace ClockPlayer;

namespace {

constexpr qint64 kNoon = 1700000000000; // a whole second

/// Drawn within 3 ms and seen 5 ms after it was begun; the steady clock runs with the shown time.
PresentedFrame FrameAt(qint64 milliseconds)
{
    PresentedFrame frame;
    frame.instant = kNoon + milliseconds;
    frame.begun = double(milliseconds);
    frame.presented = frame.begun + 5;
    frame.drawing = 3;
    return frame;
}

} // namespace

class TestDeadlineMeter : public QObject
{
    Q_OBJECT

private slots:
    void NothingYet();
    void Percentiles_data();
    void Percentiles();
    void OnlyADayIsKept();

    void OnTheSecond();
    void LateFrames();
    void MissedSeconds();
    void RepeatedSeconds();
    void Jumps();
    void SteppedClock_data();
    void SteppedClock();
    void OtherSpeeds();
    void FramesNobodyWaitedFor();
    void Report();
};

void TestDeadlineMeter::NothingYet()
{
    const DeadlineMeter meter;
    QCOMPARE(meter.Report(),
             QStringList({"frames: 0, missed seconds: 0, clock steps: 0, second presentations: 0",
                          "drawing ms: none", "lateness ms: none"}));
}

void TestDeadlineMeter::Percentiles_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("median");
    QTest::addColumn<double>("percentile99");
    // Of the numbers 1 to count: the nearest ranks.
    QTest::newRow("one") << 1 << 1.0 << 1.0;
    QTest::newRow("two") << 2 << 1.0 << 2.0;
    QTest::newRow("three") << 3 << 2.0 << 3.0;
    QTest::newRow("hundred") << 100 << 50.0 << 99.0;
    QTest::newRow("hundred and one") << 101 << 51.0 << 100.0;
    QTest::newRow("thousand") << 1000 << 500.0 << 990.0;
}

void TestDeadlineMeter::Percentiles()
{
    QFETCH(int, count);
    QFETCH(double, median);
    QFETCH(double, percentile99);
    Spread spread;
    for (int number = count; number >= 1; --number)
        spread.Add(number);
    QCOMPARE(spread.Minimum(), 1.0);
    QCOMPARE(spread.Median(), median);
    QCOMPARE(spread.Percentile(99), percentile99);
    QCOMPARE(spread.Maximum(), double(count));
}

void TestDeadlineMeter::OnlyADayIsKept()
{
    Spread spread;
    for (int i = 0; i < 86400; ++i)
        spread.Add(9);
    for (int i = 0; i < 86400; ++i)
        spread.Add(2);
    QCOMPARE(spread.Median(), 2.0);
    QCOMPARE(spread.Percentile(100), 2.0);
    QCOMPARE(spread.Maximum(), 9.0);
}

void TestDeadlineMeter::OnTheSecond()
{
    DeadlineMeter meter;
    meter.AddPresented(FrameAt(-300)); // the first one is not due at a second
    meter.AddPresented(FrameAt(0));
    meter.AddPresented(FrameAt(1000));
    QCOMPARE(meter.Frames(), 3);
    QCOMPARE(meter.MissedSeconds(), qint64(0));
    QCOMPARE(meter.ClockSteps(), 0);
    QCOMPARE(meter.Lateness().Minimum(), 5.0);
    QCOMPARE(meter.Lateness().Maximum(), 5.0);
    QCOMPARE(meter.Drawing().Median(), 3.0);
}

void TestDeadlineMeter::LateFrames()
{
    DeadlineMeter meter;
    meter.AddPresented(FrameAt(0));
    meter.AddPresented(FrameAt(1040));
    meter.AddPresented(FrameAt(2700));
    QCOMPARE(meter.Lateness().Minimum(), 45.0);
    QCOMPARE(meter.Lateness().Maximum(), 705.0);
    QCOMPARE(meter.MissedSeconds(), qint64(0));
}

void TestDeadlineMeter::MissedSeconds()
{
    DeadlineMeter meter;
    meter.AddPresented(FrameAt(0));
    meter.AddPresented(FrameAt(2100)); // nothing showed second 1
    meter.AddPresented(FrameAt(3000));
    meter.AddPresented(FrameAt(7999)); // nor 4, 5 and 6
    QCOMPARE(meter.MissedSeconds(), qint64(4));
    QCOMPARE(meter.ClockSteps(), 0);
    QCOMPARE(meter.Lateness().Maximum(), 1004.0);
}

void TestDeadlineMeter::RepeatedSeconds()
{
    DeadlineMeter meter;
    meter.AddPresented(FrameAt(0));
    meter.AddPresented(FrameAt(1000));
    meter.AddPresented(FrameAt(1500)); // drawn again, for any reason
    meter.AddPresented(FrameAt(2000));
    QCOMPARE(meter.Frames(), 4);
    QCOMPARE(meter.Lateness().Maximum(), 5.0);
    QCOMPARE(meter.MissedSeconds(), qint64(0));
}

void TestDeadlineMeter::Jumps()
{
    DeadlineMeter meter;
    meter.AddPresented(FrameAt(0));
    meter.Jumped();
    PresentedFrame later = FrameAt(500);
    later.instant += 3600000;
    meter.AddPresented(later);
    QCOMPARE(meter.ClockSteps(), 0);
    QCOMPARE(meter.MissedSeconds(), qint64(0));
    QVERIFY(meter.Lateness().IsEmpty());
}

void TestDeadlineMeter::SteppedClock_data()
{
    QTest::addColumn<qint64>("step");
    QTest::newRow("an hour forwards") << qint64(3600000);
    QTest::newRow("an hour backwards") << qint64(-3600000);
    QTest::newRow("a second forwards") << qint64(1000);
    QTest::newRow("half a second backwards") << qint64(-500);
}

// The steps are told apart from seconds that were missed, and frames count again after them.
void TestDeadlineMeter::SteppedClock()
{
    QFETCH(qint64, step);
    DeadlineMeter meter;
    meter.AddPresented(FrameAt(0));
    const qint64 shown = 450 + step;
    const qint64 millisecond = (shown % 1000 + 1000) % 1000;
    for (const qint64 at : {shown, shown - millisecond + 1000, shown - millisecond + 2000}) {
        PresentedFrame frame = FrameAt(at - step);
        frame.instant = kNoon + at;
        meter.AddPresented(frame);
    }
    QCOMPARE(meter.ClockSteps(), 1);
    QCOMPARE(meter.MissedSeconds(), qint64(0));
    QCOMPARE(meter.Lateness().Maximum(), 5.0);
}

void TestDeadlineMeter::OtherSpeeds()
{
    DeadlineMeter meter;
    for (int i = 0; i < 3; ++i) { // one frame a real second, ten seconds of the clocks
        PresentedFrame frame = FrameAt(1000 * i);
        frame.instant = kNoon + 10000 * i + 200;
        frame.speed = 10;
        meter.AddPresented(frame);
    }
    QCOMPARE(meter.MissedSeconds(), qint64(18));
    QCOMPARE(meter.ClockSteps(), 0);
    QCOMPARE(meter.Lateness().Maximum(), 25.0); // 200 ms at ten times the speed, and 5 real ones
}

void TestDeadlineMeter::FramesNobodyWaitedFor()
{
    DeadlineMeter meter;
    meter.AddDrawn(7);
    meter.AddDrawn(9);
    QCOMPARE(meter.Frames(), 2);
    QCOMPARE(meter.Drawing().Maximum(), 9.0);
    QVERIFY(meter.Lateness().IsEmpty());
}

void TestDeadlineMeter::Report()
{
    DeadlineMeter meter;
    meter.AddPresented(FrameAt(0));
    meter.AddPresented(FrameAt(1000));
    meter.AddPresented(FrameAt(3002));
    QCOMPARE(meter.Report(),
             QStringList({"frames: 3, missed seconds: 1, clock steps: 0, second presentations: 0",
                          "drawing ms: minimum 3.00, median 3.00, 99th percentile 3.00, "
                          "maximum 3.00",
                          "lateness ms: minimum 5.00, median 5.00, 99th percentile 7.00, "
                          "maximum 7.00"}));
}

QTEST_GUILESS_MAIN(TestDeadlineMeter)
#include "test_deadline_meter.moc"
