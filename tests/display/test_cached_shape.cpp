// Cached shapes give the bytes that a painter gives, over every byte below.
#include "display/analog_painting.h"
#include "display/frames/cached_shape.h"
#include "display/frames/hand_cache.h"

#include <QPainter>
#include <QtTest>

using namespace Lw::HNodeClock;

namespace {

constexpr QSize kSize(64, 48);
constexpr QPoint kCentre(32, 24);

// What Qt's raster engine makes of bytes / 255, by hand: x * a / 255 rounded, for x * a = t.
int Rounded255(int t)
{
    return (t + (t >> 8) + 128) >> 8;
}

QImage Grey(int byte)
{
    QImage image(kSize, QImage::Format_ARGB32);
    image.fill(qRgb(byte, byte, byte));
    return image;
}

QImage Colourful()
{
    QImage image(kSize, QImage::Format_ARGB32);
    for (int y = 0; y < kSize.height(); ++y) {
        for (int x = 0; x < kSize.width(); ++x)
            image.setPixel(x, y, qRgb(x * 37 & 255, y * 91 & 255, (x + y) * 53 & 255));
    }
    return image;
}

FlatShape TurnedHand(double degrees, const QColor &colour)
{
    FlatShape hand;
    hand.outline = ShapeOf(Hand::Minute, BarHand, 24).outline;
    hand.degrees = degrees;
    hand.colour = colour;
    return hand;
}

CachedShape Cached(ColourCanvas &canvas, const FlatShape &shape, bool smooth)
{
    const QPolygonF outline = OutlineOn(kCentre, shape);
    return canvas.Cache(outline, shape.colour, smooth, kSize,
                        [&](QPainter &painter, const QPoint &place) {
                            PaintFlatFrom(painter, place, kCentre, shape, outline);
                        });
}

QImage Painted(const QImage &ground, const FlatShape &shape, bool smooth)
{
    QImage image = ground;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, smooth);
    painter.translate(kCentre);
    PaintFlat(painter, shape);
    return image;
}

QImage Blended(QImage ground, const CachedShape &shape)
{
    shape.Blend(ground.bits(), ground.bytesPerLine());
    return ground;
}

// Of many colours and opacities, with soft edges once it is turned.
QPixmap Picture()
{
    QImage picture(20, 30, QImage::Format_ARGB32);
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 20; ++x)
            picture.setPixelColor(x, y, QColor(x * 13, y * 8, 255 - x * 12, 255 - (x * y) % 200));
    }
    return QPixmap::fromImage(picture);
}

void PaintPicture(QPainter &painter, const QPixmap &picture, double degrees)
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(kCentre);
    painter.rotate(degrees);
    painter.drawPixmap(QRectF(-6, -20, 12.5, 25), picture, picture.rect());
}

} // namespace

class TestCachedShape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ColourOverEveryByte();
    void HandsAndDiscs_data();
    void HandsAndDiscs();
    void PictureOverEveryByte_data();
    void PictureOverEveryByte();
    void AsShownNeedsNoBlending();
    void OutsideTheFrame();
    void PositionsAreKeptUpToALimit();
};

// Every coverage over every byte, against the formula and against a painter.
void TestCachedShape::ColourOverEveryByte()
{
    QImage coverage(256, 1, QImage::Format_ARGB32_Premultiplied);
    for (int alpha = 0; alpha < 256; ++alpha)
        coverage.setPixel(alpha, 0, qPremultiply(qRgba(0, 0, 0, alpha)));
    for (const int colour : {0, 1, 77, 128, 254, 255}) {
        const CachedShape shape =
            CachedShape::OfColour(coverage, coverage.rect(), QColor(colour, 255 - colour, colour));
        for (int below = 0; below < 256; ++below) {
            QImage blended(256, 1, QImage::Format_ARGB32);
            blended.fill(qRgb(below, below, below));
            shape.Blend(blended.bits(), blended.bytesPerLine());
            for (int alpha = 0; alpha < 256; ++alpha) {
                const int red = Rounded255(colour * alpha) + Rounded255(below * (255 - alpha));
                const int green =
                    Rounded255((255 - colour) * alpha) + Rounded255(below * (255 - alpha));
                QCOMPARE(blended.pixel(alpha, 0), qRgb(red, green, red));
            }
        }
    }
}

void TestCachedShape::HandsAndDiscs_data()
{
    QTest::addColumn<bool>("smooth");
    QTest::newRow("smooth") << true;
    QTest::newRow("hard edges") << false;
}

void TestCachedShape::HandsAndDiscs()
{
    QFETCH(bool, smooth);
    ColourCanvas canvas;
    for (int step = 0; step < 120; ++step) {
        const FlatShape hand = TurnedHand(step * 3.1, QColor(250, step * 2, 90));
        FlatShape disc;
        disc.disc = QRect(QPoint(-step % 9 - 1, -step % 9 - 1), QPoint(step % 9, step % 9));
        disc.colour = hand.colour;
        for (const FlatShape &shape : {hand, disc}) {
            const CachedShape cached = Cached(canvas, shape, smooth);
            QVERIFY(cached.IsMade());
            for (const QImage &ground : {Colourful(), Grey(0), Grey(255)})
                QCOMPARE(Blended(ground, cached), Painted(ground, shape, smooth));
        }
    }
}

void TestCachedShape::PictureOverEveryByte_data()
{
    QTest::addColumn<double>("degrees");
    for (const double degrees : {0.0, 6.0, 33.3, 90.0, 180.0, 222.0, 270.0, 354.0})
        QTest::addRow("%g degrees", degrees) << degrees;
}

void TestCachedShape::PictureOverEveryByte()
{
    QFETCH(double, degrees);
    QVERIFY(CachedShape::PictureFormat() != QImage::Format_Invalid);
    const QPixmap picture = Picture();
    const CachedShape cached = CachePicture(
        QRect(5, 0, 55, 47), [&](QPainter &painter) { PaintPicture(painter, picture, degrees); });
    for (int below = 0; below < 256; ++below) {
        const QImage ground = Grey(below);
        QImage painted = ground;
        QPainter painter(&painted);
        PaintPicture(painter, picture, degrees);
        painter.end();
        QVERIFY(painted != ground);
        QCOMPARE(Blended(ground, cached), painted);
    }
}

void TestCachedShape::AsShownNeedsNoBlending()
{
    ColourCanvas canvas;
    const CachedShape cached = Cached(canvas, TurnedHand(40, Qt::yellow), true);
    const QImage frame = Blended(Colourful(), cached);
    const CachedShape shown = cached.AsShownOn(frame);
    QCOMPARE(Blended(Colourful(), shown), frame);
    QVERIFY(shown.Covered().IsCopyOf(cached.Covered()));
}

void TestCachedShape::OutsideTheFrame()
{
    ColourCanvas canvas;
    FlatShape far = TurnedHand(0, Qt::red);
    far.outline.translate(1000, 0);
    const CachedShape cached = Cached(canvas, far, true);
    QVERIFY(cached.IsMade());
    QCOMPARE(Blended(Colourful(), cached), Colourful());
    FlatShape half = TurnedHand(0, Qt::red);
    half.outline.translate(-32, -20);
    QCOMPARE(Blended(Colourful(), Cached(canvas, half, true)), Painted(Colourful(), half, true));
}

void TestCachedShape::PositionsAreKeptUpToALimit()
{
    ColourCanvas canvas;
    HandCache hand(3);
    int paintings = 0;
    const auto paint = [&] {
        ++paintings;
        return Cached(canvas, TurnedHand(20, Qt::red), true);
    };
    const HandCache::CacheKey key {5};
    QVERIFY(hand.At(key, 0, 1 << 20, paint));
    QVERIFY(hand.At(key, 0, 1 << 20, paint));
    QCOMPARE(paintings, 1);
    QVERIFY(!hand.At(key, 1, 1, paint)); // the first has more than one byte
    QVERIFY(hand.At(key, 0, 1, paint));
    QVERIFY(!hand.At(key, 3, 1 << 20, paint));
    QVERIFY(!hand.At(key, -1, 1 << 20, paint));
    QCOMPARE(paintings, 1);
    QVERIFY(hand.At(HandCache::CacheKey {6}, 0, 1 << 20, paint));
    QCOMPARE(paintings, 2);
    QVERIFY(!hand.At(HandCache::CacheKey {6}, 1, 1 << 20, [] { return CachedShape(); }));
}

QTEST_MAIN(TestCachedShape)
#include "test_cached_shape.moc"
