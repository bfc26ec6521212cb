#include "time_travel.h"

#include <QtTest>

using namespace ClockStage;

namespace {

// The system's clock says this when the steady one says 500.
constexpr qint64 kPresent = 1700000000000;

RealTime After(qint64 milliseconds)
{
    return {kPresent + milliseconds, 500 + milliseconds};
}

} // namespace

class TestTimeTravel : public QObject
{
    Q_OBJECT

private slots:
    void PresentIsTheSystemsTime();
    void SteppedSystemClockIsThePresent();
    void ElsewhereTheSystemsClockHasNoInfluence();
    void Speeds_data();
    void Speeds();
    void SpeedFromNowOn();
    void Pause();
    void StepFromThePresent();
    void StepsWhilePaused();
    void ReturnToPresent();
    void EndsOfTime();
};

void TestTimeTravel::PresentIsTheSystemsTime()
{
    const TimeTravel travel;
    QVERIFY(travel.IsPresent() && !travel.IsPaused());
    QCOMPARE(travel.Speed(), 1.0);
    QCOMPARE(travel.Shown(After(0)), kPresent);
    QCOMPARE(travel.Shown(After(1234)), kPresent + 1234);
}

void TestTimeTravel::SteppedSystemClockIsThePresent()
{
    const TimeTravel travel;
    QCOMPARE(travel.Shown({kPresent - 3600000, 600}), kPresent - 3600000);
    QCOMPARE(travel.Shown({kPresent + 86400000, 700}), kPresent + 86400000);
}

void TestTimeTravel::ElsewhereTheSystemsClockHasNoInfluence()
{
    TimeTravel travel;
    travel.GoTo(5000, After(0));
    QVERIFY(!travel.IsPresent());
    QCOMPARE(travel.Shown(After(250)), qint64(5250));
    QCOMPARE(travel.Shown({0, 750}), qint64(5250));
}

void TestTimeTravel::Speeds_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<qint64>("shownAfterTwoSeconds");
    QTest::newRow("a day in a second") << 86400.0 << qint64(172800000);
    QTest::newRow("sixty") << 60.0 << qint64(120000);
    QTest::newRow("real") << 1.0 << qint64(2000);
    QTest::newRow("half") << 0.5 << qint64(1000);
    QTest::newRow("hundredth") << 0.01 << qint64(20);
}

void TestTimeTravel::Speeds()
{
    QFETCH(double, speed);
    QFETCH(qint64, shownAfterTwoSeconds);
    TimeTravel travel;
    travel.GoTo(0, After(0));
    travel.SetSpeed(speed, After(0));
    QCOMPARE(travel.Shown(After(2000)), shownAfterTwoSeconds);
}

void TestTimeTravel::SpeedFromNowOn()
{
    TimeTravel travel;
    travel.SetSpeed(10, After(100));
    QCOMPARE(travel.Shown(After(100)), kPresent + 100);
    QCOMPARE(travel.Shown(After(300)), kPresent + 2100);
    travel.SetSpeed(2, After(300));
    QCOMPARE(travel.Shown(After(400)), kPresent + 2300);
}

void TestTimeTravel::Pause()
{
    TimeTravel travel;
    travel.SetSpeed(4, After(0));
    travel.SetPaused(true, After(1000));
    QVERIFY(travel.IsPaused());
    QCOMPARE(travel.Shown(After(1000)), kPresent + 4000);
    QCOMPARE(travel.Shown(After(99000)), kPresent + 4000);
    travel.SetPaused(false, After(99000));
    QCOMPARE(travel.Shown(After(100000)), kPresent + 8000);
}

void TestTimeTravel::StepFromThePresent()
{
    TimeTravel travel;
    travel.Step(-3600000, After(0));
    QVERIFY(!travel.IsPresent() && !travel.IsPaused());
    QCOMPARE(travel.Shown(After(1500)), kPresent - 3600000 + 1500);
}

void TestTimeTravel::StepsWhilePaused()
{
    TimeTravel travel;
    travel.GoTo(10000, After(0));
    travel.SetPaused(true, After(0));
    travel.Step(1000, After(300));
    travel.Step(60000, After(900));
    QVERIFY(travel.IsPaused());
    QCOMPARE(travel.Shown(After(5000)), qint64(71000));
}

void TestTimeTravel::ReturnToPresent()
{
    TimeTravel travel;
    travel.GoTo(0, After(0));
    travel.SetSpeed(60, After(0));
    travel.SetPaused(true, After(0));
    travel.ReturnToPresent();
    QVERIFY(travel.IsPresent() && !travel.IsPaused());
    QCOMPARE(travel.Speed(), 1.0);
    QCOMPARE(travel.Shown(After(77)), kPresent + 77);
}

void TestTimeTravel::EndsOfTime()
{
    const qint64 first = QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    const qint64 last =
        QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC).toMSecsSinceEpoch();
    TimeTravel travel;
    travel.GoTo(last - 1000, After(0));
    travel.SetSpeed(100000, After(0));
    QCOMPARE(travel.Shown(After(1000000000000)), last);
    travel.Step(86400000, After(1000000000000));
    QCOMPARE(travel.Shown(After(1000000000000)), last);
    travel.GoTo(std::numeric_limits<qint64>::min(), After(0));
    QCOMPARE(travel.Shown(After(0)), first);
    travel.GoTo(std::numeric_limits<qint64>::max(), After(0));
    QCOMPARE(travel.Shown(After(0)), last);
}

QTEST_GUILESS_MAIN(TestTimeTravel)
#include "test_time_travel.moc"
