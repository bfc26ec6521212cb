// The device's clock is set while clocks play: by hours, to where devices start without a battery,
// and past the ends of every calendar. What is shown is what a clock that was started at that
// instant shows, and the next frame is asked for at the next whole second.
#include "clock_render.h"
#include "fault_support.h"
#include "plain_digital.h"

#include "pictureplayer.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <limits>

using namespace FaultSupport;
using namespace Lw::HNodeClock;

namespace {

constexpr qint64 kHour = 3600000;
constexpr qint64 kDay = 24 * kHour;
constexpr unsigned int kId = 5;
constexpr int kPersianDate = 7; // format of the date

qint64 Utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0,
           int millisecond = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second, millisecond), Qt::UTC)
        .toMSecsSinceEpoch();
}

const qint64 kBegin = Utc(2026, 11, 21, 13, 7, 42, 250);

} // namespace

class TestClockSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ChosenTime::Set("2026-11-21T13:07:42.250"); }
    void cleanup() { clock_set_time_source(nullptr); }

    void ShowsWhatANewClockShows_data();
    void ShowsWhatANewClockShows();
    void AllDayThroughSteps_data() { AddKinds(); }
    void AllDayThroughSteps();
    void ShowsTheInstantsOwnNumbers_data();
    void ShowsTheInstantsOwnNumbers();
    void LunarRowEndsWithItsTable();
    void PersianDates_data();
    void PersianDates();
    void NextFrameAtTheNextSecond_data();
    void NextFrameAtTheNextSecond();
    void StepsCostNoTime_data() { AddKinds(); }
    void StepsCostNoTime();
    void SteppedWithinAFrame();
};

// Far apart, and around the ends of tables and types.
void TestClockSteps::ShowsWhatANewClockShows_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<qint64>("instant");
    const struct
    {
        const char *name;
        qint64 instant;
    } steps[] = {
        {"a second back", kBegin - 1000},
        {"an hour on", kBegin + kHour},
        {"an hour back", kBegin - kHour},
        {"into the other half of the day", kBegin - 12 * kHour},
        {"eleven hours on, into the next day", kBegin + 11 * kHour},
        {"the same time of another day", kBegin + 400 * kDay},
        {"the same day of another week", kBegin - 7 * kDay},
        {"1970", Utc(1970, 1, 1)},
        {"the last second of 1969", Utc(1969, 12, 31, 23, 59, 59, 999)},
        {"before the lunar table", Utc(1900, 1, 30, 12)},
        {"the first lunar new year", Utc(1900, 1, 31)},
        {"before the Persian anchor", Utc(1993, 3, 20, 23, 59, 59)},
        {"the last 32-bit second", Utc(2038, 1, 19, 3, 14, 7)},
        {"past the last 32-bit second", Utc(2038, 1, 19, 3, 14, 8)},
        {"the last day of the lunar table", Utc(2051, 2, 10, 23, 59, 59)},
        {"past the lunar table", Utc(2051, 2, 11)},
        {"later in 2051", Utc(2051, 12, 31, 23, 59, 59)},
        {"the day before no leap day", Utc(2100, 2, 28, 23, 59, 59)},
        {"the day after no leap day", Utc(2100, 3, 1)},
        {"the last unsigned 32-bit second", Utc(2106, 2, 7, 6, 28, 15)},
        {"the last second of 9999", Utc(9999, 12, 31, 23, 59, 59)},
        {"a year of five figures", Utc(10000, 1, 1)},
        {"year 1", Utc(1, 1, 1)},
        {"before Christ", Utc(-1, 12, 31)},
        {"the end of the type", std::numeric_limits<qint64>::max()},
        {"the beginning of the type", std::numeric_limits<qint64>::min()},
    };
    for (const int kind : kKinds) {
        for (const auto &step : steps)
            QTest::addRow("%s, %s", KindName(kind), step.name) << kind << step.instant;
    }
}

// The drawer has played before the step; nothing that it kept may be seen. The frame of
// the step itself and the next are compared, and those after stepping back again.
void TestClockSteps::ShowsWhatANewClockShows()
{
    QFETCH(int, kind);
    QFETCH(qint64, instant);
    const auto clock = FullClock(kind);
    clock->Set("UseDaylightSavingTime", 1);
    clock->Set("DaylightSavingTimeStart", "3.Last.7.02:00:00");
    clock->Set("DaylightSavingTimeEnd", "10.Last.7.02:00:00");
    DrawDisplayImage drawer(&clock->node);
    for (int second = 0; second < 3; ++second)
        FrameAt(drawer, kBegin + 1000 * second);

    for (const qint64 now : {instant, kBegin}) {
        // Another half of the day is enough for a new dial, without the rows of the old one.
        FrameAt(drawer, kBegin + 12 * kHour);
        FrameAt(drawer, now);
        const QImage stepped = FrameAt(drawer, now);
        QCOMPARE(stepped.size(), QSize(120, 90));
        QVERIFY(PixelsShown(stepped) > 0);
        if (kind != AnalogClock)
            QCOMPARE(stepped, SettledFrame(clock->node, now));
    }
}

// An analog dial keeps the rows of its half of the day; each step here begins another one, so that
// a new clock has the same dial.
void TestClockSteps::AllDayThroughSteps()
{
    QFETCH(int, kind);
    const auto clock = FullClock(kind);
    DrawDisplayImage drawer(&clock->node);
    for (const qint64 instant :
         {kBegin, kBegin + kDay, kBegin + 100 * 365 * kDay, Utc(1970, 1, 1, 5), Utc(2051, 2, 11, 5),
          Utc(2051, 2, 10, 5), Utc(1969, 12, 31, 17), Utc(2101, 3, 1, 5), kBegin}) {
        FrameAt(drawer, instant);
        QCOMPARE(FrameAt(drawer, instant), SettledFrame(clock->node, instant));
        for (int second = 1; second < 4; ++second) {
            const QImage frame = FrameAt(drawer, instant + 1000 * second);
            QCOMPARE(frame, SettledFrame(clock->node, instant + 1000 * second));
        }
    }
}

void TestClockSteps::ShowsTheInstantsOwnNumbers_data()
{
    QTest::addColumn<QDateTime>("instant");
    for (const QDateTime &instant : {QDateTime(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC),
                                     QDateTime(QDate(2051, 2, 11), QTime(9, 8, 7), Qt::UTC),
                                     QDateTime(QDate(2100, 2, 28), QTime(23, 59, 59), Qt::UTC),
                                     QDateTime(QDate(2100, 3, 1), QTime(0, 0), Qt::UTC),
                                     QDateTime(QDate(2226, 11, 21), QTime(17, 0, 1), Qt::UTC),
                                     QDateTime(QDate(9999, 12, 31), QTime(12, 0), Qt::UTC)})
        QTest::newRow(qPrintable(instant.toString(Qt::ISODate))) << instant;
}

// The numbers from Qt's calendar, put together from the glyph files by the plain renderer.
void TestClockSteps::ShowsTheInstantsOwnNumbers()
{
    QFETCH(QDateTime, instant);
    const auto clock = FullClock(DigitalClock);
    clock->Set("DigitalMode", 0);
    clock->Set("Digital_Lunar_d", 0);
    DrawDisplayImage drawer(&clock->node);
    FrameAt(drawer, kBegin);
    PlainDigitalClock plain(clock->node);
    QCOMPARE(FrameAt(drawer, instant.toMSecsSinceEpoch()),
             plain.Frame(PlainDigitalClock::Gregorian(instant)));
    QCOMPARE(
        FrameAt(drawer, kBegin),
        plain.Frame(PlainDigitalClock::Gregorian(QDateTime::fromMSecsSinceEpoch(kBegin, Qt::UTC))));
}

// New moons on 2051-01-13 and 2051-02-11 in China's time: the table ends with the 29th day of the
// twelfth month.
void TestClockSteps::LunarRowEndsWithItsTable()
{
    const auto clock = FullClock(DigitalClock);
    for (const char *const key :
         {"Digital_TopTexy_d", "Digital_Date_d", "Digital_Week_d", "Digital_Time_d"})
        clock->Set(key, 0);
    DrawDisplayImage drawer(&clock->node);
    PlainDigitalClock plain(clock->node);
    PlainDigitalClock::Shown shown;
    shown.lunarMonth = 12;
    shown.lunarDay = 29;
    const QImage expected = plain.Frame(shown);
    QVERIFY(PixelsShown(expected) > 0);
    const qint64 last = Utc(2051, 2, 10, 12);
    QCOMPARE(FrameAt(drawer, last), expected);
    for (const qint64 outside : {last + kDay, Utc(2200, 1, 1), Utc(1900, 1, 1)})
        QCOMPARE(PixelsShown(FrameAt(drawer, outside)), 0);
    QCOMPARE(FrameAt(drawer, last), expected);
}

void TestClockSteps::PersianDates_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QDate>("shown");
    QTest::newRow("before the first Persian date it stays Gregorian")
        << QDate(1993, 3, 20) << QDate(1993, 3, 20);
    QTest::newRow("the first") << QDate(1993, 3, 21) << QDate(1372, 1, 1);
    QTest::newRow("1970") << QDate(1970, 1, 1) << QDate(1970, 1, 1);
    // The equinox of 2100 falls into the afternoon of 20 March in Iran: 1 Farvardin is the 21st.
    QTest::newRow("beyond 2100") << QDate(2100, 6, 15) << QDate(1479, 3, 25);
}

void TestClockSteps::PersianDates()
{
    QFETCH(QDate, date);
    QFETCH(QDate, shown);
    const auto clock = FullClock(DigitalClock);
    for (const char *const key :
         {"Digital_TopTexy_d", "Digital_Lunar_d", "Digital_Week_d", "Digital_Time_d"})
        clock->Set(key, 0);
    clock->Set("DigitalDateType", kPersianDate);
    DrawDisplayImage drawer(&clock->node);
    FrameAt(drawer, kBegin);
    PlainDigitalClock::Shown numbers;
    numbers.year = shown.year();
    numbers.month = shown.month();
    numbers.day = shown.day();
    QCOMPARE(FrameAt(drawer, Utc(date.year(), date.month(), date.day(), 12)),
             PlainDigitalClock(clock->node).Frame(numbers));
}

void TestClockSteps::NextFrameAtTheNextSecond_data()
{
    QTest::addColumn<qint64>("instant");
    QTest::addColumn<int>("delay");
    QTest::newRow("an hour on") << kBegin + kHour << 750;
    QTest::newRow("an hour back") << kBegin - kHour << 750;
    QTest::newRow("1970") << Utc(1970, 1, 1) << 1000;
    QTest::newRow("a millisecond before 1970") << Utc(1970, 1, 1) - 1 << 1;
    QTest::newRow("999 milliseconds before 1970") << Utc(1970, 1, 1) - 999 << 999;
    QTest::newRow("2051") << Utc(2051, 2, 11, 0, 0, 0, 1) << 999;
    QTest::newRow("2100") << Utc(2100, 2, 28, 23, 59, 59, 999) << 1;
    QTest::newRow("9999") << Utc(9999, 12, 31, 23, 59, 59, 500) << 500;
    QTest::newRow("the end of the type") << std::numeric_limits<qint64>::max() << 1000;
    QTest::newRow("the beginning of the type") << std::numeric_limits<qint64>::min() << 1000;
}

void TestClockSteps::NextFrameAtTheNextSecond()
{
    QFETCH(qint64, instant);
    pictureplayer::SetTimeScale(0);
    for (const int kind : kKinds) {
        const auto clock = FullClock(kind, {40, 30});
        ChosenTime::Milliseconds() = kBegin;
        HClockRender render(&clock->node);
        render.Start(kId, 0);
        QSignalSpy delays(pictureplayer::ForIdentifier(kId), &pictureplayer::EffectUpdated);
        ChosenTime::Milliseconds() = instant;
        render.PlayNext();
        ChosenTime::Milliseconds() = kBegin;
        render.PlayNext();
        QCOMPARE(delays.size(), 2);
        QTEST(delays.at(0).at(0).toInt(), "delay");
        QCOMPARE(delays.at(1).at(0).toInt(), 750);
    }
}

// No step is walked through: far ones cost what near ones do. The bound, ten seconds for 600
// frames, is far more than they take and far less than a walk through the years.
void TestClockSteps::StepsCostNoTime()
{
    QFETCH(int, kind);
    const auto clock = FullClock(kind);
    clock->Set("DigitalDateType", kPersianDate);
    clock->Set("AnalogDateType", kPersianDate);
    DrawDisplayImage drawer(&clock->node);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 100; ++i) {
        for (const qint64 instant :
             {kBegin, Utc(1970, 1, 1), Utc(2101, 1, 1), std::numeric_limits<qint64>::max(),
              Utc(9999, 12, 31), std::numeric_limits<qint64>::min()})
            FrameAt(drawer, instant);
    }
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

// A source that steps with each reading: a frame is made of one reading all the same.
void TestClockSteps::SteppedWithinAFrame()
{
    const auto clock = FullClock(DigitalClock);
    clock->Set("Digital_Lunar_d", 0);
    clock->Set("DigitalMode", 0);
    DrawDisplayImage drawer(&clock->node);
    PlainDigitalClock plain(clock->node);
    static int readings;
    readings = 0;
    clock_set_time_source([]() -> long long { return kBegin + 5 * kDay * readings++; });
    const QImage frame = drawer.DrawClockDisplayImage();
    QCOMPARE(readings, 1);
    QCOMPARE(
        frame,
        plain.Frame(PlainDigitalClock::Gregorian(QDateTime::fromMSecsSinceEpoch(kBegin, Qt::UTC))));
}

QTEST_MAIN(TestClockSteps)

#include "test_clock_steps.moc"
