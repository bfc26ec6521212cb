// The shapes of the analog clock by number. Expected values are worked out from R with pencil and
// paper: a = R / 27, b = R / 90.
#include "display/analog_geometry.h"

#include <QtTest>

using namespace Lw::HNodeClock;

/// The y of the three triangles' tips, from the centre.
struct HandTips
{
    int hour;
    int minute;
    int second;
};

Q_DECLARE_METATYPE(Hand)
Q_DECLARE_METATYPE(Ring)
Q_DECLARE_METATYPE(HandTips)

namespace {

bool Near(double a, double b)
{
    return std::abs(a - b) < 1e-5;
}

// Fails with both numbers.
#define COMPARE_NEAR(actual, expected) \
    QVERIFY2(Near(actual, expected), \
             qPrintable(QStringLiteral("%1 is not %2").arg(actual, 0, 'f', 7).arg(expected)))

} // namespace

class TestAnalogGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Radii_data();
    void Radii();
    void HourLines_data();
    void HourLines();
    void HourDots_data();
    void HourDots();
    void HourSquares_data();
    void HourSquares();
    void MinuteMarks();
    void MinuteMarksNeedSpace_data();
    void MinuteMarksNeedSpace();
    void UnknownScalesHaveNoMarks_data();
    void UnknownScalesHaveNoMarks();
    void PenWidth_data();
    void PenWidth();
    void CellsOfAStrip();
    void TwelvePlaces();
    void OddHeights();
    void FourPlaces();
    void OtherScalesHaveNoNumerals();
    void Bars();
    void Arrows_data();
    void Arrows();
    void Rings_data();
    void Rings();
    void UnknownHandsAreEmpty();
    void Angles_data();
    void Angles();
    void Cap_data();
    void Cap();
    void Badge_data();
    void Badge();
    void Triangles_data();
    void Triangles();
};

void TestAnalogGeometry::Radii_data()
{
    QTest::addColumn<QSize>("area");
    QTest::addColumn<double>("dial");
    QTest::addColumn<double>("hands");
    QTest::addColumn<QPoint>("centre");
    QTest::newRow("even") << QSize(80, 80) << 40.0 << 40.0 << QPoint(40, 40);
    QTest::newRow("odd") << QSize(81, 81) << 40.5 << 40.0 << QPoint(40, 40);
    QTest::newRow("wide") << QSize(200, 63) << 31.5 << 31.0 << QPoint(100, 31);
    QTest::newRow("high") << QSize(63, 200) << 31.5 << 31.0 << QPoint(31, 100);
    QTest::newRow("one pixel") << QSize(1, 1) << 0.5 << 0.0 << QPoint(0, 0);
    QTest::newRow("a line") << QSize(10000, 3) << 1.5 << 1.0 << QPoint(5000, 1);
}

void TestAnalogGeometry::Radii()
{
    QFETCH(QSize, area);
    QTEST(DialRadius(area), "dial");
    QTEST(HandRadius(area), "hands");
    QTEST(Centre(area), "centre");
}

void TestAnalogGeometry::HourLines_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("bottom");
    QTest::newRow("40") << 40.0 << -39.555556 << -33.629630; // four a
    QTest::newRow("100") << 100.0 << -98.888889 << -84.074074;
    QTest::newRow("just larger") << 100.5 << -99.383333 << -91.938889; // two a
    QTest::newRow("101") << 101.0 << -99.877778 << -92.396296;
    QTest::newRow("270") << 270.0 << -267.0 << -247.0;
}

void TestAnalogGeometry::HourLines()
{
    QFETCH(double, radius);
    QFETCH(double, top);
    QFETCH(double, bottom);
    const Mark mark = HourMark(Lw::HNodeClock::HourLines, radius);
    QCOMPARE(mark.shape, Mark::Line);
    COMPARE_NEAR(mark.line.x1(), 0.0);
    COMPARE_NEAR(mark.line.x2(), 0.0);
    COMPARE_NEAR(mark.line.y1(), top);
    COMPARE_NEAR(mark.line.y2(), bottom);
}

void TestAnalogGeometry::HourDots_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("diameter");
    QTest::newRow("40") << 40.0 << -39.555556 << 5.925926;
    QTest::newRow("100") << 100.0 << -98.888889 << 14.814815;
    QTest::newRow("101") << 101.0 << -99.877778 << 7.481481;
}

void TestAnalogGeometry::HourDots()
{
    QFETCH(double, radius);
    QFETCH(double, top);
    QFETCH(double, diameter);
    const Mark mark = HourMark(Lw::HNodeClock::HourDots, radius);
    QCOMPARE(mark.shape, Mark::Dot);
    COMPARE_NEAR(mark.dot.left(), -diameter / 2);
    COMPARE_NEAR(mark.dot.top(), top);
    COMPARE_NEAR(mark.dot.width(), diameter);
    COMPARE_NEAR(mark.dot.height(), diameter);
}

void TestAnalogGeometry::HourSquares_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<QRect>("square");
    QTest::newRow("40") << 40.0 << QRect(-1, -39, 2, 2);
    QTest::newRow("100") << 100.0 << QRect(-1, -98, 2, 2);
    QTest::newRow("101") << 101.0 << QRect(-1, -99, 3, 7);
    QTest::newRow("270") << 270.0 << QRect(-5, -267, 10, 20);
}

void TestAnalogGeometry::HourSquares()
{
    QFETCH(double, radius);
    for (const int scale : {2, 3, 4}) {
        const Mark mark = HourMark(scale, radius);
        QCOMPARE(mark.shape, Mark::Square);
        QTEST(mark.square, "square");
    }
}

void TestAnalogGeometry::MinuteMarks()
{
    const Mark dot = MinuteMark(0, 41); // a = 1.518519, b = 0.455556
    QCOMPARE(dot.shape, Mark::Dot);
    COMPARE_NEAR(dot.dot.left(), -0.7592593);
    COMPARE_NEAR(dot.dot.top(), -40.5444444);
    COMPARE_NEAR(dot.dot.width(), 1.5185185);
    COMPARE_NEAR(dot.dot.height(), 1.5185185);

    QCOMPARE(MinuteMark(1, 41).shape, Mark::Square);
    QCOMPARE(MinuteMark(1, 41).square, QRect(0, -40, 1, 1));
    QCOMPARE(MinuteMark(1, 100).square, QRect(-1, -98, 3, 3));
    QCOMPARE(MinuteMark(1, 270).square, QRect(-5, -267, 10, 10));

    const Mark line = MinuteMark(2, 270);
    QCOMPARE(line.shape, Mark::Line);
    QCOMPARE(line.line, QLineF(0, -267, 0, -257));
}

void TestAnalogGeometry::MinuteMarksNeedSpace_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<bool>("shown");
    QTest::newRow("none at 40") << 40.0 << false;
    QTest::newRow("40 and a half") << 40.5 << true;
    QTest::newRow("at 41") << 41.0 << true;
    QTest::newRow("tiny") << 0.5 << false;
}

void TestAnalogGeometry::MinuteMarksNeedSpace()
{
    QFETCH(double, radius);
    QFETCH(bool, shown);
    for (const int scale : {0, 1, 2})
        QCOMPARE(MinuteMark(scale, radius).shape != Mark::None, shown);
}

void TestAnalogGeometry::UnknownScalesHaveNoMarks_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("below") << -1;
    QTest::newRow("hour scale above") << 5;
    QTest::newRow("largest") << INT_MAX;
    QTest::newRow("smallest") << INT_MIN;
}

void TestAnalogGeometry::UnknownScalesHaveNoMarks()
{
    QFETCH(int, scale);
    QCOMPARE(HourMark(scale, 50).shape, Mark::None);
    QCOMPARE(HourMark(scale, 150).shape, Mark::None);
    QCOMPARE(MinuteMark(scale, 150).shape, Mark::None);
    QCOMPARE(MinuteMark(3, 150).shape, Mark::None);
}

void TestAnalogGeometry::PenWidth_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<int>("width");
    QTest::newRow("thinnest line") << 89.5 << 0;
    QTest::newRow("one") << 90.0 << 1;
    QTest::newRow("still one") << 179.5 << 1;
    QTest::newRow("two") << 180.0 << 2;
}

void TestAnalogGeometry::PenWidth()
{
    QFETCH(double, radius);
    QTEST(MarkPenWidth(radius), "width");
}

void TestAnalogGeometry::CellsOfAStrip()
{
    const DigitCells cells(QSize(205, 21));
    QCOMPARE(cells.width, 20);
    QCOMPARE(cells.height, 21);
    QCOMPARE(cells.half, 10);
    QCOMPARE(DigitCells(QSize(19, 7)).width, 1);
    QCOMPARE(DigitCells(QSize(19, 7)).half, 0);
    QCOMPARE(DigitCells(QSize()).width, 0);
}

void TestAnalogGeometry::TwelvePlaces()
{
    // R = 100: r1 = 88.888889, r2 = 81.481481, its cosine part 70.565033, its half 40.740741.
    const QMap<int, QPoint> expected = {
        {12, {-20, -88}}, {6, {-10, 67}}, {3, {68, -10}},   {9, {-88, -10}},
        {1, {30, -80}},   {2, {60, -50}}, {4, {60, 30}},    {5, {30, 60}},
        {7, {-50, 60}},   {8, {-80, 30}}, {10, {-80, -50}}, {11, {-50, -80}},
    };
    QMap<int, QPoint> actual;
    for (const Numeral &numeral : Numerals(TwelveNumerals, 100, DigitCells(QSize(205, 21))))
        actual.insert(numeral.number, numeral.topLeft);
    QCOMPARE(actual, expected);
}

// Halves of an odd height are whole pixels, the smaller half.
void TestAnalogGeometry::OddHeights()
{
    for (const Numeral &numeral : Numerals(FourNumerals, 100, DigitCells(QSize(100, 15)))) {
        if (numeral.number == 3)
            QCOMPARE(numeral.topLeft, QPoint(78, -7));
        if (numeral.number == 6)
            QCOMPARE(numeral.topLeft, QPoint(-5, 73));
    }
}

void TestAnalogGeometry::FourPlaces()
{
    QList<int> numbers;
    for (const Numeral &numeral : Numerals(FourNumerals, 50, DigitCells(QSize(100, 10))))
        numbers.append(numeral.number);
    std::sort(numbers.begin(), numbers.end());
    QCOMPARE(numbers, QList<int>({3, 6, 9, 12}));
}

void TestAnalogGeometry::OtherScalesHaveNoNumerals()
{
    for (const int scale : {-1, 0, 1, 2, 5})
        QVERIFY(Numerals(scale, 100, DigitCells(QSize(100, 10))).isEmpty());
}

void TestAnalogGeometry::Bars()
{
    // R = 27, so that a is 1.
    QCOMPARE(ShapeOf(Hand::Hour, 0, 27).outline,
             QPolygonF({{-1, 0}, {1, 0}, {1, -11.5}, {-1, -11.5}}));
    QCOMPARE(ShapeOf(Hand::Minute, 0, 27).outline,
             QPolygonF({{-1, 0}, {1, 0}, {1, -17.25}, {-1, -17.25}}));
    QCOMPARE(ShapeOf(Hand::Second, 0, 27).outline,
             QPolygonF({{-1, 0}, {1, 0}, {1, -23}, {-1, -23}}));
    for (const Hand hand : {Hand::Hour, Hand::Minute, Hand::Second})
        QCOMPARE(ShapeOf(hand, 0, 27).ring.radius, 0.0);
}

void TestAnalogGeometry::Arrows_data()
{
    QTest::addColumn<int>("hand");
    QTest::addColumn<QVector<QPointF>>("outline");
    QTest::newRow("hour") << 0
                          << QVector<QPointF>({{-1.5, -3.75},
                                               {-0.5, -1.5},
                                               {-0.5, 2},
                                               {0.5, 2},
                                               {0.5, -1.5},
                                               {1.5, -3.75},
                                               {0.25, -5.75},
                                               {1, -5.75},
                                               {0, -12.5},
                                               {-1, -5.75},
                                               {-0.25, -5.75}});
    QTest::newRow("minute") << 1
                            << QVector<QPointF>({{-1.5, -5.625},
                                                 {-0.5, -2.25},
                                                 {-0.5, 3},
                                                 {0.5, 3},
                                                 {0.5, -2.25},
                                                 {1.5, -5.625},
                                                 {0.25, -11.5},
                                                 {1, -11.5},
                                                 {0, -18.75},
                                                 {-1, -11.5},
                                                 {-0.25, -11.5}});
    QTest::newRow("second") << 2
                            << QVector<QPointF>({{-1, -7.5},
                                                 {-0.5, -3},
                                                 {-0.5, 4},
                                                 {0.5, 4},
                                                 {0.5, -3},
                                                 {1, -7.5},
                                                 {0.25, -23},
                                                 {1, -23},
                                                 {0, -25},
                                                 {-1, -23},
                                                 {-0.25, -23}});
}

void TestAnalogGeometry::Arrows()
{
    QFETCH(int, hand);
    const QVector<QPointF> outline = ShapeOf(static_cast<Hand>(hand), 1, 27).outline;
    QTEST(outline, "outline");
}

void TestAnalogGeometry::Rings_data()
{
    QTest::addColumn<Hand>("hand");
    QTest::addColumn<double>("dial"); // radius
    QTest::addColumn<Ring>("ring");   // centre, radius and width of the pen
    const auto below = [](double centre) { return QPointF(0, centre); };
    QTest::newRow("hour, 40") << Hand::Hour << 40.0 << Ring {below(4), 1.4814815, 0};
    QTest::newRow("minute, 40") << Hand::Minute << 40.0 << Ring {below(5), 1.1111111, 0};
    QTest::newRow("second, 40") << Hand::Second << 40.0 << Ring {below(6.6666667), 0.7407407, 0};
    QTest::newRow("hour, 108") << Hand::Hour << 108.0 << Ring {below(12), 4, 2};
    QTest::newRow("minute, 108") << Hand::Minute << 108.0 << Ring {below(15), 3, 2};
    QTest::newRow("second, 108") << Hand::Second << 108.0 << Ring {below(18), 2, 2};
    QTest::newRow("thin below 54") << Hand::Hour << 53.0 << Ring {below(5), 1.9629630, 0};
    QTest::newRow("one from 54") << Hand::Hour << 54.0 << Ring {below(6), 2, 1};
}

void TestAnalogGeometry::Rings()
{
    QFETCH(Hand, hand);
    QFETCH(double, dial);
    QFETCH(Ring, ring);
    const Ring actual = ShapeOf(hand, 1, dial).ring;
    COMPARE_NEAR(actual.centre.x(), ring.centre.x());
    COMPARE_NEAR(actual.centre.y(), ring.centre.y());
    COMPARE_NEAR(actual.radius, ring.radius);
    QCOMPARE(actual.penWidth, ring.penWidth);
}

void TestAnalogGeometry::UnknownHandsAreEmpty()
{
    for (const int type : {-1, 2, INT_MAX}) {
        QVERIFY(ShapeOf(Hand::Minute, type, 100).outline.isEmpty());
        QCOMPARE(ShapeOf(Hand::Minute, type, 100).ring.radius, 0.0);
    }
}

void TestAnalogGeometry::Angles_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<double>("hour");
    QTest::addColumn<double>("minute");
    QTest::addColumn<double>("second");
    QTest::newRow("midnight") << QTime(0, 0, 0) << 0.0 << 0.0 << 0.0;
    QTest::newRow("10:59:59") << QTime(10, 59, 59) << 329.9916667 << 354.0 << 354.0;
    QTest::newRow("afternoon wraps") << QTime(15, 30, 1) << 465.0083333 << 180.0 << 6.0;
}

void TestAnalogGeometry::Angles()
{
    QFETCH(QTime, time);
    QFETCH(double, hour);
    QFETCH(double, minute);
    QFETCH(double, second);
    const auto angle = [&time](Hand hand) {
        return HandAngle(hand, time.hour(), time.minute(), time.second());
    };
    COMPARE_NEAR(angle(Hand::Hour), hour);
    COMPARE_NEAR(angle(Hand::Minute), minute);
    COMPARE_NEAR(angle(Hand::Second), second);
}

void TestAnalogGeometry::Cap_data()
{
    QTest::addColumn<double>("radius");
    QTest::addColumn<bool>("anyArrow");
    QTest::addColumn<QRect>("cap");
    QTest::newRow("arrow, 40") << 40.0 << true << QRect(-1, -1, 2, 2);
    QTest::newRow("bars, 40") << 40.0 << false << QRect(-2, -2, 4, 4);
    QTest::newRow("arrow, 100") << 100.0 << true << QRect(-3, -3, 6, 6);
    QTest::newRow("bars, 100") << 100.0 << false << QRect(-7, -7, 14, 14);
    QTest::newRow("too small") << 13.0 << false << QRect(0, 0, 0, 0);
}

void TestAnalogGeometry::Cap()
{
    QFETCH(double, radius);
    QFETCH(bool, anyArrow);
    QTEST(CentreCap(radius, anyArrow), "cap");
}

void TestAnalogGeometry::Badge_data()
{
    QTest::addColumn<QSize>("area");
    QTest::addColumn<QSize>("badge");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("wide") << QSize(200, 100) << QSize(31, 21) << QPoint(85, 26);
    QTest::newRow("eighths are whole") << QSize(65, 63) << QSize(20, 10) << QPoint(22, 16);
    QTest::newRow("taller than the area") << QSize(8, 8) << QSize(20, 20) << QPoint(-6, -7);
}

void TestAnalogGeometry::Badge()
{
    QFETCH(QSize, area);
    QFETCH(QSize, badge);
    QTEST(BadgePlace(area, badge), "place");
}

void TestAnalogGeometry::Triangles_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("width");
    QTest::addColumn<HandTips>("tips");
    const auto tips = [](int hour, int minute, int second) {
        return HandTips {hour, minute, second};
    };
    QTest::newRow("63") << 63 << 2 << tips(-13, -18, -24);
    QTest::newRow("64") << 64 << 2 << tips(-16, -22, -28);
    QTest::newRow("90") << 90 << 3 << tips(-22, -31, -40);
    QTest::newRow("eight has no length") << 8 << 2 << tips(0, 0, 0);
    QTest::newRow("smaller points down") << 0 << 2 << tips(2, 2, 3);
    QTest::newRow("no size") << -1 << 2 << tips(2, 2, 3);
}

void TestAnalogGeometry::Triangles()
{
    QFETCH(int, size);
    QFETCH(int, width);
    QFETCH(HandTips, tips);
    const HandTriangles triangles = TrianglesFor(size);
    const QPoint right(width, width);
    const QPoint left(-width, width + 1);
    using Triangle = std::array<QPoint, 3>;
    QCOMPARE(triangles.hour, (Triangle {right, left, QPoint(0, tips.hour)}));
    QCOMPARE(triangles.minute, (Triangle {right, left, QPoint(0, tips.minute)}));
    QCOMPARE(triangles.second, (Triangle {right, left, QPoint(0, tips.second)}));
}

QTEST_GUILESS_MAIN(TestAnalogGeometry)
#include "test_analog_geometry.moc"
