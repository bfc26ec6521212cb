// What a frame drawer keeps from frame to frame: the time fields, the two frames, the dial; for
// every kind of clock, and however its operations are called.
#include "calendar/lunar_calendar.h"
#include "chosen_time.h"
#include "clock_under_test.h"
#include "display/draw_display_image.h"
#include "messages.h"
#include "plain_digital.h"

#include "happconfig.h"

#include <QTest>

#include <climits>
#include <memory>
#include <optional>

using namespace Lw::HNodeClock;

namespace {

constexpr int kTypes[] = {AnalogClock, DigitalClock, PictureClock};

void SwitchTo(ClockUnderTest &clock, int type)
{
    clock.Set("ClockType", type);
    clock.MakeGlyphs();
}

// A clock that shows all it can, with the glyph images of its type.
std::unique_ptr<ClockUnderTest> FullClock(int type, const QSize &size = QSize(120, 90))
{
    auto clock = std::make_unique<ClockUnderTest>(type, size);
    for (const char *const key : {"Analog_AMPM_d", "Analog_TopTexy_d", "Analog_Date_d",
                                  "Analog_Week_d", "Analog_Lunar_d", "Digital_Lunar_d"})
        clock->Set(key, 1);
    clock->MakeGlyphs();
    return clock;
}

void HideAnalogTexts(ClockUnderTest &clock)
{
    for (const char *const key :
         {"Analog_TopTexy_d", "Analog_Date_d", "Analog_Week_d", "Analog_Lunar_d"})
        clock.Set(key, 0);
}

QList<QImage> Play(DrawDisplayImage &drawer, int seconds)
{
    QList<QImage> frames;
    for (int i = 0; i < seconds; ++i) {
        ChosenTime::Advance(1000);
        frames.append(drawer.DrawClockDisplayImage().copy());
    }
    return frames;
}

int Count(const QImage &image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
}

using Operation = void (*)(DrawDisplayImage &);

const QVector<Operation> &Operations()
{
    static const QVector<Operation> operations = {
        [](DrawDisplayImage &drawer) { drawer.CalculateTimeZone(); },
        [](DrawDisplayImage &drawer) { drawer.GetAngDisplayArea(); },
        [](DrawDisplayImage &drawer) { drawer.DrawAnalogClockDial(); },
        [](DrawDisplayImage &drawer) { drawer.DrawAnalogClock_AMPM(); },
        [](DrawDisplayImage &drawer) { drawer.DrawAnalogClockPoint(); },
        [](DrawDisplayImage &drawer) { drawer.DrawAnalogText(); },
        [](DrawDisplayImage &drawer) { drawer.DrawAnalogClock(); },
        [](DrawDisplayImage &drawer) { drawer.GetDigitalDisplayArea(); },
        [](DrawDisplayImage &drawer) { drawer.Computations1Count(); },
        [](DrawDisplayImage &drawer) { drawer.Computations2Count(INT_MAX); },
        [](DrawDisplayImage &drawer) { drawer.Computations3Count(INT_MIN); },
        [](DrawDisplayImage &drawer) { drawer.Computations4Count(-1); },
        [](DrawDisplayImage &drawer) { drawer.Computations5Count(INT_MIN); },
        [](DrawDisplayImage &drawer) { drawer.DrawDigitalClock(); },
        [](DrawDisplayImage &drawer) { drawer.InitClockTypePixmap(); },
        [](DrawDisplayImage &drawer) { drawer.DrawPixmapClock(); },
        [](DrawDisplayImage &drawer) { drawer.SetHandSize(INT_MIN); },
        [](DrawDisplayImage &drawer) { drawer.ReLoadSourceFile(nullptr); },
        [](DrawDisplayImage &drawer) { drawer.DrawClockDisplayImage(); },
    };
    return operations;
}

void AddTypes()
{
    QTest::addColumn<int>("type");
    QTest::newRow("analog") << int(AnalogClock);
    QTest::newRow("digital") << int(DigitalClock);
    QTest::newRow("picture") << int(PictureClock);
}

} // namespace

class TestFrameState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "UTC"); }
    void init();
    void cleanup();

    void StartTimeIsTheSecondFrames();
    void TimeUpdatesCountAsFrames();
    void TimeIsTheClocksOwn();
    void NoStartTimeWithoutANode();
    void DateAndHourChangeTogether_data();
    void DateAndHourChangeTogether();
    void Colours_data();
    void Colours();
    void KeyColour();
    void ResizingTakesEffectAtOnce_data();
    void ResizingTakesEffectAtOnce();
    void DialIsKept_data();
    void DialIsKept();
    void OtherTypesLeaveTheFrame_data();
    void OtherTypesLeaveTheFrame();
    void DeadNodeLeavesTheFrame_data();
    void DeadNodeLeavesTheFrame();
    void SwitchedTypes_data();
    void SwitchedTypes();
    void SwitchedThereAndBack_data();
    void SwitchedThereAndBack();
    void SwitchedWithoutNewGlyphs();
    void ManyFramesHeld_data();
    void ManyFramesHeld();
    void NoNewFrameInASteadySecond_data();
    void NoNewFrameInASteadySecond();
    void TwoDrawersDoNotMeet();
    void OnlyShownRowsAreMeasured_data();
    void OnlyShownRowsAreMeasured();
    void OperationsByThemselves_data();
    void OperationsByThemselves();
    void AnyNumberInAnySetting_data();
    void AnyNumberInAnySetting();

private:
    std::optional<CollectedMessages> m_messages;
};

// Whatever a test does, the drawer tells nothing.
void TestFrameState::init()
{
    ChosenTime::Set("2024-03-05T13:07:40");
    m_messages.emplace();
}

void TestFrameState::cleanup()
{
    clock_set_time_source(nullptr);
    const QStringList logged = m_messages->Lines();
    m_messages.reset();
    QCOMPARE(logged, QStringList());
}

void TestFrameState::StartTimeIsTheSecondFrames()
{
    const auto clock = FullClock(DigitalClock);
    DrawDisplayImage drawer(&clock->node);
    const QTime untouched(1, 2, 3, 4);
    QTime start = untouched;
    QTime now = untouched;
    const auto ask = [&](const char *instant) {
        ChosenTime::Set(instant);
        drawer.DrawClockDisplayImage();
        drawer.GetTime(start, now);
    };
    drawer.GetTime(start, now);
    QCOMPARE(start, untouched);
    ask("2024-03-05T13:07:42.250");
    QCOMPARE(start, untouched);
    QCOMPARE(now, untouched);
    ask("2024-03-05T13:07:43.017");
    QCOMPARE(start, QTime(13, 7, 43, 17));
    QCOMPARE(now, QTime(13, 7, 43, 17));
    ask("2024-03-06T00:00:00.999");
    QCOMPARE(start, QTime(13, 7, 43, 17));
    QCOMPARE(now, QTime(0, 0, 0, 999));
}

void TestFrameState::TimeUpdatesCountAsFrames()
{
    const auto clock = FullClock(DigitalClock);
    DrawDisplayImage drawer(&clock->node);
    drawer.CalculateTimeZone();
    ChosenTime::Advance(2500);
    drawer.CalculateTimeZone();
    ChosenTime::Advance(1000);
    drawer.DrawClockDisplayImage();
    QTime start;
    QTime now;
    drawer.GetTime(start, now);
    QCOMPARE(start, QTime(13, 7, 42, 500));
    QCOMPARE(now, QTime(13, 7, 43, 500));
}

void TestFrameState::TimeIsTheClocksOwn()
{
    ClockUnderTest clock(DigitalClock);
    clock.Set("TimeZone", "-05:30");
    clock.Set("TimeAdjust", "00A00B50");
    clock.Set("DigitalMode", 1); // twelve hours on the display only
    ChosenTime::Set("2024-03-05T01:07:42.250");
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    drawer.DrawClockDisplayImage();
    QTime start;
    QTime now;
    drawer.GetTime(start, now);
    QCOMPARE(start, QTime(19, 38, 32, 250));
    QCOMPARE(now, start);
}

void TestFrameState::NoStartTimeWithoutANode()
{
    DrawDisplayImage drawer(nullptr);
    for (int i = 0; i < 3; ++i)
        drawer.CalculateTimeZone();
    QTime start(1, 2);
    QTime now(3, 4);
    drawer.GetTime(start, now);
    QCOMPARE(start, QTime(1, 2));
    QCOMPARE(now, QTime(3, 4));
}

void TestFrameState::DateAndHourChangeTogether_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QDateTime>("before");
    const auto utc = [](int day, int hour, int minute) {
        return QDateTime(QDate(2024, 2, day), QTime(hour, minute, 59), Qt::UTC);
    };
    QTest::newRow("UTC") << "+00:00" << utc(29, 23, 59);
    QTest::newRow("east of the device") << "+08:00" << utc(29, 15, 59);
    QTest::newRow("west of the device") << "-03:30" << utc(28, 3, 29);
}

void TestFrameState::DateAndHourChangeTogether()
{
    QFETCH(QString, zone);
    QFETCH(QDateTime, before);
    const auto clock = FullClock(DigitalClock, {220, 110});
    clock->Set("TimeZone", qPrintable(zone));
    clock->Set("Digital_Lunar_d", 0);
    PlainDigitalClock plain(clock->node);
    ChosenTime::Set(before);
    DrawDisplayImage drawer(&clock->node);
    const QTime offset = QTime::fromString(zone.mid(1), QStringLiteral("hh:mm"));
    const int seconds = QTime(0, 0).secsTo(offset) * (zone.startsWith('-') ? -1 : 1);
    const QDateTime last = before.addSecs(seconds);
    QCOMPARE(last.time(), QTime(23, 59, 59));
    QCOMPARE(drawer.DrawClockDisplayImage(), plain.Frame(PlainDigitalClock::Gregorian(last)));
    ChosenTime::Advance(1000);
    const PlainDigitalClock::Shown next = PlainDigitalClock::Gregorian(last.addSecs(1));
    QCOMPARE(next.hour, 0);
    QCOMPARE(drawer.DrawClockDisplayImage(), plain.Frame(next));
}

void TestFrameState::Colours_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("red") << 0x0000ff << QColor(255, 0, 0);
    QTest::newRow("green") << 0x00ff00 << QColor(0, 255, 0);
    QTest::newRow("blue") << 0xff0000 << QColor(0, 0, 255);
    QTest::newRow("black") << 0 << QColor(0, 0, 0);
    QTest::newRow("all bits") << -1 << QColor(255, 255, 255);
    QTest::newRow("top byte ignored") << 0x7f010203 << QColor(3, 2, 1);
    QTest::newRow("sign ignored") << INT_MIN + 0x102 << QColor(2, 1, 0);
}

void TestFrameState::Colours()
{
    QFETCH(int, stored);
    DrawDisplayImage drawer(nullptr);
    const QColor colour = drawer.ReturnQcolor(stored);
    QTEST(colour, "colour");
    QCOMPARE(colour.alpha(), 255);
}

void TestFrameState::KeyColour()
{
    DrawDisplayImage drawer(nullptr);
    QCOMPARE(drawer.GetColorKey(), QColor(1, 2, 1));
}

void TestFrameState::ResizingTakesEffectAtOnce_data()
{
    AddTypes();
}

void TestFrameState::ResizingTakesEffectAtOnce()
{
    QFETCH(int, type);
    const auto clock = FullClock(type);
    HideAnalogTexts(*clock);
    DrawDisplayImage drawer(&clock->node);
    for (const QSize &size :
         {QSize(120, 90), QSize(121, 90), QSize(90, 120), QSize(1, 1), QSize(0, 90), QSize(-1, -1),
          QSize(64, 64), QSize(32768, 1), QSize(120, 90)}) {
        clock->node.SetSize(size);
        DrawDisplayImage fresh(&clock->node);
        const QImage expected = fresh.DrawClockDisplayImage();
        for (int second = 0; second < 3; ++second) {
            const QImage frame = drawer.DrawClockDisplayImage();
            QCOMPARE(frame, expected);
            if (!expected.isNull())
                QCOMPARE(frame.size(), size);
        }
    }
}

void TestFrameState::DialIsKept_data()
{
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("instant");
    QTest::addColumn<bool>("redrawn");
    const auto row = [](const char *name, const char *zone, const QSize &size, const char *instant,
                        bool redrawn) {
        QTest::newRow(name) << QString(zone) << size << QString(instant) << redrawn;
    };
    const QSize same(120, 90);
    row("next second", "+08:00", same, "2024-03-05T15:07:41", false);
    row("next hour", "+00:00", same, "2024-03-05T16:00:00", false);
    row("another size", "+08:00", QSize(121, 90), "2024-03-05T15:07:41", true);
    row("turned on its side", "+08:00", QSize(90, 120), "2024-03-05T15:07:41", true);
    // The clock shows 23:07 at first, eight hours ahead of the device.
    row("the clock's midnight", "+08:00", same, "2024-03-05T16:00:00", true);
    row("the device's midnight, both in the evening", "-00:10", same, "2024-03-06T00:00:00", true);
    row("the device's date goes back", "+08:00", same, "2024-03-04T15:07:41", true);
}

void TestFrameState::DialIsKept()
{
    QFETCH(QString, zone);
    QFETCH(QSize, size);
    QFETCH(QString, instant);
    QFETCH(bool, redrawn);
    const auto clock = FullClock(AnalogClock);
    clock->Set("TimeZone", qPrintable(zone));
    clock->Set("Analog_AMPM_d", 0);
    clock->Set("HourScaleType", 0);
    ChosenTime::Set("2024-03-05T15:07:40");
    DrawDisplayImage drawer(&clock->node);
    drawer.DrawClockDisplayImage();
    clock->Set("HourScaleColor", 0x123456);
    clock->node.SetSize(size);
    ChosenTime::Set(instant);
    QCOMPARE(Count(drawer.DrawClockDisplayImage(), qRgb(0x56, 0x34, 0x12)) > 0, redrawn);
}

void TestFrameState::OtherTypesLeaveTheFrame_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {3, 4, -1, INT_MAX, INT_MIN})
        QTest::addRow("%d", type) << type;
}

void TestFrameState::OtherTypesLeaveTheFrame()
{
    QFETCH(int, type);
    for (const int before : kTypes) {
        const auto clock = FullClock(type);
        DrawDisplayImage drawer(&clock->node);
        QVERIFY(drawer.DrawClockDisplayImage().isNull());
        SwitchTo(*clock, before);
        const QImage last = drawer.DrawClockDisplayImage();
        QCOMPARE(last.size(), QSize(120, 90));
        const QImage copy = last.copy();
        clock->Set("ClockType", type);
        clock->node.SetSize({30, 20});
        ChosenTime::Advance(1000);
        QCOMPARE(drawer.DrawClockDisplayImage().cacheKey(), last.cacheKey());
        QCOMPARE(last, copy);
        // The time goes on all the same.
        QTime start;
        QTime now;
        drawer.GetTime(start, now);
        QCOMPARE(start.secsTo(now), 1);
    }
}

void TestFrameState::DeadNodeLeavesTheFrame_data()
{
    AddTypes();
}

void TestFrameState::DeadNodeLeavesTheFrame()
{
    QFETCH(int, type);
    auto clock = FullClock(type);
    DrawDisplayImage drawer(&clock->node);
    Play(drawer, 2);
    const QImage last = drawer.DrawClockDisplayImage();
    const QImage copy = last.copy();
    QTime start;
    QTime now;
    drawer.GetTime(start, now);
    clock.reset();
    ChosenTime::Advance(3000);
    for (const Operation operation : Operations())
        operation(drawer);
    QCOMPARE(drawer.DrawClockDisplayImage().cacheKey(), last.cacheKey());
    QCOMPARE(last, copy);
    QTime startLater;
    QTime nowLater;
    drawer.GetTime(startLater, nowLater);
    QCOMPARE(startLater, start);
    QCOMPARE(nowLater, now);
}

void TestFrameState::SwitchedTypes_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    for (const int first : kTypes) {
        for (const int second : kTypes)
            QTest::addRow("%d to %d", first, second) << first << second;
    }
}

void TestFrameState::SwitchedTypes()
{
    QFETCH(int, first);
    QFETCH(int, second);
    const auto clock = FullClock(first);
    DrawDisplayImage drawer(&clock->node);
    if (first != second)
        Play(drawer, 3);
    SwitchTo(*clock, second);
    drawer.ReLoadSourceFile(&clock->node);
    const long long switched = ChosenTime::Milliseconds();
    const QList<QImage> frames = Play(drawer, 4);

    ChosenTime::Milliseconds() = switched;
    DrawDisplayImage fresh(&clock->node);
    QCOMPARE(Play(fresh, 4), frames);
    QVERIFY(frames.at(0) != frames.at(1));
}

void TestFrameState::SwitchedThereAndBack_data()
{
    SwitchedTypes_data();
}

void TestFrameState::SwitchedThereAndBack()
{
    QFETCH(int, first);
    QFETCH(int, second);
    const auto clock = FullClock(first);
    HideAnalogTexts(*clock); // they would grow denser on a dial that is kept
    DrawDisplayImage drawer(&clock->node);
    for (const int type : {first, second, first, second, first}) {
        SwitchTo(*clock, type);
        drawer.ReLoadSourceFile(&clock->node);
        const long long switched = ChosenTime::Milliseconds();
        const QList<QImage> frames = Play(drawer, 3);
        ChosenTime::Milliseconds() = switched;
        DrawDisplayImage fresh(&clock->node);
        QCOMPARE(Play(fresh, 3), frames);
    }
}

// Images of another type, or none: every area is still drawn.
void TestFrameState::SwitchedWithoutNewGlyphs()
{
    for (const int first : kTypes) {
        const auto clock = FullClock(first);
        DrawDisplayImage drawer(&clock->node);
        for (const int type : {0, 1, 2, 3, 1, 0, 2, 1}) {
            clock->Set("ClockType", type);
            for (const QImage &frame : Play(drawer, 2))
                QCOMPARE(frame.isNull(), false);
        }
    }
}

void TestFrameState::ManyFramesHeld_data()
{
    AddTypes();
}

void TestFrameState::ManyFramesHeld()
{
    QFETCH(int, type);
    const auto clock = FullClock(type);
    DrawDisplayImage drawer(&clock->node);
    QList<QImage> held;
    QList<QImage> copies;
    for (int second = 0; second < 9; ++second) {
        ChosenTime::Advance(1000);
        held.append(drawer.DrawClockDisplayImage());
        copies.append(held.last().copy());
        if (second == 5)
            held.removeFirst(); // an older one goes
        for (int i = 0; i < held.size(); ++i)
            QCOMPARE(held.at(i), copies.at(copies.size() - held.size() + i));
    }
    held.clear();

    // A consumer that holds none, or only the last, sees the same frames.
    ChosenTime::Set("2024-03-05T13:07:40");
    DrawDisplayImage other(&clock->node);
    QCOMPARE(Play(other, 9), copies);
}

void TestFrameState::NoNewFrameInASteadySecond_data()
{
    AddTypes();
}

void TestFrameState::NoNewFrameInASteadySecond()
{
    QFETCH(int, type);
    const auto clock = FullClock(type);
    DrawDisplayImage drawer(&clock->node);
    QImage held; // the last frame only, as players do
    QVector<const uchar *> pixels;
    for (int second = 0; second < 8; ++second) {
        ChosenTime::Advance(1000);
        held = drawer.DrawClockDisplayImage();
        pixels.append(held.constBits());
    }
    QVERIFY(pixels.at(0) != pixels.at(1));
    for (int second = 2; second < 8; ++second)
        QCOMPARE(pixels.at(second), pixels.at(second - 2));
}

void TestFrameState::TwoDrawersDoNotMeet()
{
    const auto digital = FullClock(DigitalClock);
    const auto analog = FullClock(AnalogClock, {80, 80});
    const long long begin = ChosenTime::Milliseconds();
    QList<QImage> alone[3];
    HClockNode *const nodes[] = {&digital->node, &analog->node, &analog->node};
    for (int i = 0; i < 3; ++i) {
        ChosenTime::Milliseconds() = begin;
        DrawDisplayImage drawer(nodes[i]);
        alone[i] = Play(drawer, 4);
    }
    ChosenTime::Milliseconds() = begin;
    DrawDisplayImage drawers[] = {DrawDisplayImage(nodes[0]), DrawDisplayImage(nodes[1]),
                                  DrawDisplayImage(nodes[2])};
    for (int second = 0; second < 4; ++second) {
        ChosenTime::Advance(1000);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(drawers[i].DrawClockDisplayImage(), alone[i].at(second));
    }
}

void TestFrameState::OnlyShownRowsAreMeasured_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("lunarMeasured");
    QTest::newRow("none") << "" << false;
    QTest::newRow("a single row measures all") << "Digital_Time_d" << true;
    QTest::newRow("two others") << "Digital_Date_d Digital_Time_d" << false;
    QTest::newRow("two") << "Digital_Lunar_d Digital_Time_d" << true;
    QTest::newRow("three others") << "Digital_Date_d Digital_Week_d Digital_Time_d" << false;
    QTest::newRow("four others") << "Digital_TopTexy_d Digital_Date_d Digital_Week_d Digital_Time_d"
                                 << false;
}

// The lunar calendar tells in its public fields whether it was asked.
void TestFrameState::OnlyShownRowsAreMeasured()
{
    QFETCH(QString, shown);
    QFETCH(bool, lunarMeasured);
    constexpr int kDay = 24 * 3600 * 1000; // the calendar is asked once for each
    const auto clock = FullClock(DigitalClock);
    for (const char *const flag : {"Digital_TopTexy_d", "Digital_Date_d", "Digital_Week_d",
                                   "Digital_Time_d", "Digital_Lunar_d"})
        clock->Set(flag, shown.contains(QLatin1String(flag)) ? 1 : 0);
    DrawDisplayImage drawer(&clock->node);
    for (const int mode : {0, 1}) {
        clock->Set("DigitalDisplayMode", mode);
        s_year = 1;
        drawer.DrawClockDisplayImage();
        QCOMPARE(s_year == 2024, lunarMeasured);
        ChosenTime::Advance(kDay);
    }
    for (const bool all : {false, true}) {
        s_year = 1;
        if (all)
            drawer.Computations5Count(0);
        else
            drawer.Computations4Count(0);
        QCOMPARE(s_year == 2024, all || shown.contains(QLatin1String("Lunar")));
        ChosenTime::Advance(kDay);
    }
}

void TestFrameState::OperationsByThemselves_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(60, 40);
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("before layout") << QSize(-1, -1);
    QTest::newRow("least") << QSize(INT_MIN, INT_MIN);
    QTest::newRow("most") << QSize(INT_MAX, INT_MAX);
    QTest::newRow("no area") << QSize(INT_MIN, INT_MAX);
}

// Each operation first of all, and then all of them in another order each time.
void TestFrameState::OperationsByThemselves()
{
    QFETCH(QSize, size);
    const QVector<Operation> &operations = Operations();
    const int count = operations.size();
    for (const int type : kTypes) {
        const auto clock = FullClock(type, {60, 40});
        for (int first = 0; first < count; ++first) {
            clock->node.SetSize(size);
            DrawDisplayImage drawer(&clock->node);
            for (int i = 0, k = first; i < count; ++i, k = (k + 1 + 2 * first) % count) {
                operations.at(k)(drawer);
                ChosenTime::Advance(400);
                if (i == count / 2)
                    clock->node.SetSize({50, 50});
            }
            clock->node.SetSize({50, 50});
            QCOMPARE(drawer.DrawClockDisplayImage().size(), QSize(50, 50));
        }
        DrawDisplayImage without(nullptr);
        for (const Operation operation : operations)
            operation(without);
        QVERIFY(without.DrawClockDisplayImage().isNull());
    }
}

void TestFrameState::AnyNumberInAnySetting_data()
{
    AddTypes();
}

void TestFrameState::AnyNumberInAnySetting()
{
    QFETCH(int, type);
    for (const int value : {INT_MIN, -3, 2, 1000, INT_MAX}) {
        const auto clock = FullClock(type, {60, 40});
        DrawDisplayImage drawer(&clock->node);
        for (const QString &key : clock->node.AttributeKeys()) {
            if (key == QLatin1String("ClockType"))
                continue;
            const QString before = clock->node.GetAttribute(key);
            clock->node.SetAttribute(key, value, false);
            DrawDisplayImage fresh(&clock->node);
            QCOMPARE(drawer.DrawClockDisplayImage().size(), QSize(60, 40));
            QCOMPARE(fresh.DrawClockDisplayImage().size(), QSize(60, 40));
            clock->node.SetAttribute(key, before, false);
        }
    }
}

QTEST_MAIN(TestFrameState)

#include "test_frame_state.moc"
