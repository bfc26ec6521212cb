// What the drawer remembers of its frames: hand traces, known frames, settled text rows.
#include "display/analog_painting.h"
#include "display/frame_memory.h"
#include "display/hand_trace.h"
#include "display/opaque_view.h"
#include "display/stamp.h"
#include "display/text_rows.h"

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

} // namespace

class TestAnalogMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TraceHoldsEveryTouchedPixel_data();
    void TraceHoldsEveryTouchedPixel();
    void TraceIsNarrow();
    void TraceOutsideTheImage();
    void UnknownFrameGetsAll();
    void KnownFrameGetsHandsOnly();
    void TwoFramesAreKnown();
    void FrameDrawnByOthersIsUnknown();
    void ReplacedBackgroundForgetsAll();
    void ChangedAreaIsCopied();
    void ForeignBackgroundWriteForgetsAll();
    void OtherSizeIsLeftAlone();
    void OpaqueRowsSettleAtOnce();
    void TranslucentRowsAccumulate();
    void OverlappingRowsAccumulate();
    void MovedRowIsPainted();
    void PictureWrittenByOthersIsPainted();
    void NullRowsAreLeftOut();
    void StampIsTheShape_data();
    void StampIsTheShape();
    void OpaqueViewShowsTheSame();
};

void TestAnalogMemory::TraceHoldsEveryTouchedPixel_data()
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

void TestAnalogMemory::TraceHoldsEveryTouchedPixel()
{
    QFETCH(QSize, size);
    QFETCH(bool, antialiasing);
    for (int step = 0; step < 3 * 2 * 72; ++step) {
        const HandShape shape =
            ShapeOf(static_cast<Hand>(step % 3), step / 3 % 2, HandRadius(size));
        QImage image = Filled(size, kBlack);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, antialiasing);
        painter.translate(Centre(size));
        HandTrace trace;
        for (const QPolygonF &outline : PaintHand(painter, shape, step * 5.0 / 6, Qt::white))
            trace.Add(outline, size);
        painter.end();
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                QVERIFY(image.pixel(x, y) == kBlack || trace.Contains(QPoint(x, y)));
        }
    }
}

// A hand at 45 degrees must not cost the whole box around it.
void TestAnalogMemory::TraceIsNarrow()
{
    const QSize size(200, 200);
    HandTrace trace;
    trace.Add(QPolygonF({{100, 100}, {102, 102}, {172, 32}, {170, 30}}), size);
    int pixels = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 200; ++x)
            pixels += trace.Contains(QPoint(x, y)) ? 1 : 0;
    }
    QVERIFY(pixels < 72 * 20);
}

void TestAnalogMemory::TraceOutsideTheImage()
{
    HandTrace trace;
    const QSize size(10, 10);
    trace.Add(QPolygonF(QRectF(-50, -50, 20, 20)), size);
    trace.Add(QPolygonF(QRectF(1e9, 1e9, 20, 20)), size);
    trace.Add(QPolygonF(), size);
    trace.Add(QPolygonF(QRectF(0, 0, 5, 5)), QSize());
    const QImage source = Filled(size, kRed);
    QImage target = Filled(size, kBlack);
    trace.Copy(source, target.bits());
    QCOMPARE(target, Filled(size, kBlack));
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
        painting.Covers({QPolygonF(QRectF(8, 4, 2, 2))});
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
    background.setPixel(2, 3, kGreen); // nobody says so
    const qint64 before = background.cacheKey();
    background.setPixel(9, 9, kGreen);
    memory.BackgroundChanged(before, background, QRegion(9, 9, 1, 1));
    memory.Restore(frame, background);
    QCOMPARE(frame, background);
}

void TestAnalogMemory::OtherSizeIsLeftAlone()
{
    FrameMemory memory;
    const QImage background = Filled(QSize(20, 10), kRed);
    QImage frame = Filled(QSize(10, 20), kBlack);
    memory.Restore(frame, background);
    QCOMPARE(frame, Filled(QSize(10, 20), kBlack));
    QImage none;
    memory.Restore(none, background);
    memory.Restore(frame, none);
    QVERIFY(none.isNull());
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

void TestAnalogMemory::StampIsTheShape_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(3, 3), QSize(21, 21), QSize(64, 32), QSize(81, 160),
                              QSize(108, 108), QSize(203, 203)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

// Every minute and the disc, on a colourful ground, each stamped twice and painted twice.
void TestAnalogMemory::StampIsTheShape()
{
    QFETCH(QSize, size);
    QImage ground(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            ground.setPixel(x, y, qRgb(x * 37 & 255, y * 91 & 255, (x + y) * 53 & 255));
    }
    Stamp handStamp;
    Stamp capStamp;
    const HandShape shape = ShapeOf(Hand::Minute, BarHand, HandRadius(size));
    const QRect cap = CentreCap(HandRadius(size), false);
    for (int step = 0; step < 4 * 60; ++step) {
        const bool smooth = step / 2 % 2 != 0;
        const QColor colour(250, step, 90);
        const double degrees = step / 4 * 6;
        QImage stamped = ground;
        QImage painted = ground;
        QPainter stamping(&stamped);
        QPainter painting(&painted);
        for (QPainter *const painter : {&stamping, &painting}) {
            painter->setRenderHint(QPainter::Antialiasing, smooth);
            painter->translate(Centre(size));
        }
        QCOMPARE(StampHand(stamping, handStamp, shape, degrees, colour),
                 PaintHand(painting, shape, degrees, colour));
        QCOMPARE(StampCentreCap(stamping, capStamp, cap, colour),
                 PaintCentreCap(painting, cap, colour));
        stamping.end();
        painting.end();
        QVERIFY2(stamped == painted, qPrintable(QString::number(step)));
    }
}

// Frames are ARGB32 and painted as premultiplied: the same, for plain colours over opaque pixels.
void TestAnalogMemory::OpaqueViewShowsTheSame()
{
    OpaqueView view;
    for (const QSize &size : {QSize(64, 64), QSize(101, 80)}) {
        QImage viewed = Filled(size, 0xff4080c0);
        QImage plain = viewed;
        const qint64 key = viewed.cacheKey();
        for (int i = 0; i < 24; ++i) {
            QPainter one(&view.Of(viewed));
            QPainter other(&plain);
            for (QPainter *const painter : {&one, &other}) {
                painter->setRenderHint(QPainter::Antialiasing);
                painter->translate(Centre(size));
                PaintHand(*painter, ShapeOf(Hand::Second, ArrowHand, HandRadius(size)), i * 15,
                          QColor(i * 10, 255 - i, 3));
            }
        }
        QCOMPARE(viewed, plain);
        QVERIFY(viewed.cacheKey() != key);
    }
}

QTEST_MAIN(TestAnalogMemory)
#include "test_analog_memory.moc"
