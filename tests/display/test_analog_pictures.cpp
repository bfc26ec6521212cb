// The analog clock as pictures: every mark, numeral and hand at the sizes where they change, and
// whole clocks. Variants of one size are side by side in one reference picture.
#include "chosen_time.h"
#include "clock_under_test.h"
#include "reference_picture.h"

#include "display/draw_display_image.h"

#include <QPainter>
#include <QtTest>

using namespace Lw::HNodeClock;

class TestAnalogPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ChosenTime::Set("2024-03-05T10:08:37"); }
    void cleanup() { Lw::HAppConfig::SetRenderImageFormat(5); }
    void cleanupTestCase() { clock_set_time_source(nullptr); }
    void HourMarks_data();
    void HourMarks();
    void MinuteMarks_data();
    void MinuteMarks();
    void Hands_data();
    void Hands();
    void Clocks_data();
    void Clocks();
};

namespace {

constexpr int kNoHand = 9;

QImage SecondFrame(ClockUnderTest &clock)
{
    clock.MakeGlyphs();
    DrawDisplayImage drawer(&clock.node);
    drawer.DrawClockDisplayImage();
    return drawer.DrawClockDisplayImage();
}

void HideTexts(ClockUnderTest &clock)
{
    for (const char *text : {"Analog_TopTexy_d", "Analog_Date_d", "Analog_Week_d", "Analog_AMPM_d"})
        clock.Set(text, 0);
}

void HideHands(ClockUnderTest &clock)
{
    for (const char *hand : {"HourRectType", "MinuteRectType", "SecondRectType"})
        clock.Set(hand, kNoHand);
}

void HideMarks(ClockUnderTest &clock)
{
    clock.Set("HourScaleType", kNoHand);
    clock.Set("MinuteScaleType", kNoHand);
}

QImage SideBySide(const QList<QImage> &images)
{
    QImage sheet(images.first().width() * images.size(), images.first().height(),
                 QImage::Format_ARGB32);
    sheet.fill(Qt::black);
    QPainter painter(&sheet);
    for (int i = 0; i < images.size(); ++i)
        painter.drawImage(i * images.first().width(), 0, images[i]);
    return sheet;
}

QString RowName()
{
    return QString::fromLatin1(QTest::currentDataTag());
}

} // namespace

void TestAnalogPictures::HourMarks_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {64, 80, 81, 200, 202})
        QTest::addRow("hour_marks_%d", size) << size;
}

void TestAnalogPictures::HourMarks()
{
    QFETCH(int, size);
    QList<QImage> images;
    for (int type = 0; type <= 5; ++type) {
        ClockUnderTest clock(AnalogClock, QSize(size, size));
        HideTexts(clock);
        HideHands(clock);
        clock.Set("HourScaleType", type);
        clock.Set("HourScaleFSize", size < 100 ? 7 : 14);
        images.append(SecondFrame(clock));
    }
    COMPARE_WITH_REFERENCE(SideBySide(images), RowName());
}

void TestAnalogPictures::MinuteMarks_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {82, 128, 202})
        QTest::addRow("minute_marks_%d", size) << size;
}

void TestAnalogPictures::MinuteMarks()
{
    QFETCH(int, size);
    QList<QImage> images;
    for (int type = 0; type <= 3; ++type) {
        ClockUnderTest clock(AnalogClock, QSize(size, size));
        HideTexts(clock);
        HideHands(clock);
        clock.Set("MinuteScaleType", type);
        images.append(SecondFrame(clock));
    }
    COMPARE_WITH_REFERENCE(SideBySide(images), RowName());
}

void TestAnalogPictures::Hands_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("format");
    for (const int size : {33, 64, 128, 220}) {
        QTest::addRow("hands_%d_smooth", size) << size << 5;
        QTest::addRow("hands_%d_hard", size) << size << 4;
    }
}

void TestAnalogPictures::Hands()
{
    QFETCH(int, size);
    QFETCH(int, format);
    QList<QImage> images;
    for (const int type : {0, 1}) {
        for (const char *only : {"HourRectType", "MinuteRectType", "SecondRectType"}) {
            ClockUnderTest clock(AnalogClock, QSize(size, size));
            HideTexts(clock);
            HideMarks(clock);
            HideHands(clock);
            clock.Set(only, type);
            Lw::HAppConfig::SetRenderImageFormat(format);
            images.append(SecondFrame(clock));
        }
    }
    COMPARE_WITH_REFERENCE(SideBySide(images), RowName());
}

void TestAnalogPictures::Clocks_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("hands");
    QTest::newRow("clock_64x64") << QSize(64, 64) << 0 << 0;
    QTest::newRow("clock_160x160") << QSize(160, 160) << 3 << 1;
    QTest::newRow("clock_200x100") << QSize(200, 100) << 1 << 0;
    QTest::newRow("clock_120x240") << QSize(120, 240) << 4 << 1;
    QTest::newRow("clock_320x320") << QSize(320, 320) << 3 << 1;
}

void TestAnalogPictures::Clocks()
{
    QFETCH(QSize, size);
    QFETCH(int, scale);
    QFETCH(int, hands);
    ClockUnderTest clock(AnalogClock, size);
    clock.Set("AnalogWeekType", 2);
    clock.Set("HourScaleType", scale);
    for (const char *hand : {"HourRectType", "MinuteRectType", "SecondRectType"})
        clock.Set(hand, hands);
    for (const char *font : {"AnalogTopTextFSize", "AnalogDateFSize", "AnalogWeekFSize",
                             "AnalogAMPMFSize", "HourScaleFSize"})
        clock.Set(font, size.width() < 100 ? 6 : 9);
    COMPARE_WITH_REFERENCE(SecondFrame(clock), RowName());
}

QTEST_MAIN(TestAnalogPictures)
#include "test_analog_pictures.moc"
