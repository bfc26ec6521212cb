// Sizes told from PNG files without decoding them, held against files that the PNG library wrote.
#include "compose/png_chunks.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

using Lw::HNodeClock::SizeOfIntactPng;

namespace {

constexpr int kSignature = 8;
constexpr int kFrame = 12; // of a chunk's content: length, name, checksum

QByteArray Written(const QSize &size, QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(size, format);
    image.fill(Qt::transparent);
    image.setPixel(0, 0, format == QImage::Format_Mono ? 1 : 0xff00ff00);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QBuffer::WriteOnly);
    return image.save(&buffer, "png") ? png : QByteArray();
}

/// The chunk of a name with its length, name and checksum.
QByteArray Chunk(const QByteArray &png, const char *name)
{
    const int at = png.indexOf(name) - 4;
    const int length = png.mid(at, 4).toHex().toInt(nullptr, 16);
    return png.mid(at, length + kFrame);
}

} // namespace

class TestPngChunks : public QObject
{
    Q_OBJECT
private slots:
    void IntactFiles_data();
    void IntactFiles();
    void OtherPictures_data();
    void OtherPictures();
    void EveryChangedByteShows();
    void EveryCutShows();
    void ChunksThatAreMissing();
    void ContentOfAnotherPicture();
};

void TestPngChunks::IntactFiles_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("a strip") << QSize(310, 57);
    QTest::newRow("more than two bytes") << QSize(70, 300);
}

void TestPngChunks::IntactFiles()
{
    QFETCH(QSize, size);
    const QByteArray png = Written(size);
    QCOMPARE(SizeOfIntactPng(png), size);
    QCOMPARE(SizeOfIntactPng(png + "what follows the end"), size);
}

void TestPngChunks::OtherPictures_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a signature") << Written({3, 3}).left(kSignature);
    QTest::newRow("no PNG") << QByteArray("GIF89a and so on");
    QTest::newRow("without transparency") << Written({3, 3}, QImage::Format_RGB32);
    QTest::newRow("black and white") << Written({3, 3}, QImage::Format_Mono);
    QTest::newRow("grey") << Written({3, 3}, QImage::Format_Grayscale8);
    QTest::newRow("wider than a picture may be") << Written({32768, 1});
}

void TestPngChunks::OtherPictures()
{
    QFETCH(QByteArray, content);
    QVERIFY(!SizeOfIntactPng(content).isValid());
}

void TestPngChunks::EveryChangedByteShows()
{
    const QByteArray png = Written({7, 5});
    for (int at = 0; at < png.size(); ++at) {
        for (const int bit : {0, 3, 7}) {
            QByteArray changed = png;
            changed[at] = static_cast<char>(changed[at] ^ (1 << bit));
            QVERIFY2(!SizeOfIntactPng(changed).isValid(),
                     qPrintable(QStringLiteral("byte %1, bit %2").arg(at).arg(bit)));
        }
    }
}

void TestPngChunks::EveryCutShows()
{
    const QByteArray png = Written({7, 5});
    for (int length = 0; length < png.size(); ++length)
        QVERIFY2(!SizeOfIntactPng(png.left(length)).isValid(), qPrintable(QString::number(length)));
}

void TestPngChunks::ChunksThatAreMissing()
{
    const QByteArray png = Written({7, 5});
    const QByteArray signature = png.left(kSignature);
    const QByteArray head = Chunk(png, "IHDR");
    const QByteArray pixels = Chunk(png, "IDAT");
    const QByteArray end = Chunk(png, "IEND");
    QCOMPARE(SizeOfIntactPng(signature + head + pixels + end), QSize(7, 5));
    QVERIFY(!SizeOfIntactPng(signature + head + end).isValid());
    QVERIFY(!SizeOfIntactPng(signature + head + pixels).isValid());
    QVERIFY(!SizeOfIntactPng(signature + pixels + end).isValid());
    QVERIFY(!SizeOfIntactPng(signature + pixels + head + end).isValid());
    QVERIFY(!SizeOfIntactPng(signature + head + head + pixels + end).isValid());
}

// Right as far as checksums tell: the size is that of the header, whatever its pixels are.
void TestPngChunks::ContentOfAnotherPicture()
{
    const QByteArray wide = Written({50, 9});
    const QByteArray narrow = Written({20, 9});
    const QByteArray spliced =
        wide.left(kSignature) + Chunk(wide, "IHDR") + Chunk(narrow, "IDAT") + Chunk(wide, "IEND");
    QCOMPARE(SizeOfIntactPng(spliced), QSize(50, 9));
}

QTEST_GUILESS_MAIN(TestPngChunks)
#include "test_png_chunks.moc"
