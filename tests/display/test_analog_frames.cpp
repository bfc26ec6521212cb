// Frames of the analog clock: equal to the plain way in every pixel, second by second; and what
// they show when.
#include "chosen_time.h"
#include "clock_under_test.h"
#include "messages.h"
#include "odd_areas.h"
#include "plain_clocks.h"

#include "display/analog_geometry.h"
#include "display/draw_display_image.h"

#include <array>

#include <QtTest>

using namespace Lw::HNodeClock;

namespace {

constexpr QRgb kKeyColour = 0xff010201;

// Formats of the host's images: only one of them is drawn with smooth edges.
constexpr int kSmooth = QImage::Format_ARGB32;
constexpr int kHardEdges = QImage::Format_RGB32;
constexpr int kNoFormat = QImage::Format_Invalid;

struct SettingChange
{
    int second;
    const char *key;
    int value;
};

constexpr SettingChange kSettingChanges[] = {
    {10, "AnalogSpace", 7},          {20, "AnalogSwapArea", 1},  {30, "Analog_Date_d", 0},
    {40, "Analog_Date_d", 2},        {50, "Analog_Lunar_d", 1},  {60, "AnalogSpace", -5},
    {70, "HourHandColor", 0x00ffff}, {80, "SecondRectType", 1},  {90, "HourScaleType", 1},
    {130, "ClockType", 2},           {135, "ClockType", 0},      {140, "ClockType", 3},
    {145, "ClockType", 0},           {150, "AnalogSwapArea", 2}, {250, "SecondRectType", 9},
};

struct SizeChange
{
    int second;
    QSize size;
};

constexpr SizeChange kSizeChanges[] = {
    {100, {111, 130}}, {110, {120, 110}}, {160, {}}, {165, {64, 64}}};

void ChangeSettings(ClockUnderTest &clock, int second)
{
    for (const SettingChange &change : kSettingChanges) {
        if (change.second == second)
            clock.Set(change.key, change.value);
    }
    for (const SizeChange &change : kSizeChanges) {
        if (change.second == second)
            clock.node.SetSize(change.size);
    }
}

} // namespace

class TestAnalogFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void EqualsThePlainWay_data();
    void EqualsThePlainWay();
    void ChangingSettings_data();
    void ChangingSettings();
    void HeldFramesStay();
    void TextsOneFrameLate();
    void SingleRowPlacesAllThree();
    void DialIsRedrawnAtTheDevicesMidnight();
    void DialIsRedrawnAtNoonWithoutBadge();
    void DialStyleWaits();
    void HandTypesAtOnce();
    void HandTables_data();
    void HandTables();
    void OddAreas_data() { AddOddAreas(); }
    void OddAreas();
    void OddTypes();
    void MissingAndOddGlyphs_data();
    void MissingAndOddGlyphs();
    void NodeGone();
};

void TestAnalogFrames::cleanup()
{
    clock_set_time_source(nullptr);
    Lw::HAppConfig::SetRenderImageFormat(5);
}

void TestAnalogFrames::EqualsThePlainWay_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("scales"); // of hours; of minutes modulo 3
    QTest::addColumn<int>("hands");
    QTest::addColumn<int>("held"); // frames held by the consumer
    const auto noon = QStringLiteral("2024-03-05T11:58:30");
    const auto midnight = QStringLiteral("2024-02-28T23:58:30");
    const auto hour = QStringLiteral("2024-07-01T15:57:40");
    const auto row = [](const char *name, const QSize &size, int format, const QString &from,
                        int scales, int hands, int held) {
        QTest::newRow(name) << size << format << from << scales << hands << held;
    };
    row("noon", {128, 128}, kSmooth, noon, TwelveNumerals, BarHand, 1);
    row("noon, hard edges", {129, 129}, kHardEdges, noon, HourLines, ArrowHand, 1);
    row("midnight", {64, 64}, kSmooth, midnight, HourDots, ArrowHand, 1);
    row("midnight, hard edges", {81, 81}, kNoFormat, midnight, HourSquares, BarHand, 1);
    row("wide", {256, 96}, kSmooth, hour, FourNumerals, ArrowHand, 1);
    row("high", {96, 203}, kSmooth, hour, HourLines, BarHand, 1);
    row("large", {320, 310}, kSmooth, hour, TwelveNumerals, ArrowHand, 1);
    row("no frame held", {64, 48}, kSmooth, noon, HourDots, BarHand, 0);
    row("two frames held", {64, 48}, kSmooth, noon, HourSquares, ArrowHand, 2);
    row("one pixel", {1, 1}, kSmooth, noon, HourLines, BarHand, 1);
    row("a line", {10000, 3}, kSmooth, noon, TwelveNumerals, ArrowHand, 1);
}

void TestAnalogFrames::EqualsThePlainWay()
{
    QFETCH(QSize, size);
    QFETCH(int, format);
    QFETCH(QString, from);
    QFETCH(int, scales);
    QFETCH(int, hands);
    QFETCH(int, held);
    ChosenTime::Set(from);
    ClockUnderTest clock(AnalogClock, size);
    clock.Set("HourScaleType", scales);
    clock.Set("MinuteScaleType", scales % 3);
    clock.Set("HourRectType", hands);
    clock.Set("MinuteRectType", hands);
    clock.Set("Analog_Lunar_d", 1);
    clock.MakeGlyphs();
    if (scales % 2 == 1)
        clock.SoftenGlyphs();
    Lw::HAppConfig::SetRenderImageFormat(format);
    DrawDisplayImage drawer(&clock.node);
    PlainClock plain(&clock.node);
    const CollectedMessages messages;
    QList<QImage> shown;
    for (int i = 0; i < 240; ++i, ChosenTime::Advance(1000)) {
        QImage frame = drawer.DrawClockDisplayImage();
        QVERIFY2(frame == plain.Frame(), qPrintable(QStringLiteral("second %1").arg(i)));
        shown.append(frame);
        frame = QImage();
        while (shown.size() > held)
            shown.removeFirst();
    }
    QCOMPARE(messages.Lines(), QStringList());
}

void TestAnalogFrames::ChangingSettings_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("smooth") << 5;
    QTest::newRow("hard edges") << 3;
}

// Everything that may change while a clock plays, in the middle of its seconds.
void TestAnalogFrames::ChangingSettings()
{
    QFETCH(int, format);
    ChosenTime::Set("2024-12-31T23:57:00");
    ClockUnderTest clock(AnalogClock, QSize(120, 110));
    clock.MakeGlyphs();
    clock.SoftenGlyphs();
    Lw::HAppConfig::SetRenderImageFormat(format);
    DrawDisplayImage drawer(&clock.node);
    PlainClock plain(&clock.node);
    QImage held;
    for (int i = 0; i < 300; ++i, ChosenTime::Advance(1000)) {
        ChangeSettings(clock, i);
        if (i == 120)
            Lw::HAppConfig::SetRenderImageFormat(format == 5 ? 4 : 5);
        const QImage frame = drawer.DrawClockDisplayImage();
        const QImage expected = plain.Frame();
        if (!clock.node.Size().isEmpty())
            QVERIFY2(frame == expected, qPrintable(QStringLiteral("second %1").arg(i)));
        held = frame;
    }
}

// A frame that was handed out never changes, however long it is kept.
void TestAnalogFrames::HeldFramesStay()
{
    ChosenTime::Set("2024-03-05T10:20:30");
    ClockUnderTest clock(AnalogClock, QSize(64, 64));
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    QList<QImage> frames;
    QList<QImage> copies;
    for (int i = 0; i < 10; ++i, ChosenTime::Advance(1000)) {
        frames.append(drawer.DrawClockDisplayImage());
        copies.append(frames.last().copy());
    }
    QCOMPARE(frames, copies);
}

namespace {

// Whether texts of one colour are seen, second by second; empty where a frame is not as the plain
// way draws it.
QList<bool> SecondsWithColour(ClockUnderTest &clock, QRgb colour, int count)
{
    DrawDisplayImage drawer(&clock.node);
    PlainClock plain(&clock.node);
    QList<bool> seen;
    for (int i = 0; i < count; ++i, ChosenTime::Advance(1000)) {
        const QImage frame = drawer.DrawClockDisplayImage();
        const QImage expected = plain.Frame();
        bool found = false;
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x)
                found = found || frame.pixel(x, y) == colour;
        }
        if (frame != expected)
            return {}; // no list of seconds at all
        seen.append(found);
    }
    return seen;
}

} // namespace

void TestAnalogFrames::TextsOneFrameLate()
{
    ChosenTime::Set("2024-03-05T11:59:55");
    ClockUnderTest clock(AnalogClock, QSize(200, 200));
    clock.Set("AnalogTopTextColor", 0xf00ff0); // a colour that nothing else has
    clock.Set("Analog_AMPM_d", 0);
    clock.MakeGlyphs();
    // 11:59:55 is the first frame, 12:00:00 the sixth.
    QCOMPARE(SecondsWithColour(clock, QColor(0xf0, 0x0f, 0xf0).rgb(), 8),
             QList<bool>({false, true, true, true, true, false, true, true}));
}

// The device's date counts, not the clock's: in China that is at eight in the morning where the
// device runs on UTC. The clock's own midnight redraws the dial by its AM.
// With one row taking part, date, week and lunar date all get their places, so that another one
// drawn before the next layout is where it would be alone.
void TestAnalogFrames::SingleRowPlacesAllThree()
{
    ChosenTime::Set("2024-03-05T13:07:42");
    ClockUnderTest clock(AnalogClock, {128, 128});
    clock.Set("AnalogDateFSize", 20);
    clock.MakeGlyphs();
    const auto showOnly = [&clock](const char *shown, int flag) {
        for (const char *const key : {"Analog_Date_d", "Analog_Week_d", "Analog_TopTexy_d"})
            clock.Set(key, qstrcmp(key, shown) == 0 ? flag : 0);
    };
    showOnly("Analog_Date_d", 1);
    DrawDisplayImage alone(&clock.node);
    alone.DrawClockDisplayImage();
    const QImage expected = alone.DrawClockDisplayImage();

    showOnly("Analog_Week_d", 2); // takes part, and is not drawn
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    showOnly("Analog_Date_d", 1);
    drawer.DrawAnalogText();
    drawer.DrawAnalogClock();
    clock.Set("ClockType", 3); // returns the frame as it is
    QCOMPARE(drawer.DrawClockDisplayImage(), expected);
}

void TestAnalogFrames::DialIsRedrawnAtTheDevicesMidnight()
{
    ChosenTime::Set("2024-03-05T23:59:57");
    ClockUnderTest clock(AnalogClock, QSize(200, 200));
    clock.Set("TimeZone", QStringLiteral("+08:00"));
    clock.Set("AnalogTopTextColor", 0xf00ff0);
    clock.MakeGlyphs();
    QCOMPARE(SecondsWithColour(clock, QColor(0xf0, 0x0f, 0xf0).rgb(), 6),
             QList<bool>({false, true, true, false, true, true}));
    ChosenTime::Set("2024-03-05T15:59:57");
    QCOMPARE(SecondsWithColour(clock, QColor(0xf0, 0x0f, 0xf0).rgb(), 6),
             QList<bool>({false, true, true, false, true, true}));
}

// The text of the half of the day is kept also where the badge is hidden.
void TestAnalogFrames::DialIsRedrawnAtNoonWithoutBadge()
{
    ChosenTime::Set("2024-03-05T11:59:58");
    ClockUnderTest clock(AnalogClock, QSize(100, 100));
    clock.Set("Analog_AMPM_d", 0);
    for (const char *row : {"Analog_TopTexy_d", "Analog_Date_d", "Analog_Week_d"})
        clock.Set(row, 0);
    clock.Set("HourScaleColor", 0x0000ff); // red
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    const QPoint twelve(50, 5); // within the mark at the top
    QCOMPARE(drawer.DrawClockDisplayImage().pixelColor(twelve), QColor(Qt::red));
    clock.Set("HourScaleColor", 0xffffff);
    ChosenTime::Advance(1000);
    QCOMPARE(drawer.DrawClockDisplayImage().pixelColor(twelve), QColor(Qt::red));
    ChosenTime::Advance(1000); // noon: the minute and second hands point up, below the mark
    clock.Set("SecondRectType", 7);
    clock.Set("MinuteRectType", 7);
    QCOMPARE(drawer.DrawClockDisplayImage().pixelColor(twelve), QColor(Qt::white));
}

void TestAnalogFrames::DialStyleWaits()
{
    ChosenTime::Set("2024-03-05T10:10:30");
    ClockUnderTest clock(AnalogClock, QSize(100, 100));
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    const QImage before = drawer.DrawClockDisplayImage();
    clock.Set("HourScaleType", 1);
    clock.Set("MinuteScaleColor", 0xffffff);
    clock.Set("Analog_AMPM_d", 0);
    QCOMPARE(drawer.DrawClockDisplayImage(), before);
    ChosenTime::Advance(24 * 3600 * 1000); // the next day
    QVERIFY(drawer.DrawClockDisplayImage() != before);
}

void TestAnalogFrames::HandTypesAtOnce()
{
    ChosenTime::Set("2024-03-05T10:10:30");
    ClockUnderTest clock(AnalogClock, QSize(100, 100));
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    const QImage before = drawer.DrawClockDisplayImage();
    clock.Set("HourRectType", 1);
    QVERIFY(drawer.DrawClockDisplayImage() != before);
}

void TestAnalogFrames::HandTables_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("width");
    QTest::addColumn<QVector<int>>("tips"); // of the hour, minute and second hand
    const auto row = [](const char *name, const QSize &size, int width, const QVector<int> &tips) {
        QTest::newRow(name) << size << width << tips;
    };
    row("63, the smaller side", {63, 200}, 2, {-13, -18, -24});
    row("64, the smaller side", {90, 64}, 2, {-16, -22, -28});
    row("300", {300, 300}, 10, {-75, -105, -135});
}

void TestAnalogFrames::HandTables()
{
    QFETCH(QSize, size);
    QFETCH(int, width);
    QFETCH(QVector<int>, tips);
    ChosenTime::Set("2024-03-05T10:10:30");
    ClockUnderTest clock(AnalogClock, size);
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    const QPoint *const tables[] = {hourHand, minuteHand, secondHand};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(tables[i][0], QPoint(width, width));
        QCOMPARE(tables[i][1], QPoint(-width, width + 1));
        QCOMPARE(tables[i][2], QPoint(0, tips[i]));
    }
}

void TestAnalogFrames::OddAreas()
{
    QFETCH(QSize, size);
    QFETCH(bool, drawn);
    ChosenTime::Set("2024-03-05T10:10:30");
    ClockUnderTest clock(AnalogClock, size);
    clock.Set("HourScaleType", 3);
    clock.Set("SecondRectType", 1);
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    const CollectedMessages messages;
    CheckThreeFrames(drawer, size, drawn);
    QCOMPARE(messages.Lines(), QStringList());
}

void TestAnalogFrames::OddTypes()
{
    ChosenTime::Set("2024-03-05T10:10:30");
    ClockUnderTest clock(AnalogClock, QSize(90, 90));
    for (const char *type :
         {"HourScaleType", "MinuteScaleType", "HourRectType", "MinuteRectType", "SecondRectType"})
        clock.Set(type, QStringLiteral("99"));
    for (const char *row : {"Analog_TopTexy_d", "Analog_Date_d", "Analog_Week_d", "Analog_AMPM_d"})
        clock.Set(row, 2); // counted, never shown
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    const QImage frame = drawer.DrawClockDisplayImage();
    // Nothing but the disc in the middle, of radius trunc(2 * 45 / 27) = 3.
    for (int y = 0; y < 90; ++y) {
        for (int x = 0; x < 90; ++x) {
            if (!QRect(41, 41, 8, 8).contains(x, y))
                QCOMPARE(frame.pixel(x, y), kKeyColour);
        }
    }
    QCOMPARE(frame.pixelColor(45, 45), QColor(Qt::blue));
}

void TestAnalogFrames::MissingAndOddGlyphs_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("no picture") << QByteArray("this is no picture");
    QTest::newRow("truncated") << QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000"
                                                      "40000000100806000000");
    for (const QSize &size : {QSize(1, 1), QSize(9, 30), QSize(3000, 2)}) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QByteArray content;
        QBuffer buffer(&content);
        image.save(&buffer, "PNG");
        QTest::addRow("%dx%d", size.width(), size.height()) << content;
    }
}

void TestAnalogFrames::MissingAndOddGlyphs()
{
    QFETCH(QByteArray, content);
    ChosenTime::Set("2024-03-05T10:10:30");
    ClockUnderTest clock(AnalogClock, QSize(90, 90));
    clock.Set("HourScaleType", 3);
    clock.Set("Analog_Lunar_d", 1);
    clock.MakeGlyphs();
    for (const Lw::FileRecord &record : clock.node.FileRecords()) {
        QFile file(record.path);
        if (content.isEmpty()) {
            QVERIFY(file.remove());
        } else {
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(content);
        }
    }
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    const CollectedMessages messages;
    QImage frame;
    for (int i = 0; i < 5; ++i, ChosenTime::Advance(1000))
        frame = drawer.DrawClockDisplayImage();
    QCOMPARE(frame.size(), QSize(90, 90));
    QCOMPARE(messages.Lines(), QStringList());
}

void TestAnalogFrames::NodeGone()
{
    ChosenTime::Set("2024-03-05T10:10:30");
    QScopedPointer<ClockUnderTest> clock(new ClockUnderTest(AnalogClock, QSize(90, 90)));
    clock->MakeGlyphs();
    DrawDisplayImage drawer(&clock->node);
    const QImage frame = drawer.DrawClockDisplayImage();
    const std::array<QPoint, 3> tips = {hourHand[2], minuteHand[2], secondHand[2]};
    clock.reset();
    drawer.SetHandSize(600);
    QCOMPARE((std::array<QPoint, 3> {hourHand[2], minuteHand[2], secondHand[2]}), tips);
    drawer.GetAngDisplayArea();
    drawer.DrawAnalogClock();
    drawer.DrawAnalogClockDial();
    drawer.DrawAnalogClock_AMPM();
    drawer.DrawAnalogClockPoint();
    drawer.DrawAnalogText();
    QCOMPARE(drawer.DrawClockDisplayImage(), frame);
}

QTEST_MAIN(TestAnalogFrames)
#include "test_analog_frames.moc"
