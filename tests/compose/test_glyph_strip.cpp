// Glyph images kept as ink, against a painter drawing the same images.
#include "compose/glyph_strip.h"
#include "compose/picture_file.h"
#include "compose/piece_canvas.h"

#include <QFile>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace Lw::HNodeClock;

namespace {

constexpr QRgb kKey = 0xff010201;

// Runs and single pixels of a colour, by a fixed seed.
QImage Inked(const QSize &size, QRgb colour, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (random.bounded(3) == 0 || (x > 0 && random.bounded(2) == 0))
                image.setPixel(x, y, colour);
        }
    }
    return image;
}

QImage Frame()
{
    QImage frame(120, 20, QImage::Format_ARGB32);
    frame.fill(kKey);
    return frame;
}

} // namespace

class TestGlyphStrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Kinds_data();
    void Kinds();
    void PartsAreThoseOfAPainter_data();
    void PartsAreThoseOfAPainter();
    void ElementsAreClipped();
    void FillWritesTheRectangleOnly();
    void PixmapIsTheImage();
    void FileIsTakenAsItIs();
    void LargeFileIsTakenToo();
    void PixelsThatAreNotThere();
    void EqualFilesAreShared();
    void KeysTellContentsApart();
};

void TestGlyphStrip::Kinds_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<bool>("ink");
    const QImage red = Inked({40, 7}, 0xffff0000, 1);
    QTest::newRow("one colour") << red << true;
    QTest::newRow("one colour, premultiplied")
        << red.convertToFormat(QImage::Format_ARGB32_Premultiplied) << true;
    QImage clear(4, 4, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    QTest::newRow("nothing but background") << clear << true;
    QImage two = red;
    two.setPixel(39, 6, 0xfffe0000);
    QTest::newRow("two colours") << two << false;
    QImage soft = red;
    soft.setPixel(39, 6, 0xfeff0000);
    QTest::newRow("one soft pixel") << soft << false;
    QTest::newRow("soft throughout") << Inked({40, 7}, 0x80ff0000, 2) << false;
    QTest::newRow("without alpha") << red.convertToFormat(QImage::Format_RGB32) << false;
    QTest::newRow("none") << QImage() << false;
}

void TestGlyphStrip::Kinds()
{
    QFETCH(QImage, image);
    const GlyphStrip strip(image);
    QTEST(strip.IsInk(), "ink");
    QCOMPARE(strip.IsNull(), image.isNull());
    QCOMPARE(strip.Width(), image.width());
    QCOMPARE(strip.Height(), image.height());
}

void TestGlyphStrip::PartsAreThoseOfAPainter_data()
{
    QTest::addColumn<QImage>("image");
    QTest::newRow("black ink") << Inked({97, 19}, 0xff000000, 3);
    QTest::newRow("white ink in whole words") << Inked({96, 19}, 0xffffffff, 4);
    QTest::newRow("narrow") << Inked({1, 19}, 0xff123456, 5);
    QTest::newRow("soft") << Inked({97, 19}, 0x7f00ff00, 6);
    QTest::newRow("opaque") << Inked({97, 19}, 0xff123456, 7).convertToFormat(QImage::Format_RGB32);
    QImage full(70, 19, QImage::Format_ARGB32);
    full.fill(Qt::white);
    QTest::newRow("full of ink") << full;
}

void TestGlyphStrip::PartsAreThoseOfAPainter()
{
    QFETCH(QImage, image);
    const GlyphStrip strip(image);
    const QPixmap pixmap = QPixmap::fromImage(image);
    for (int from = 0; from < image.width(); from += 7) {
        for (const int width : {1, 13, 31, 32, 33, 64, 97}) {
            const QRect source(from, from % 5, qMin(width, image.width() - from), 14);
            const QPoint target(from % 11, 3);
            QImage expected = Frame();
            QPainter(&expected).drawPixmap(target, pixmap, source);
            QImage drawn = Frame();
            PieceCanvas(drawn).Draw(strip, source, target);
            QVERIFY2(drawn == expected,
                     qPrintable(QStringLiteral("%1 columns from %2").arg(width).arg(from)));
        }
    }
}

// Ink and another strip in turn, with every edge of the clip within a piece.
void TestGlyphStrip::ElementsAreClipped()
{
    const QImage inked = Inked({40, 12}, 0xff00ff00, 8);
    const QImage soft = Inked({40, 16}, 0x40ff00ff, 9);
    const GlyphStrip first(inked);
    const GlyphStrip second(soft);
    Element element(70, 14);
    element.Add(first, 5, 30);
    element.Add(second, 0, 25);
    element.Add(first, 0, 40); // cut off by the element's width
    const QPoint topLeft(-8, -3);

    QImage canvas(element.Size(), QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.drawImage(QPoint(0, 0), inked, QRect(5, 0, 30, 12));
    painter.drawImage(QPoint(30, 0), soft, QRect(0, 0, 25, 16));
    painter.drawImage(QPoint(55, 0), inked, QRect(0, 0, 40, 12));
    painter.end();
    for (const QRect &clip : {QRect(0, 0, 120, 20), QRect(3, 2, 40, 5), QRect(50, 0, 9, 20),
                              QRect(61, 0, 9, 20), QRect(0, 11, 120, 9)}) {
        QImage expected = Frame();
        QPainter framePainter(&expected);
        framePainter.setClipRect(clip);
        framePainter.drawImage(topLeft, canvas);
        framePainter.end();
        QImage drawn = Frame();
        PieceCanvas(drawn).Draw(element, topLeft, clip);
        QCOMPARE(drawn, expected);
    }
}

void TestGlyphStrip::FillWritesTheRectangleOnly()
{
    QImage expected = Frame();
    const QRect rect(3, 4, 50, 9);
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            expected.setPixel(x, y, 0xffabcdef);
    }
    QImage filled = Frame();
    PieceCanvas(filled).Fill(rect, 0xffabcdef);
    QCOMPARE(filled, expected);
}

void TestGlyphStrip::PixmapIsTheImage()
{
    const QImage image = Inked({50, 9}, 0xff112233, 10);
    const GlyphStrip strip(image);
    QCOMPARE(strip.Pixmap().toImage().convertToFormat(QImage::Format_ARGB32), image);
    QCOMPARE(strip.Pixmap().cacheKey(), strip.Pixmap().cacheKey());
    QVERIFY(GlyphStrip().Pixmap().isNull());
    QCOMPARE(GlyphStrip::Blank({6, 3}).Pixmap().size(), QSize(6, 3));
    QVERIFY(GlyphStrip::Blank({0, 3}).IsNull());
}

void TestGlyphStrip::FileIsTakenAsItIs()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("strip.png");
    const QImage image = Inked({50, 9}, 0xff112233, 11);
    QVERIFY(image.save(path));
    const GlyphStrip strip = GlyphStrip::OfFile(path);
    const GlyphStrip copy = strip;
    QVERIFY(Inked({20, 9}, 0xff112233, 12).save(path));
    const GlyphStrip later = GlyphStrip::OfFile(path);
    QVERIFY(QFile::remove(path));
    QCOMPARE(strip.Width(), 50);
    QCOMPARE(copy.Pixmap().toImage().convertToFormat(QImage::Format_ARGB32), image);
    QCOMPARE(later.Width(), 20);
    QVERIFY(GlyphStrip::OfFile(path).IsNull());
}

// Noise does not compress: 180 x 180 pixels of 4 bytes are more than is kept undecoded.
void TestGlyphStrip::LargeFileIsTakenToo()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("noise.png");
    QRandomGenerator random(13);
    QImage noise(180, 180, QImage::Format_ARGB32);
    for (int y = 0; y < 180; ++y) {
        for (int x = 0; x < 180; ++x)
            noise.setPixel(x, y, random.generate() | 0xff000000);
    }
    QVERIFY(noise.save(path));
    QVERIFY(QFile(path).size() > 64 << 10);
    const GlyphStrip strip = GlyphStrip::OfFile(path);
    QVERIFY(QFile::remove(path));
    QCOMPARE(strip.Pixmap().toImage().convertToFormat(QImage::Format_ARGB32), noise);
}

// Header and checksums promise more than the pixels hold: such an image has no size.
void TestGlyphStrip::PixelsThatAreNotThere()
{
    const QTemporaryDir directory;
    const auto saved = [&directory](const QSize &size) {
        QFile file(directory.filePath("saved.png"));
        return Inked(size, 0xff112233, 14).save(file.fileName()) && file.open(QFile::ReadOnly)
            ? file.readAll()
            : QByteArray();
    };
    const QByteArray wide = saved({50, 9});
    const QByteArray narrow = saved({20, 9});
    constexpr int kHead = 33; // signature and header
    QFile spliced(directory.filePath("spliced.png"));
    QVERIFY(spliced.open(QFile::WriteOnly));
    spliced.write(wide.left(kHead) + narrow.mid(kHead));
    spliced.close();

    const GlyphStrip strip = GlyphStrip::OfFile(spliced.fileName());
    QCOMPARE(strip.Size(), QSize(0, 0));
    Element element(50, 9);
    element.Add(strip, 0, 50);
    QImage frame = Frame();
    PieceCanvas(frame).Draw(element, QPoint(3, 3), frame.rect());
    QCOMPARE(frame, Frame());
    QVERIFY(strip.IsNull());
    QVERIFY(strip.Pixmap().isNull());
}

void TestGlyphStrip::EqualFilesAreShared()
{
    const QTemporaryDir directory;
    const QImage image = Inked({50, 9}, 0xff112233, 15);
    const QString paths[] = {directory.filePath("a.png"), directory.filePath("b.png")};
    QVERIFY(image.save(paths[0]) && image.save(paths[1]));
    const qint64 before = GlyphBytesInProcess();
    GlyphStrip first = GlyphStrip::OfFile(paths[0]);
    const qint64 one = GlyphBytesInProcess() - before;
    GlyphStrip second = GlyphStrip::OfFile(paths[1]);
    QCOMPARE(second.Key(), first.Key());
    QCOMPARE(GlyphBytesInProcess() - before, one);
    QVERIFY(Inked({50, 9}, 0xff112233, 16).save(paths[1]));
    QVERIFY(GlyphStrip::OfFile(paths[1]).Key() != first.Key());
    first = GlyphStrip();
    QCOMPARE(second.Width(), 50);
    QCOMPARE(GlyphBytesInProcess() - before, InkBytes({50, 9}));
    second = GlyphStrip();
    QCOMPARE(GlyphBytesInProcess(), before);
}

void TestGlyphStrip::KeysTellContentsApart()
{
    const QImage image = Inked({5, 5}, 0xff000000, 14);
    const GlyphStrip strip(image);
    const GlyphStrip copy = strip;
    QCOMPARE(copy.Key(), strip.Key());
    QVERIFY(GlyphStrip(image).Key() != strip.Key());
    QCOMPARE(GlyphStrip().Key(), GlyphStrip().Key());
}

QTEST_MAIN(TestGlyphStrip)

#include "test_glyph_strip.moc"
