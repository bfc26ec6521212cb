#include "led_screen.h"

#include "screen_composer.h"

#include <QtTest>

using namespace ClockStage;

namespace {

constexpr QRgb kBlack = qRgb(0, 0, 0);
const QRgb kOrange = qRgb(255, 128, 40);

QImage Plain(QSize size, QRgb colour)
{
    QImage screen(size, QImage::Format_RGB32);
    screen.fill(colour);
    return screen;
}

} // namespace

class TestLedScreen : public QObject
{
    Q_OBJECT

private slots:
    void PitchIsBounded();
    void MiddleShinesAndCornersAreBlack_data();
    void MiddleShinesAndCornersAreBlack();
    void DiodesAreRound_data();
    void DiodesAreRound();
    void EdgesAreBetweenDiodeAndMask();
    void DarkPixels_data();
    void DarkPixels();
    void SeeThroughAreasAreDark();
    void PartsEqualTheWhole();
    void Regions();
    void TooLarge();
};

void TestLedScreen::PitchIsBounded()
{
    QCOMPARE(LedScreen(-5).Pitch(), 3);
    QCOMPARE(LedScreen(2).Pitch(), 3);
    QCOMPARE(LedScreen(9).Pitch(), 9);
    QCOMPARE(LedScreen(1000).Pitch(), 64);
}

void TestLedScreen::MiddleShinesAndCornersAreBlack_data()
{
    QTest::addColumn<int>("pitch");
    for (const int pitch : {3, 4, 5, 6, 7, 8, 16, 33, 64})
        QTest::newRow(qPrintable(QString::number(pitch))) << pitch;
}

void TestLedScreen::MiddleShinesAndCornersAreBlack()
{
    QFETCH(int, pitch);
    QImage screen = Plain({3, 2}, kOrange);
    screen.setPixel(2, 1, qRgb(0, 0, 255));
    const QImage wall = LedScreen(pitch).Diodes(screen);
    QCOMPARE(wall.size(), QSize(3 * pitch, 2 * pitch));
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            const QPoint corner(x * pitch, y * pitch);
            const int last = pitch - 1;
            QCOMPARE(wall.pixel(corner + QPoint(pitch / 2, pitch / 2)), screen.pixel(x, y));
            for (const QPoint &place :
                 {QPoint(0, 0), QPoint(last, 0), QPoint(0, last), QPoint(last, last)})
                QCOMPARE(wall.pixel(corner + place), kBlack);
        }
    }
}

void TestLedScreen::DiodesAreRound_data()
{
    QTest::addColumn<int>("pitch");
    for (const int pitch : {5, 8, 16, 33, 64})
        QTest::newRow(qPrintable(QString::number(pitch))) << pitch;
}

// Light falls within the circle of two fifths of the pitch only, and adds up to its area.
void TestLedScreen::DiodesAreRound()
{
    QFETCH(int, pitch);
    const QImage diode = LedScreen(pitch).Diodes(Plain({1, 1}, qRgb(255, 255, 255)));
    const double radius = 0.4 * pitch;
    double light = 0;
    for (int y = 0; y < pitch; ++y) {
        for (int x = 0; x < pitch; ++x) {
            const double distance = std::hypot(x + 0.5 - pitch / 2.0, y + 0.5 - pitch / 2.0);
            if (distance < radius - 0.75)
                QCOMPARE(diode.pixel(x, y), qRgb(255, 255, 255));
            if (distance > radius + 0.75)
                QCOMPARE(diode.pixel(x, y), kBlack);
            light += qRed(diode.pixel(x, y)) / 255.0;
        }
    }
    const double area = M_PI * radius * radius;
    QVERIFY2(std::abs(light - area) < 0.02 * area,
             qPrintable(QStringLiteral("%1 for %2").arg(light).arg(area)));
    QCOMPARE(diode, diode.mirrored(true, false));
    QCOMPARE(diode, diode.mirrored(false, true));
}

void TestLedScreen::EdgesAreBetweenDiodeAndMask()
{
    const QImage diode = LedScreen(8).Diodes(Plain({1, 1}, kOrange));
    int between = 0;
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            if (diode.pixel(x, y) != kOrange && diode.pixel(x, y) != kBlack)
                ++between;
        }
    }
    QVERIFY(between >= 8);
}

void TestLedScreen::DarkPixels_data()
{
    QTest::addColumn<QRgb>("pixel");
    QTest::addColumn<bool>("isDark");
    QTest::newRow("black") << qRgb(0, 0, 0) << true;
    QTest::newRow("as dark as the lens") << qRgb(20, 20, 20) << true;
    QTest::newRow("brighter in one channel") << qRgb(0, 21, 0) << false;
    QTest::newRow("without opacity") << qRgba(90, 90, 90, 0) << false;
}

void TestLedScreen::DarkPixels()
{
    QFETCH(QRgb, pixel);
    QFETCH(bool, isDark);
    const QImage diode = LedScreen(6).Diodes(Plain({1, 1}, pixel));
    QCOMPARE(diode.pixel(3, 3), isDark ? kUnlitLed : pixel | 0xff000000U);
    QCOMPARE(diode.pixel(0, 0), kBlack);
}

void TestLedScreen::SeeThroughAreasAreDark()
{
    QImage screen = BlackScreen({2, 1});
    QImage picture = Plain({2, 1}, kKeyColour);
    picture.setPixel(1, 0, kOrange);
    ComposeScreen(screen, {{QRect(0, 0, 2, 1), picture}}, screen.rect());
    const QImage wall = LedScreen(4).Diodes(screen);
    QCOMPARE(wall.pixel(2, 2), kUnlitLed);
    QCOMPARE(wall.pixel(6, 2), kOrange);
}

void TestLedScreen::PartsEqualTheWhole()
{
    QImage screen = Plain({4, 3}, kOrange);
    for (int x = 0; x < 4; ++x)
        screen.setPixel(x, 1, qRgb(60 * x + 30, 0, 200));
    const LedScreen leds(5);
    const QImage whole = leds.Diodes(screen);
    const QRect region(1, 1, 2, 2);
    QCOMPARE(leds.Diodes(screen, region), whole.copy(leds.Magnified(region)));
    QCOMPARE(leds.Diodes(screen, QRect(3, 2, 50, 50)), whole.copy(15, 10, 5, 5));
    QVERIFY(leds.Diodes(screen, QRect(4, 0, 1, 1)).isNull());
}

void TestLedScreen::Regions()
{
    const LedScreen leds(4);
    QCOMPARE(leds.Magnified(QRect(2, 1, 3, 5)), QRect(8, 4, 12, 20));
    QCOMPARE(leds.Reduced(QRect(8, 4, 12, 20)), QRect(2, 1, 3, 5));
    QCOMPARE(leds.Reduced(QRect(7, 3, 2, 2)), QRect(1, 0, 2, 2));
    QCOMPARE(leds.Reduced(QRect(5, 5, 1, 1)), QRect(1, 1, 1, 1));
}

void TestLedScreen::TooLarge()
{
    // 128 * 128 * 64 * 64 pixels are just allowed.
    QVERIFY(LedScreen(64).Diodes(Plain({129, 128}, kOrange)).isNull());
    QCOMPARE(LedScreen(64).Diodes(Plain({129, 128}, kOrange), QRect(0, 0, 1, 1)).size(),
             QSize(64, 64));
}

QTEST_GUILESS_MAIN(TestLedScreen)
#include "test_led_screen.moc"
