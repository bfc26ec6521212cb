// Where rectangles go: snapping, aligning, distributing, stacking.
#include "wall/placing.h"

#include <QtTest>

using namespace ClockStudio;

class TestPlacing : public QObject
{
    Q_OBJECT

private slots:
    void HandlesResize_data();
    void HandlesResize();
    void MovingSnaps();
    void ResizingSnaps();
    void GridIsSnappedTo();
    void AlignsClocks_data();
    void AlignsClocks();
    void DistributesEvenly();
    void StacksInOrder();
    void CopiesGoWhereNothingIs_data();
    void CopiesGoWhereNothingIs();
};

void TestPlacing::HandlesResize_data()
{
    QTest::addColumn<int>("handle");
    QTest::addColumn<QPoint>("distance");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("right") << int(RightSide) << QPoint(5, 9) << QRect(10, 20, 35, 40);
    QTest::newRow("bottom") << int(BottomSide) << QPoint(5, 9) << QRect(10, 20, 30, 49);
    QTest::newRow("left") << int(LeftSide) << QPoint(5, 9) << QRect(15, 20, 25, 40);
    QTest::newRow("top left") << (LeftSide | TopSide) << QPoint(-5, -9) << QRect(5, 11, 35, 49);
    QTest::newRow("right beyond left") << int(RightSide) << QPoint(-99, 0) << QRect(10, 20, 4, 40);
    QTest::newRow("left beyond right") << int(LeftSide) << QPoint(99, 0) << QRect(36, 20, 4, 40);
    QTest::newRow("top beyond bottom") << int(TopSide) << QPoint(0, 99) << QRect(10, 56, 30, 4);
}

void TestPlacing::HandlesResize()
{
    QFETCH(int, handle);
    QFETCH(QPoint, distance);
    QTEST(Resized(QRect(10, 20, 30, 40), handle, distance), "expected");
}

void TestPlacing::MovingSnaps()
{
    const SnapLines lines = SnapLinesOf({256, 128}, {QRect(100, 50, 20, 10)}, {});
    const QRect rect(0, 0, 30, 20);
    // The left edge is 2 pixels from the other's right one, at 120.
    Snap snap = SnapMove(rect, {118, 70}, lines, 3);
    QCOMPARE(snap.distance, QPoint(120, 70));
    QCOMPARE(snap.met.x, QVector<int> {120});
    QVERIFY(snap.met.y.isEmpty());
    // The right edge reaches the screen's.
    snap = SnapMove(rect, {225, 30}, lines, 3);
    QCOMPARE(snap.distance.x(), 226);
    // Out of reach nothing is met.
    snap = SnapMove(rect, {20, 30}, lines, 3);
    QCOMPARE(snap.distance, QPoint(20, 30));
}

void TestPlacing::ResizingSnaps()
{
    const SnapLines lines = SnapLinesOf({256, 128}, {}, {});
    const Snap snap = SnapResize({10, 10, 100, 50}, RightSide | BottomSide, {16, 3}, lines, 4);
    QCOMPARE(snap.distance, QPoint(18, 4)); // to both middles of the screen
    QCOMPARE(snap.met.x, QVector<int> {128});
    QCOMPARE(snap.met.y, QVector<int> {64});
}

void TestPlacing::GridIsSnappedTo()
{
    const SnapLines lines = SnapLinesOf({256, 128}, {}, {64, 32});
    QCOMPARE(SnapMove({0, 0, 10, 10}, {62, 97}, lines, 4).distance, QPoint(64, 96));
}

void TestPlacing::AlignsClocks_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QRect>("first");
    QTest::addColumn<QRect>("second");
    const auto row = [](const char *name, Alignment alignment, QRect first, QRect second) {
        QTest::newRow(name) << int(alignment) << first << second;
    };
    // Of (10, 10, 20, 20) and (40, 50, 60, 40), within (10, 10, 90, 80).
    row("left", Alignment::Left, {10, 10, 20, 20}, {10, 50, 60, 40});
    row("centre", Alignment::Centre, {45, 10, 20, 20}, {25, 50, 60, 40});
    row("right", Alignment::Right, {80, 10, 20, 20}, {40, 50, 60, 40});
    row("top", Alignment::Top, {10, 10, 20, 20}, {40, 10, 60, 40});
    row("middle", Alignment::Middle, {10, 40, 20, 20}, {40, 30, 60, 40});
    row("bottom", Alignment::Bottom, {10, 70, 20, 20}, {40, 50, 60, 40});
}

void TestPlacing::AlignsClocks()
{
    QFETCH(int, alignment);
    QFETCH(QRect, first);
    QFETCH(QRect, second);
    const auto how = static_cast<Alignment>(alignment);
    QCOMPARE(Aligned({{10, 10, 20, 20}, {40, 50, 60, 40}}, how, {256, 128}),
             QVector<QRect>({first, second}));
    // One alone goes to the screen.
    const QRect alone = Aligned({{10, 10, 20, 20}}, how, {256, 128}).first();
    QVERIFY(alone.left() == 0 || alone.right() == 255 || alone.x() == 118 || alone.top() == 0
            || alone.bottom() == 127 || alone.y() == 54);
}

void TestPlacing::DistributesEvenly()
{
    const QVector<QRect> rects {{100, 0, 10, 10}, {0, 0, 10, 10}, {15, 0, 20, 10}};
    QCOMPARE(Distributed(rects, Direction::Across),
             QVector<QRect>({{100, 0, 10, 10}, {0, 0, 10, 10}, {45, 0, 20, 10}}));
    const QVector<QRect> two {{0, 0, 10, 10}, {15, 0, 20, 10}};
    QCOMPARE(Distributed(two, Direction::Across), two);
}

void TestPlacing::StacksInOrder()
{
    const QVector<QRect> rects {{5, 90, 10, 10}, {0, 7, 30, 20}};
    QCOMPARE(Stacked(rects, Direction::Down), QVector<QRect>({{5, 27, 10, 10}, {0, 7, 30, 20}}));
    QCOMPARE(Stacked({}, Direction::Down), QVector<QRect>());
}

void TestPlacing::CopiesGoWhereNothingIs_data()
{
    QTest::addColumn<QVector<QRect>>("copied");
    QTest::addColumn<QVector<QRect>>("others");
    QTest::addColumn<QPoint>("distance");
    using Rects = QVector<QRect>;
    const QRect corner(0, 0, 32, 16);
    QTest::newRow("beside") << Rects {corner} << Rects() << QPoint(32, 0);
    QTest::newRow("beside the next") << Rects {corner} << Rects {{40, 8, 8, 8}} << QPoint(64, 0);
    QTest::newRow("below") << Rects {corner} << Rects {{32, 0, 96, 16}} << QPoint(0, 16);
    QTest::newRow("two together") << Rects {corner, {0, 16, 32, 48}} << Rects() << QPoint(32, 0);
    QTest::newRow("the wall is full") << Rects {{0, 0, 128, 64}} << Rects() << QPoint(8, 8);
    QTest::newRow("none") << Rects() << Rects() << QPoint(8, 8);
    QTest::newRow("off the wall") << Rects {{500, 0, 32, 16}} << Rects() << QPoint(8, 8);
}

void TestPlacing::CopiesGoWhereNothingIs()
{
    QFETCH(QVector<QRect>, copied);
    QFETCH(QVector<QRect>, others);
    QTEST(CopyDistance(copied, others + copied, {128, 64}), "distance");
}

QTEST_GUILESS_MAIN(TestPlacing)
#include "test_placing.moc"
