#include "screen_composer.h"

#include <QtTest>

using namespace ClockStage;

namespace {

constexpr QRgb kBlack = qRgb(0, 0, 0);
constexpr QRgb kRed = qRgb(255, 0, 0);
constexpr QRgb kBlue = qRgb(0, 0, 255);

QImage Plain(int width, int height, QRgb colour)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

QImage Composed(QSize size, const QVector<Layer> &layers)
{
    QImage screen = BlackScreen(size);
    ComposeScreen(screen, layers, screen.rect());
    return screen;
}

/// How many pixels of the picture have the colour.
int Count(const QImage &image, QRgb colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == colour;
    }
    return count;
}

} // namespace

class TestScreenComposer : public QObject
{
    Q_OBJECT

private slots:
    void NothingIsBlack();
    void KeyColourIsSeeThrough();
    void NearlyTheKeyColourIsNot();
    void AlphaOfThePictureIsIgnored();
    void LaterLayersLieOnTop();
    void ClippedToTheScreen_data();
    void ClippedToTheScreen();
    void ClippedToItsArea();
    void NullPictureShowsNothing();
    void OtherFormats();
    void OnlyTheRegionIsTouched();
    void OldPictureIsErased();
    void KeyColourErasesToo();
    void AnywhereInAPicture();
    void Magnified_data();
    void Magnified();
    void TooLargeToMagnify();
};

void TestScreenComposer::NothingIsBlack()
{
    QCOMPARE(Count(Composed({5, 4}, {}), kBlack), 20);
}

void TestScreenComposer::KeyColourIsSeeThrough()
{
    QImage above = Plain(4, 4, kKeyColour);
    above.setPixel(2, 1, kRed);
    const QImage screen =
        Composed({4, 4}, {{{0, 0, 2, 4}, Plain(2, 4, kBlue)}, {{0, 0, 4, 4}, above}});
    QCOMPARE(Count(screen, kBlue), 8);
    QCOMPARE(Count(screen, kBlack), 7);
    QCOMPARE(screen.pixel(2, 1), kRed);
}

void TestScreenComposer::NearlyTheKeyColourIsNot()
{
    for (const QRgb near : {qRgb(1, 2, 2), qRgb(1, 1, 1), qRgb(0, 2, 1), qRgb(0, 0, 0)})
        QCOMPARE(
            Count(Composed({2, 2},
                           {{{0, 0, 2, 2}, Plain(2, 2, kBlue)}, {{0, 0, 2, 2}, Plain(2, 2, near)}}),
                  near),
            4);
}

void TestScreenComposer::AlphaOfThePictureIsIgnored()
{
    const QImage screen = Composed({2, 1},
                                   {{{0, 0, 1, 1}, Plain(1, 1, qRgba(255, 0, 0, 10))},
                                    {{1, 0, 1, 1}, Plain(1, 1, qRgba(1, 2, 1, 0))}});
    QCOMPARE(screen.pixel(0, 0), kRed);
    QCOMPARE(screen.pixel(1, 0), kBlack);
}

void TestScreenComposer::LaterLayersLieOnTop()
{
    const QImage screen =
        Composed({3, 1}, {{{0, 0, 2, 1}, Plain(2, 1, kRed)}, {{1, 0, 2, 1}, Plain(2, 1, kBlue)}});
    QCOMPARE(screen.pixel(0, 0), kRed);
    QCOMPARE(screen.pixel(1, 0), kBlue);
    QCOMPARE(screen.pixel(2, 0), kBlue);
}

void TestScreenComposer::ClippedToTheScreen_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<int>("shown"); // pixels of a 4 by 4 picture on a 6 by 6 screen
    QTest::newRow("inside") << QPoint(1, 1) << 16;
    QTest::newRow("left") << QPoint(-3, 0) << 4;
    QTest::newRow("top") << QPoint(0, -1) << 12;
    QTest::newRow("right") << QPoint(5, 2) << 4;
    QTest::newRow("bottom right corner") << QPoint(5, 5) << 1;
    QTest::newRow("outside") << QPoint(6, 0) << 0;
    QTest::newRow("far outside") << QPoint(-32767, 32767) << 0;
}

void TestScreenComposer::ClippedToTheScreen()
{
    QFETCH(QPoint, position);
    QFETCH(int, shown);
    const QImage screen = Composed({6, 6}, {{QRect(position, QSize(4, 4)), Plain(4, 4, kRed)}});
    QCOMPARE(Count(screen, kRed), shown);
    QCOMPARE(Count(screen, kBlack), 36 - shown);
}

void TestScreenComposer::ClippedToItsArea()
{
    const QImage larger = Composed({6, 6}, {{{1, 1, 2, 3}, Plain(5, 5, kRed)}});
    QCOMPARE(Count(larger, kRed), 6);
    QCOMPARE(larger.pixel(2, 3), kRed);
    const QImage smaller = Composed({6, 6}, {{{1, 1, 5, 5}, Plain(2, 1, kRed)}});
    QCOMPARE(Count(smaller, kRed), 2);
}

void TestScreenComposer::NullPictureShowsNothing()
{
    QCOMPARE(Count(Composed({2, 2}, {{{0, 0, 2, 2}, QImage()}}), kBlack), 4);
}

void TestScreenComposer::OtherFormats()
{
    for (const QImage::Format format :
         {QImage::Format_RGB888, QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
        QImage image = Plain(2, 1, kBlue).convertToFormat(format);
        image.setPixelColor(0, 0, QColor(1, 2, 1));
        const QImage screen = Composed({2, 1}, {{{0, 0, 2, 1}, image}});
        QCOMPARE(screen.pixel(0, 0), kBlack);
        QCOMPARE(screen.pixel(1, 0), kBlue);
    }
}

void TestScreenComposer::OnlyTheRegionIsTouched()
{
    QImage screen = Plain(4, 4, kBlue).convertToFormat(QImage::Format_RGB32);
    ComposeScreen(screen, {{{0, 0, 2, 4}, Plain(2, 4, kRed)}}, QRect(1, 1, 2, 2));
    QCOMPARE(Count(screen, kRed), 2);
    QCOMPARE(Count(screen, kBlack), 2);
    QCOMPARE(Count(screen, kBlue), 12);
    ComposeScreen(screen, {}, QRect(-5, -5, 6, 6));
    QCOMPARE(Count(screen, kBlack), 3);
}

void TestScreenComposer::OldPictureIsErased()
{
    QImage screen = BlackScreen({3, 1});
    QImage picture = Plain(3, 1, kKeyColour);
    picture.setPixel(0, 0, kRed);
    ComposeScreen(screen, {{{0, 0, 3, 1}, picture}}, screen.rect());
    ComposeScreen(screen, {{{0, 0, 3, 1}, Plain(3, 1, kKeyColour)}}, screen.rect());
    QCOMPARE(Count(screen, kBlack), 3);
}

// A single picture over all of the region: nothing of the one before shines through.
void TestScreenComposer::KeyColourErasesToo()
{
    QImage screen = Plain(3, 2, kBlue).convertToFormat(QImage::Format_RGB32);
    QImage picture = Plain(3, 2, kKeyColour);
    picture.setPixel(1, 1, kRed);
    ComposeScreen(screen, {{{0, 0, 3, 2}, picture}}, screen.rect());
    QCOMPARE(Count(screen, kBlack), 5);
    QCOMPARE(screen.pixel(1, 1), kRed);
}

// The screen may be moved, and partly outside.
void TestScreenComposer::AnywhereInAPicture()
{
    QImage picture = Plain(5, 4, kBlue).convertToFormat(QImage::Format_RGB32);
    const QVector<Layer> layers {{{1, 0, 2, 2}, Plain(2, 2, kRed)}};
    ComposeScreen(picture, layers, {0, 0, 3, 2}, {1, 2});
    QCOMPARE(Count(picture, kBlue), 14);
    QCOMPARE(Count(picture, kBlack), 2); // at 1,2 and 1,3
    QCOMPARE(picture.pixel(1, 3), kBlack);
    QCOMPARE(Count(picture.copy(2, 2, 2, 2), kRed), 4);
    ComposeScreen(picture, layers, {0, 0, 3, 2}, {-2, -1});
    QCOMPARE(picture.pixel(0, 0), kRed);
    QCOMPARE(Count(picture, kBlue), 13);
}

void TestScreenComposer::Magnified_data()
{
    QTest::addColumn<int>("times");
    for (int times = 1; times <= 16; ++times)
        QTest::addRow("%d times", times) << times;
}

void TestScreenComposer::Magnified()
{
    QFETCH(int, times);
    QImage screen = BlackScreen({7, 3});
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 7; ++x)
            screen.setPixel(x, y, qRgb(30 * x + 1, 80 * y + 1, 5));
    }
    const QImage magnified = ClockStage::Magnified(screen, times);
    QCOMPARE(magnified.size(), QSize(7 * times, 3 * times));
    for (int y = 0; y < magnified.height(); ++y) {
        for (int x = 0; x < magnified.width(); ++x)
            QCOMPARE(magnified.pixel(x, y), screen.pixel(x / times, y / times));
    }
}

// 64 Mi pixels are 8192 by 8192: a sixteenth of it each way may be magnified 16 times.
void TestScreenComposer::TooLargeToMagnify()
{
    QVERIFY(ClockStage::Magnified(BlackScreen({513, 512}), 16).isNull());
    QVERIFY(ClockStage::Magnified(BlackScreen({32767, 1024}), 2).isNull());
    QCOMPARE(ClockStage::Magnified(BlackScreen({32767, 1024}), 1).size(), QSize(32767, 1024));
}

QTEST_GUILESS_MAIN(TestScreenComposer)
#include "test_screen_composer.moc"
