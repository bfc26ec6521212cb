// What the drawer remembers of its frames: touched pixels, known frames, settled text rows.
#include "display/analog_painting.h"
#include "display/frames/frame_memory.h"
#include "display/frames/text_rows.h"

#include <QPainter>
#include <QtTest>

#include <memory>

using namespace Lw::HNodeClock;

namespace {

QImage Filled(const QSize &size, QRgb colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

// Writes behind the image's back: its key stays, as if the bytes had always been so.
void Smuggle(const QImage &image, int x, int y, QRgb colour)
{
    reinterpret_cast<QRgb *>(const_cast<uchar *>(image.constScanLine(y)))[x] = colour;
}

constexpr QRgb kBlack = 0xff000000;
constexpr QRgb kRed = 0xffff0000;
constexpr QRgb kGreen = 0xff00ff00;
constexpr QRgb kBlue = 0xff0000ff;

bool Contains(const Spans &spans, int x, int y)
{
    const int index = y - spans.Top();
    if (index < 0 || index >= spans.Rows().size())
        return false;
    return x >= spans.Rows().at(index).left && x < spans.Rows().at(index).right;
}

} // namespace

class TestAnalogMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SpansHoldEveryTouchedPixel_data();
    void SpansHoldEveryTouchedPixel();
    void SpansAreNarrow();
    void SpansOutsideTheImage();
    void SpansOfAPart();
    void UnknownFrameGetsAll();
    void KnownFrameGetsHandsOnly();
    void TwoFramesAreKnown();
    void FrameDrawnByOthersIsUnknown();
    void ReplacedBackgroundForgetsAll();
    void ChangedAreaIsCopied();
    void ForeignBackgroundWriteForgetsAll();
    void SmallerBackground();
    void NullImagesAreLeftAlone();
    void OpaqueRowsSettleAtOnce();
    void TranslucentRowsAccumulate();
    void OverlappingRowsAccumulate();
    void MovedRowIsPainted();
    void PictureWrittenByOthersIsPainted();
    void NullRowsAreLeftOut();
};

void TestAnalogMemory::SpansHoldEveryTouchedPixel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("antialiasing");
    for (const QSize &size :
         {QSize(3, 3), QSize(21, 21), QSize(64, 32), QSize(81, 160), QSize(203, 203)}) {
        for (const bool antialiasing : {false, true}) {
            QTest::addRow("%dx%d %s", size.width(), size.height(), antialiasing ? "smooth" : "hard")
                << size << antialiasing;
        }
    }
}

void TestAnalogMemory::SpansHoldEveryTouchedPixel()
{
    QFETCH(QSize, size);
    QFETCH(bool, antialiasing);
    for (int step = 0; step < 3 * 2 * 72; ++step) {
        const HandShape hand = ShapeOf(static_cast<Hand>(step % 3), step / 3 % 2, HandRadius(size));
        FlatShape shape;
        shape.outline = hand.outline;
        shape.degrees = step * 5.0 / 6;
        shape.colour = Qt::white;
        QImage image = Filled(size, kBlack);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, antialiasing);
        painter.translate(Centre(size));
        Spans spans;
        Spans ring;
        PaintFlat(painter, shape);
        spans.Set(OutlineOn(Centre(size), shape), size);
        if (hand.ring.radius > 0)
            ring.Set(PaintRing(painter, hand.ring, shape.degrees, Qt::white), size);
        painter.end();
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                QVERIFY(image.pixel(x, y) == kBlack || Contains(spans, x, y)
                        || Contains(ring, x, y));
        }
    }
}

// A hand at 45 degrees must not cost the whole box around it.
void TestAnalogMemory::SpansAreNarrow()
{
    Spans spans;
    spans.Set(QPolygonF({{100, 100}, {102, 102}, {172, 32}, {170, 30}}), QSize(200, 200));
    int pixels = 0;
    for (const Spans::Row &row : spans.Rows())
        pixels += row.right - row.left;
    QVERIFY(pixels > 0);
    QVERIFY(pixels < 72 * 30);
}

void TestAnalogMemory::SpansOutsideTheImage()
{
    const QSize size(10, 10);
    const QImage source = Filled(size, kRed);
    const QPolygonF outlines[] = {QPolygonF(QRectF(-50, -50, 20, 20)),
                                  QPolygonF(QRectF(1e9, 1e9, 20, 20)), QPolygonF()};
    for (const QPolygonF &outline : outlines) {
        Spans spans;
        spans.Set(outline, size);
        QImage target = Filled(size, kBlack);
        spans.Copy(source, QPoint(), target.bits(), target.bytesPerLine());
        QCOMPARE(target, Filled(size, kBlack));
        QVERIFY(spans.Region().isEmpty());
    }
    Spans spans;
    spans.Set(QPolygonF(QRectF(0, 0, 5, 5)), QSize());
    QVERIFY(spans.IsEmpty());
}

// A source that is only a part of the target gives what it has.
void TestAnalogMemory::SpansOfAPart()
{
    const QImage source = Filled(QSize(4, 3), kRed);
    QImage target = Filled(QSize(10, 10), kBlack);
    Spans spans;
    spans.Set(QPolygonF(QRectF(0, 0, 10, 10)), target.size());
    spans.Copy(source, QPoint(5, 6), target.bits(), target.bytesPerLine());
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 10; ++x)
            QCOMPARE(target.pixel(x, y), QRect(5, 6, 4, 3).contains(x, y) ? kRed : kBlack);
    }
}

void TestAnalogMemory::UnknownFrameGetsAll()
{
    FrameMemory memory;
    const QImage background = Filled(QSize(20, 10), kRed);
    QImage frame = Filled(QSize(20, 10), kBlack);
    memory.Restore(frame, background);
    QCOMPARE(frame, background);
}

void TestAnalogMemory::KnownFrameGetsHandsOnly()
{
    FrameMemory memory;
    const QImage background = Filled(QSize(20, 10), kRed);
    QImage frame = Filled(QSize(20, 10), kBlack);
    memory.Restore(frame, background);
    {
        FrameMemory::Painting painting(memory, frame);
        QPainter painter(&frame);
        painter.fillRect(8, 4, 2, 2, Qt::white);
        painting.RecordPainted(QPolygonF(QRectF(8, 4, 2, 2)));
    }
    Smuggle(frame, 0, 0, kBlue);
    memory.Restore(frame, background);
    QCOMPARE(frame.pixel(8, 4), kRed);
    QCOMPARE(frame.pixel(9, 5), kRed);
    QCOMPARE(frame.pixel(0, 0), kBlue); // far from the hand: not copied again
    memory.Restore(frame, background);
    QCOMPARE(frame.pixel(0, 0), kBlue);
}

void TestAnalogMemory::TwoFramesAreKnown()
{
    FrameMemory memory;
    const QImage background = Filled(QSize(4, 4), kRed);
    QImage frames[] = {Filled(QSize(4, 4), kBlack), Filled(QSize(4, 4), kBlack)};
    for (QImage &frame : frames) {
        memory.Restore(frame, background);
        Smuggle(frame, 0, 0, kBlue);
    }
    for (int round = 0; round < 3; ++round) {
        for (QImage &frame : frames) {
            memory.Restore(frame, background);
            QCOMPARE(frame.pixel(0, 0), kBlue);
        }
    }
}

void TestAnalogMemory::FrameDrawnByOthersIsUnknown()
{
    FrameMemory memory;
    const QImage background = Filled(QSize(20, 10), kRed);
    QImage frame = Filled(QSize(20, 10), kBlack);
    memory.Restore(frame, background);
    frame.setPixel(3, 3, kGreen);
    memory.Restore(frame, background);
    QCOMPARE(frame, background);

    frame = Filled(QSize(20, 10), kBlack); // perhaps at the same address
    memory.Restore(frame, background);
    QCOMPARE(frame, background);
}

void TestAnalogMemory::ReplacedBackgroundForgetsAll()
{
    FrameMemory memory;
    QImage background = Filled(QSize(20, 10), kRed);
    QImage frame = Filled(QSize(20, 10), kBlack);
    memory.Restore(frame, background);
    background = Filled(QSize(20, 10), kGreen);
    memory.Restore(frame, background);
    QCOMPARE(frame, background);
}

void TestAnalogMemory::ChangedAreaIsCopied()
{
    FrameMemory memory;
    QImage background = Filled(QSize(20, 10), kRed);
    QImage frame = Filled(QSize(20, 10), kBlack);
    memory.Restore(frame, background);
    Smuggle(frame, 19, 9, kBlue);

    const qint64 before = background.cacheKey();
    background.setPixel(2, 3, kGreen);
    background.setPixel(3, 4, kGreen);
    memory.BackgroundChanged(before, background, QRegion(2, 3, 1, 1) + QRegion(3, 4, 90, 1));
    memory.Restore(frame, background);
    QCOMPARE(frame.pixel(2, 3), kGreen);
    QCOMPARE(frame.pixel(3, 4), kGreen);
    QCOMPARE(frame.pixel(19, 9), kBlue);
}

void TestAnalogMemory::ForeignBackgroundWriteForgetsAll()
{
    FrameMemory memory;
    QImage background = Filled(QSize(20, 10), kRed);
    QImage frame = Filled(QSize(20, 10), kBlack);
    memory.Restore(frame, background);
    background.setPixel(2, 3, kGreen); // not reported as changed
    const qint64 before = background.cacheKey();
    background.setPixel(9, 9, kGreen);
    memory.BackgroundChanged(before, background, QRegion(9, 9, 1, 1));
    memory.Restore(frame, background);
    QCOMPARE(frame, background);
}

void TestAnalogMemory::SmallerBackground()
{
    FrameMemory memory;
    const QImage background = Filled(QSize(6, 4), kRed);
    QImage frame = Filled(QSize(20, 10), kBlack);
    memory.Restore(frame, background, QPoint(7, 3));
    QImage expected = Filled(QSize(20, 10), 0xff010201);
    QPainter(&expected).drawImage(7, 3, background);
    QCOMPARE(frame, expected);
    memory.Restore(frame, background, QPoint(8, 3));
    expected.fill(0xff010201);
    QPainter(&expected).drawImage(8, 3, background);
    QCOMPARE(frame, expected);
}

void TestAnalogMemory::NullImagesAreLeftAlone()
{
    FrameMemory memory;
    const QImage background = Filled(QSize(20, 10), kRed);
    QImage frame = Filled(QSize(10, 20), kBlack);
    QImage none;
    memory.Restore(none, background);
    memory.Restore(frame, none);
    QVERIFY(none.isNull());
    QCOMPARE(frame, Filled(QSize(10, 20), kBlack));
}

namespace {

// A row of one colour, as an element and as a pixmap.
struct TextRow
{
    TextRow() = default;
    TextRow(const QSize &size, const QColor &colour, const QPoint &place) : topLeft(place)
    {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(colour);
        pixmap = QPixmap::fromImage(image);
        strip = std::make_shared<GlyphStrip>(image);
        element = Element(*strip);
    }

    std::shared_ptr<GlyphStrip> strip;
    Element element;
    QPixmap pixmap;
    QPoint topLeft;
};

Placements Placed(const QVector<TextRow> &rows)
{
    Placements placed;
    for (const TextRow &row : rows)
        placed.Add(row.element, row.topLeft);
    return placed;
}

void PaintPlainly(QImage &picture, const QVector<TextRow> &rows)
{
    QPainter painter(&picture);
    for (const TextRow &row : rows)
        painter.drawPixmap(row.topLeft, row.pixmap);
}

// Paints with memory and without it, some hundred times, and returns how often the memory changed
// anything; -1 where the pictures differ.
int CountPaintings(const QVector<TextRow> &rows)
{
    TextRows memory;
    QImage picture = Filled(QSize(30, 20), 0xff010201);
    QImage plain = picture;
    int changes = 0;
    for (int i = 0; i < 600; ++i) {
        changes += memory.Paint(picture, Placed(rows)).isEmpty() ? 0 : 1;
        PaintPlainly(plain, rows);
        if (picture != plain)
            return -1;
    }
    return changes;
}

} // namespace

void TestAnalogMemory::OpaqueRowsSettleAtOnce()
{
    QCOMPARE(CountPaintings({{QSize(10, 5), Qt::red, QPoint(3, 3)}}), 1);
}

void TestAnalogMemory::TranslucentRowsAccumulate()
{
    for (const int alpha : {1, 2, 30, 127, 128, 200, 254}) {
        const int paintings =
            CountPaintings({{QSize(10, 5), QColor(250, 120, 3, alpha), QPoint(3, 3)}});
        QVERIFY(paintings >= 1 && paintings < 600);
        if (alpha == 127)
            QVERIFY(paintings > 3);
    }
}

void TestAnalogMemory::OverlappingRowsAccumulate()
{
    const QVector<TextRow> rows = {
        {QSize(10, 5), QColor(255, 0, 0, 100), QPoint(3, 3)},
        {QSize(10, 5), QColor(0, 0, 255, 60), QPoint(8, 5)},
        {QSize(10, 5), QColor(0, 255, 0), QPoint(15, 6)},
        {QSize(40, 3), QColor(0, 255, 0, 9), QPoint(-5, 18)},
    };
    const int paintings = CountPaintings(rows);
    QVERIFY(paintings > 3 && paintings < 600);
}

void TestAnalogMemory::MovedRowIsPainted()
{
    TextRows memory;
    QImage picture = Filled(QSize(30, 20), kBlack);
    QVector<TextRow> rows = {{QSize(4, 4), Qt::red, QPoint(0, 0)}};
    QCOMPARE(memory.Paint(picture, Placed(rows)), QRegion(0, 0, 4, 4));
    QVERIFY(memory.Paint(picture, Placed(rows)).isEmpty());
    rows[0].topLeft = QPoint(10, 18);
    QCOMPARE(memory.Paint(picture, Placed(rows)), QRegion(10, 18, 4, 2));
    QCOMPARE(picture.pixel(0, 0), kRed); // old texts stay
    rows = {{QSize(4, 4), Qt::blue, QPoint(10, 18)}};
    QCOMPARE(memory.Paint(picture, Placed(rows)), QRegion(10, 18, 4, 2));
    QCOMPARE(picture.pixel(10, 18), kBlue);
}

void TestAnalogMemory::PictureWrittenByOthersIsPainted()
{
    TextRows memory;
    QImage picture = Filled(QSize(30, 20), kBlack);
    const QVector<TextRow> rows = {{QSize(4, 4), Qt::red, QPoint(0, 0)}};
    memory.Paint(picture, Placed(rows));
    memory.Paint(picture, Placed(rows));
    picture.fill(kBlack);
    QCOMPARE(memory.Paint(picture, Placed(rows)), QRegion(0, 0, 4, 4));
    QCOMPARE(picture.pixel(0, 0), kRed);
}

void TestAnalogMemory::NullRowsAreLeftOut()
{
    TextRows memory;
    QImage picture = Filled(QSize(30, 20), kBlack);
    const QVector<TextRow> rows = {TextRow(), {QSize(4, 4), Qt::red, QPoint(100, 100)}};
    QVERIFY(memory.Paint(picture, Placed(rows)).isEmpty());
    QImage none;
    QVERIFY(memory.Paint(none, Placed(rows)).isEmpty());
    QCOMPARE(picture, Filled(QSize(30, 20), kBlack));
}

QTEST_MAIN(TestAnalogMemory)
#include "test_analog_memory.moc"
