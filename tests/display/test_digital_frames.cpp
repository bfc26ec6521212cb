// Frames of the digital clock against the plain way of drawing, and against reference pictures.
#include "chosen_time.h"
#include "clock_under_test.h"
#include "compose/draw_clock_classify_image.h"
#include "compose/element_layout.h"
#include "display/draw_display_image.h"
#include "plain_digital.h"
#include "reference_picture.h"

#include <QTest>

using namespace Lw::HNodeClock;

namespace {

// Values of DigitalMode and DigitalDisplayMode.
constexpr int kTwentyFourHours = 0;
constexpr int kTwelveHours = 1;
constexpr int kRows = 0;
constexpr int kLine = 1;

const char *const kFlags[] = {"Digital_TopTexy_d", "Digital_Date_d", "Digital_Week_d",
                              "Digital_Time_d", "Digital_Lunar_d"};

QDateTime Utc(const char *text)
{
    QDateTime instant = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
    instant.setTimeSpec(Qt::UTC);
    return instant;
}

// Images without any text in their alpha: a soft blot, as another tool might have made it.
void WriteSoftImage(const QString &path, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgba(x * 7 % 256, y * 13 % 256, 200, (x * 31 + y * 17) % 256));
    }
    QVERIFY(image.save(path));
}

} // namespace

class TestDigitalFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { clock_set_time_source(nullptr); }

    void EveryLayoutIsPlain();
    void EveryFormatIsPlain();
    void SecondsAreDrawnAsThePlainWay_data();
    void SecondsAreDrawnAsThePlainWay();
    void SettingsChangedWhilePlaying();
    void SoftImagesAreBlendedOnce();
    void HeldFramesStayAsTheyAre();
    void TwoFramesTakeTurns();
    void UnchangedFrameIsNotDrawnAgain();
    void NothingShown();
    void OddSizes_data();
    void OddSizes();
    void MissingImages();
    void NodeDeleted();
    void HelpersFollowTheFlags();
    void Pictures_data();
    void Pictures();

private:
    // Gregorian fields, and the lunar date of 5 March 2024 and the days after it.
    static PlainDigitalClock::Shown Fields(const QDateTime &instant)
    {
        PlainDigitalClock::Shown shown = PlainDigitalClock::Gregorian(instant);
        shown.lunarMonth = 1;
        shown.lunarDay = static_cast<int>(QDate(2024, 2, 10).daysTo(instant.date())) + 1;
        return shown;
    }
};

#define COMPARE_FRAMES(actual, expected, what) QVERIFY2((actual) == (expected), qPrintable(what))

void TestDigitalFrames::EveryLayoutIsPlain()
{
    ClockUnderTest clock(1, {200, 130});
    clock.MakeGlyphs();
    PlainDigitalClock plain(clock.node);
    const QDateTime instant = Utc("2024-03-05T13:07:42");
    ChosenTime::Set(instant);
    DrawDisplayImage drawer(&clock.node);
    for (int set = 0; set < 32; ++set) {
        for (int i = 0; i < 5; ++i)
            clock.Set(kFlags[i], set >> i & 1);
        for (const int mode : {0, 1}) {
            for (const int swap : {0, 1, 2}) {
                for (const int space : {-3, 0, 4, 5}) {
                    clock.Set("DigitalDisplayMode", mode);
                    clock.Set("DigitalSwapArea", swap);
                    clock.Set("DigitalSpace", space);
                    COMPARE_FRAMES(drawer.DrawClockDisplayImage(), plain.Frame(Fields(instant)),
                                   QStringLiteral("set %1 mode %2 swap %3 space %4")
                                       .arg(set)
                                       .arg(mode)
                                       .arg(swap)
                                       .arg(space));
                }
            }
        }
    }
}

void TestDigitalFrames::EveryFormatIsPlain()
{
    ClockUnderTest clock(1, {300, 120});
    clock.Set("Digital_Lunar_d", 1);
    clock.MakeGlyphs();
    PlainDigitalClock plain(clock.node);
    const QDateTime instant = Utc("2024-03-05T13:07:42");
    ChosenTime::Set(instant);
    // Up to a code that has no format.
    const int dates = static_cast<int>(std::size(CodeNames::kDates));
    const int times = static_cast<int>(std::size(CodeNames::kTimes));
    for (int date = 0; date <= dates; ++date) {
        if (date == DatePersian)
            continue;
        for (int time = -1; time <= times; ++time) {
            for (int twelve = 0; twelve <= 1; ++twelve) {
                clock.Set("DigitalDateType", date);
                clock.Set("DigitalTimeType", time);
                clock.Set("DigitalWeekType", qAbs(time % 4));
                clock.Set("DigitalMode", twelve);
                DrawDisplayImage drawer(&clock.node);
                COMPARE_FRAMES(
                    drawer.DrawClockDisplayImage(), plain.Frame(Fields(instant)),
                    QStringLiteral("date %1 time %2 twelve %3").arg(date).arg(time).arg(twelve));
            }
        }
    }
}

void TestDigitalFrames::SecondsAreDrawnAsThePlainWay_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("twelve");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("space");
    const auto row = [](const char *name, const char *start, int seconds, int twelve, int mode,
                        int space) {
        QTest::newRow(name) << QString(start) << seconds << twelve << mode << space;
    };
    row("two minutes in rows", "2024-03-05T08:58:55", 130, kTwentyFourHours, kRows, 0);
    row("noon in rows, twelve hours", "2024-03-05T11:59:50", 30, kTwelveHours, kRows, 2);
    row("midnight on a line", "2024-03-05T23:59:50", 30, kTwentyFourHours, kLine, 3);
    row("midnight, rows over each other", "2024-03-08T23:59:40", 90, kTwelveHours, kRows, -9);
    row("line over itself", "2024-03-05T12:59:50", 20, kTwelveHours, kLine, -30);
    // Of five the third is in the middle, however far away the others are.
    row("line far beyond the area", "2024-03-05T12:59:50", 2, kTwentyFourHours, kLine, 20000000);
    row("line far over itself", "2024-03-05T12:59:50", 2, kTwentyFourHours, kLine, -20000000);
}

void TestDigitalFrames::SecondsAreDrawnAsThePlainWay()
{
    QFETCH(QString, start);
    QFETCH(int, seconds);
    QFETCH(int, twelve);
    QFETCH(int, mode);
    QFETCH(int, space);
    ClockUnderTest clock(1, {220, 110});
    clock.Set("Digital_Lunar_d", 1);
    clock.Set("DigitalMode", twelve);
    clock.Set("DigitalDisplayMode", mode);
    clock.Set("DigitalSpace", space);
    clock.MakeGlyphs();
    PlainDigitalClock plain(clock.node);
    QDateTime instant = Utc(qPrintable(start));
    ChosenTime::Set(instant);
    DrawDisplayImage drawer(&clock.node);
    QImage held;
    for (int i = 0; i < seconds; ++i, instant = instant.addSecs(1)) {
        ChosenTime::Set(instant);
        held = drawer.DrawClockDisplayImage();
        COMPARE_FRAMES(held, plain.Frame(Fields(instant)), instant.toString(Qt::ISODate));
    }
}

void TestDigitalFrames::SettingsChangedWhilePlaying()
{
    ClockUnderTest clock(1, {220, 110});
    clock.MakeGlyphs();
    PlainDigitalClock plain(clock.node);
    QDateTime instant = Utc("2024-03-05T13:07:42");
    ChosenTime::Set(instant);
    DrawDisplayImage drawer(&clock.node);
    const auto compare = [&](const char *what) {
        instant = instant.addSecs(1);
        ChosenTime::Set(instant);
        COMPARE_FRAMES(drawer.DrawClockDisplayImage(), plain.Frame(Fields(instant)),
                       QString::fromLatin1(what));
    };
    compare("as it begins");
    clock.node.SetSize({180, 100});
    compare("smaller");
    clock.Set("DigitalTimeType", 4);
    compare("another time format");
    clock.Set("Digital_Date_d", 0);
    compare("without a date");
    clock.Set("Digital_Date_d", 2);
    compare("with room for a date that is not drawn");
    clock.Set("DigitalDisplayMode", 1);
    compare("on a line");
    clock.node.SetSize({1, 1});
    compare("a single pixel");
    clock.node.SetSize({220, 110});
    clock.Set("DigitalDisplayMode", 0);
    compare("as it began");
    // Other glyph images need a new set-up.
    clock.Set("DigitalTimeColor", 0x00ff00);
    clock.MakeGlyphs();
    drawer.ReLoadSourceFile(&clock.node);
    compare("in another colour");
}

void TestDigitalFrames::SoftImagesAreBlendedOnce()
{
    ClockUnderTest clock(1, {220, 110});
    clock.Set("DigitalSpace", -7);
    clock.MakeGlyphs();
    for (const char *const key : {"_timeNumber", "_toptext", "_dateNumber"}) {
        const QString path = clock.node.GetFirstFile(key);
        WriteSoftImage(path, QImage(path).size());
    }
    PlainDigitalClock plain(clock.node);
    QDateTime instant = Utc("2024-03-05T13:07:55");
    ChosenTime::Set(instant);
    DrawDisplayImage drawer(&clock.node);
    for (int i = 0; i < 12; ++i, instant = instant.addSecs(1)) {
        ChosenTime::Set(instant);
        COMPARE_FRAMES(drawer.DrawClockDisplayImage(), plain.Frame(Fields(instant)),
                       instant.toString(Qt::ISODate));
    }
}

void TestDigitalFrames::HeldFramesStayAsTheyAre()
{
    ClockUnderTest clock(1, {220, 110});
    clock.MakeGlyphs();
    ChosenTime::Set("2024-03-05T13:07:40");
    DrawDisplayImage drawer(&clock.node);
    QList<QImage> held;
    QList<QImage> copies;
    for (int i = 0; i < 8; ++i) {
        held.append(drawer.DrawClockDisplayImage());
        copies.append(held.last().copy());
        ChosenTime::Advance(1000);
    }
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(held.at(i), copies.at(i));
        if (i > 0)
            QVERIFY(held.at(i) != held.at(i - 1));
    }
}

void TestDigitalFrames::TwoFramesTakeTurns()
{
    ClockUnderTest clock(1, {220, 110});
    clock.MakeGlyphs();
    ChosenTime::Set("2024-03-05T13:07:40");
    DrawDisplayImage drawer(&clock.node);
    // The consumer holds the last frame only, as players do.
    QImage held;
    QList<const uchar *> pixels;
    for (int i = 0; i < 6; ++i) {
        held = drawer.DrawClockDisplayImage();
        pixels.append(held.constBits());
        ChosenTime::Advance(1000);
    }
    QVERIFY(pixels.at(0) != pixels.at(1));
    for (int i = 2; i < 6; ++i)
        QCOMPARE(pixels.at(i), pixels.at(i - 2));
}

void TestDigitalFrames::UnchangedFrameIsNotDrawnAgain()
{
    ClockUnderTest clock(1, {220, 110});
    clock.Set("DigitalTimeType", 1);
    clock.MakeGlyphs();
    ChosenTime::Set("2024-03-05T13:07:40");
    DrawDisplayImage drawer(&clock.node);
    const qint64 first = drawer.DrawClockDisplayImage().cacheKey();
    ChosenTime::Advance(1000);
    QCOMPARE(drawer.DrawClockDisplayImage().cacheKey(), first);
    ChosenTime::Set("2024-03-05T13:08:00");
    QVERIFY(drawer.DrawClockDisplayImage().cacheKey() != first);
}

void TestDigitalFrames::NothingShown()
{
    ClockUnderTest clock(1, {40, 30});
    for (const char *const flag : kFlags)
        clock.Set(flag, 0);
    clock.MakeGlyphs();
    QImage key(40, 30, QImage::Format_ARGB32);
    key.fill(qRgb(1, 2, 1));
    DrawDisplayImage drawer(&clock.node);
    QCOMPARE(drawer.DrawClockDisplayImage(), key);
    clock.Set("DigitalDisplayMode", 1);
    QCOMPARE(drawer.DrawClockDisplayImage(), key);
}

void TestDigitalFrames::OddSizes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("drawn");
    QTest::newRow("before layout") << QSize(-1, -1) << false;
    QTest::newRow("nothing") << QSize(0, 0) << false;
    QTest::newRow("no height") << QSize(100, 0) << false;
    QTest::newRow("negative width") << QSize(-100, 50) << false;
    QTest::newRow("one pixel") << QSize(1, 1) << true;
    QTest::newRow("a long line") << QSize(32767, 2) << true;
    QTest::newRow("one too long") << QSize(32768, 2) << false;
    QTest::newRow("one too high") << QSize(2, 32768) << false;
    QTest::newRow("over 256 MiB") << QSize(8193, 8192) << false;
    QTest::newRow("enormous") << QSize(INT_MAX, INT_MAX) << false;
}

void TestDigitalFrames::OddSizes()
{
    QFETCH(QSize, size);
    QFETCH(bool, drawn);
    ClockUnderTest clock(1, size);
    clock.MakeGlyphs();
    for (const int mode : {0, 1}) {
        clock.Set("DigitalDisplayMode", mode);
        DrawDisplayImage drawer(&clock.node);
        QCOMPARE(drawer.DrawClockDisplayImage().size(), drawn ? size : QSize(0, 0));
        QCOMPARE(drawer.DrawClockDisplayImage().isNull(), !drawn);
    }
}

void TestDigitalFrames::MissingImages()
{
    ClockUnderTest clock(1, {100, 60});
    clock.Set("Digital_Lunar_d", 1);
    clock.Set("DigitalMode", 1);
    DrawDisplayImage drawer(&clock.node);
    QImage key(100, 60, QImage::Format_ARGB32);
    key.fill(qRgb(1, 2, 1));
    QCOMPARE(drawer.DrawClockDisplayImage(), key);
    clock.Set("DigitalWeekType", 9);
    drawer.ReLoadSourceFile(&clock.node);
    QCOMPARE(drawer.DrawClockDisplayImage(), key);
}

void TestDigitalFrames::NodeDeleted()
{
    QScopedPointer<ClockUnderTest> clock(new ClockUnderTest(1, {100, 60}));
    clock->MakeGlyphs();
    ChosenTime::Set("2024-03-05T13:07:40");
    DrawDisplayImage drawer(&clock->node);
    const QImage last = drawer.DrawClockDisplayImage();
    clock.reset();
    ChosenTime::Advance(1000);
    QCOMPARE(drawer.DrawClockDisplayImage().cacheKey(), last.cacheKey());
    drawer.CalculateTimeZone();
    drawer.GetDigitalDisplayArea();
    drawer.Computations1Count();
    drawer.Computations5Count(3);
    drawer.DrawDigitalClock();
    QCOMPARE(drawer.DrawClockDisplayImage().cacheKey(), last.cacheKey());
    DrawDisplayImage without(nullptr);
    QVERIFY(without.DrawClockDisplayImage().isNull());
}

// The layout helpers may be called by themselves; DrawDigitalClock draws at the last positions.
void TestDigitalFrames::HelpersFollowTheFlags()
{
    ClockUnderTest clock(1, {200, 130});
    clock.Set("DigitalSpace", 5);
    clock.MakeGlyphs();
    PlainDigitalClock plain(clock.node);
    const QDateTime instant = Utc("2024-03-05T13:07:42");
    ChosenTime::Set(instant);
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    drawer.Computations4Count(11);
    drawer.DrawDigitalClock();
    clock.Set("DigitalSpace", 11);
    const QImage expected = plain.Frame(Fields(instant));
    clock.Set("DigitalSpace", 5);
    clock.Set("ClockType", 3); // returns the frame as it is
    QCOMPARE(drawer.DrawClockDisplayImage(), expected);
}

void TestDigitalFrames::Pictures_data()
{
    QTest::addColumn<QStringList>("settings");
    QTest::addColumn<QSize>("size");
    QTest::newRow("rows") << QStringList {} << QSize(160, 96);
    QTest::newRow("rows_swapped_with_gap")
        << QStringList {"DigitalSwapArea=1", "DigitalSpace=3", "DigitalWeekType=2"}
        << QSize(160, 112);
    QTest::newRow("one_line") << QStringList {
        "DigitalDisplayMode=1", "DigitalSpace=8", "Digital_TopTexy_d=0", "DigitalWeekType=2",
        "DigitalDateType=8"} << QSize(256, 32);
    QTest::newRow("twelve_hours") << QStringList {"DigitalMode=1",       "DigitalTimeType=4",
                                                  "Digital_Date_d=0",    "Digital_Week_d=0",
                                                  "Digital_TopTexy_d=0", "DigitalTimeFSize=28"}
                                  << QSize(192, 64);
    QTest::newRow("named_month") << QStringList {"DigitalDateType=3", "DigitalTimeType=1",
                                                 "DigitalWeekType=1"}
                                 << QSize(160, 96);
}

void TestDigitalFrames::Pictures()
{
    QFETCH(QStringList, settings);
    QFETCH(QSize, size);
    ClockUnderTest clock(1, size);
    for (const QString &setting : settings) {
        clock.node.SetAttribute(setting.section('=', 0, 0), setting.section('=', 1).toInt(), false);
    }
    clock.MakeGlyphs();
    ChosenTime::Set("2024-03-05T13:07:42");
    DrawDisplayImage drawer(&clock.node);
    const QString name = QStringLiteral("digital_") + QTest::currentDataTag();
    COMPARE_WITH_REFERENCE(drawer.DrawClockDisplayImage(), name);
}

QTEST_MAIN(TestDigitalFrames)

#include "test_digital_frames.moc"
