// What PNG files tell without being decoded, of files that the PNG library wrote.
#include "compose/picture_file.h"
#include "compose/png_chunks.h"
#include "glyph/ink.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

using namespace Lw::HNodeClock;

namespace {

QByteArray Written(const QImage &image)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QBuffer::WriteOnly);
    return image.save(&buffer, "png") ? png : QByteArray();
}

// Transparent, with every third pixel of a colour.
QImage Striped(const QSize &size, QRgb colour, QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = y % 3; x < size.width(); x += 3)
            image.setPixel(x, y, colour);
    }
    return image.convertToFormat(format);
}

QImage WithLastPixel(QImage image, QRgb colour)
{
    image.setPixel(image.width() - 1, image.height() - 1, colour);
    return image;
}

} // namespace

class TestPngChunks : public QObject
{
    Q_OBJECT
private slots:
    void SizeIsThatOfTheHeader();
    void OneColour_data();
    void OneColour();
};

void TestPngChunks::SizeIsThatOfTheHeader()
{
    const QByteArray png = Written(Striped({70, 300}, 0xff00ff00));
    QCOMPARE(SizeOfPng(png), QSize(70, 300));
    QCOMPARE(SizeOfPng(png.left(kPngHeaderEnd)), QSize(70, 300));
    QVERIFY(SizeOfPng(png.left(kPngHeaderEnd - 1)).isEmpty());
    QVERIFY(SizeOfPng(QByteArray()).isEmpty());
    QVERIFY(SizeOfPng("GIF89a and some more than twenty-four bytes").isEmpty());
    QByteArray other = png;
    other[12] = 'J';
    QVERIFY(SizeOfPng(other).isEmpty());
}

void TestPngChunks::OneColour_data()
{
    QTest::addColumn<QByteArray>("png");
    QTest::addColumn<bool>("hasOne");
    const QSize size(61, 40);
    const QRgb green = 0xff00c000;
    const QImage ink = Striped(size, green);
    const auto row = [](const char *name, const QImage &image, bool hasOne) {
        QTest::newRow(name) << Written(image) << hasOne;
    };
    row("ink", ink, true);
    row("opaque throughout", WithLastPixel(Striped({1, 1}, green), green), true);
    row("black ink", Striped(size, 0xff000000), true);
    row("nothing but background", Striped(size, 0), true);
    row("the last pixel of another colour", WithLastPixel(ink, 0xff00c100), false);
    row("the last pixel soft", WithLastPixel(ink, 0xfe00c000), false);
    row("soft throughout", Striped(size, 0x8000c000), false);
    row("a single soft pixel", Striped({1, 1}, 0x8000c000), false);
    row("without alpha", Striped(size, green, QImage::Format_RGB32), false);
    row("with a palette", Striped(size, green, QImage::Format_Indexed8), false);
    row("16 bits", Striped(size, green, QImage::Format_RGBA64), false);
}

void TestPngChunks::OneColour()
{
    QFETCH(QByteArray, png);
    QVERIFY(!png.isEmpty());
    QFETCH(bool, hasOne);
    const QSize size = SizeOfPng(png);
    QCOMPARE(GlyphBytesOfPng(png), hasOne ? InkBytes(size) : 4LL * size.width() * size.height());
}

QTEST_GUILESS_MAIN(TestPngChunks)
#include "test_png_chunks.moc"
