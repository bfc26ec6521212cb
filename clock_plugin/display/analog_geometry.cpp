#include "display/analog_geometry.h"

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

// Hands and thick marks.
double UnitA(double radius)
{
    return radius / 27;
}

// Distance of the marks from the rim, and their pen.
double UnitB(double radius)
{
    return radius / 90;
}

// Above this radius marks are slender; below it they are kept large enough to be seen.
constexpr double kLargeDial = 100;
// Up to this radius minute marks would touch each other.
constexpr double kSmallestMinuteDial = 40;

QRect SquareFromCorners(int x1, int y1, int x2, int y2)
{
    return QRect(QPoint(x1, y1), QPoint(x2, y2));
}

Mark LineMark(double top, double length)
{
    Mark mark;
    mark.shape = Mark::Line;
    mark.line = QLineF(0, top, 0, top + length);
    return mark;
}

Mark DotMark(double top, double diameter)
{
    Mark mark;
    mark.shape = Mark::Dot;
    mark.dot = QRectF(-diameter / 2, top, diameter, diameter);
    return mark;
}

Mark SquareMark(const QRect &square)
{
    Mark mark;
    mark.shape = Mark::Square;
    mark.square = square;
    return mark;
}

QRect HourSquare(double radius)
{
    const double a = UnitA(radius);
    const int top = static_cast<int>(UnitB(radius) - radius);
    if (radius <= kLargeDial)
        return SquareFromCorners(-1, top, 0, top + 1);
    const int left = static_cast<int>(-a / 2);
    return SquareFromCorners(left, top, static_cast<int>(a) + left - 1,
                             static_cast<int>(2 * a) + top - 1);
}

QRect MinuteSquare(double radius)
{
    const double a = UnitA(radius);
    const int left = static_cast<int>(-a / 2);
    const int top = static_cast<int>(UnitB(radius) - radius);
    return SquareFromCorners(left, top, left + static_cast<int>(a) - 1,
                             top + static_cast<int>(a) - 1);
}

} // namespace

double DialRadius(const QSize &area)
{
    return std::min(area.width(), area.height()) * 0.5;
}

double HandRadius(const QSize &area)
{
    const int radius = std::min(area.width(), area.height()) / 2;
    return radius;
}

QPoint Centre(const QSize &area)
{
    return QPoint(area.width() / 2, area.height() / 2);
}

Mark HourMark(int scale, double radius)
{
    const double a = UnitA(radius);
    const double top = UnitB(radius) - radius;
    const bool large = radius > kLargeDial;
    switch (scale) {
    case HourLines:
        return LineMark(top, large ? 2 * a : 4 * a);
    case HourDots:
        return DotMark(top, large ? 2 * a : 4 * a);
    case HourSquares:
    case TwelveNumerals:
    case FourNumerals:
        return SquareMark(HourSquare(radius));
    default:
        return Mark();
    }
}

Mark MinuteMark(int scale, double radius)
{
    if (radius <= kSmallestMinuteDial)
        return Mark();
    const double a = UnitA(radius);
    const double top = UnitB(radius) - radius;
    switch (scale) {
    case MinuteDots:
        return DotMark(top, a);
    case MinuteSquares:
        return SquareMark(MinuteSquare(radius));
    case MinuteLines:
        return LineMark(top, a);
    default:
        return Mark();
    }
}

int MarkPenWidth(double radius)
{
    return static_cast<int>(UnitB(radius));
}

DigitCells::DigitCells(const QSize &strip)
    : width(strip.width() / 10), height(strip.height()), half(strip.width() / 20)
{ }

QVector<Numeral> Numerals(int hourScale, double radius, const DigitCells &cells)
{
    if (hourScale != TwelveNumerals && hourScale != FourNumerals)
        return {};
    const double a = UnitA(radius);
    const double outer = radius - 3 * a;
    const int middle = -(cells.height / 2);
    QVector<Numeral> numerals = {
        {12, QPoint(-cells.width, static_cast<int>(-outer))},
        {6, QPoint(-cells.half, static_cast<int>(outer - cells.height))},
        {3, QPoint(static_cast<int>(outer - cells.width), middle)},
        {9, QPoint(static_cast<int>(-outer), middle)},
    };
    if (hourScale == FourNumerals)
        return numerals;

    const double inner = radius - 5 * a;
    const double far = 0.8660254037844386 * inner; // cosine of 30 degrees
    const double near = 0.5 * inner;
    const struct
    {
        int number;
        double x;
        double y;
    } between[] = {
        {1, near, -far}, {2, far, -near}, {4, far, near},    {5, near, far},
        {7, -near, far}, {8, -far, near}, {10, -far, -near}, {11, -near, -far},
    };
    for (const auto &place : between) {
        const QPoint topLeft(static_cast<int>(place.x - cells.half),
                             static_cast<int>(place.y - cells.height / 2));
        numerals.append({place.number, topLeft});
    }
    return numerals;
}

namespace {

// The proportions of one hand, in units of a = radius / 27.
struct HandFactors
{
    double bar;       // length of the bar, in units of 23 a
    double shaft;     // scale of the arrow's shaft, tail and point
    double head;      // where the arrow head begins, in units of 23 a
    double halfWidth; // of the arrow's widening
    double ringRadius;
    double ringCentre;  // distance below the centre of the dial
    bool ringTruncated; // whether the ring is centred on a whole pixel
};

// clang-format off
constexpr HandFactors kHandTable[] = {
    {0.5,  0.5,  0.25, 1.5, 1.0,  3.0,  true},
    {0.75, 0.75, 0.5,  1.5, 0.75, 3.75, true},
    {1.0,  1.0,  1.0,  1.0, 0.5,  4.5,  false},
};
// clang-format on

QPolygonF BarOutline(const HandFactors &row, double a)
{
    const double tip = -row.bar * 23 * a;
    return QPolygonF({{-a, 0}, {a, 0}, {a, tip}, {-a, tip}});
}

// From the left of the widening down the shaft, round the tail, up the right side and over the
// head.
QPolygonF ArrowOutline(const HandFactors &row, double a)
{
    const double k = row.shaft;
    const double wide = row.halfWidth * a;
    const double head = -row.head * 23 * a;
    return QPolygonF({{-wide, -k * 7.5 * a},
                      {-a / 2, -k * 3 * a},
                      {-a / 2, k * 4 * a},
                      {a / 2, k * 4 * a},
                      {a / 2, -k * 3 * a},
                      {wide, -k * 7.5 * a},
                      {a / 4, head},
                      {a, head},
                      {0, -k * 25 * a},
                      {-a, head},
                      {-a / 4, head}});
}

Ring RingOf(const HandFactors &row, double a)
{
    const double y = row.ringCentre * a;
    Ring ring;
    ring.centre = QPointF(0, row.ringTruncated ? static_cast<int>(y) : y);
    ring.radius = row.ringRadius * a;
    ring.penWidth = static_cast<int>(a / 2);
    return ring;
}

} // namespace

HandShape ShapeOf(Hand hand, int type, double radius)
{
    const HandFactors &row = kHandTable[static_cast<int>(hand)];
    const double a = UnitA(radius);
    HandShape shape;
    if (type == BarHand) {
        shape.outline = BarOutline(row, a);
    } else if (type == ArrowHand) {
        shape.outline = ArrowOutline(row, a);
        shape.ring = RingOf(row, a);
    }
    return shape;
}

double HandAngle(Hand hand, int hour, int minute, int second)
{
    switch (hand) {
    case Hand::Hour:
        return (hour + minute / 60.0 + second / 3600.0) * 30;
    case Hand::Minute:
        return (minute + second / 60) * 6; // whole minutes
    case Hand::Second:
        return second * 6;
    }
    return 0;
}

QRect CentreCap(double radius, bool anyArrow)
{
    const double a = UnitA(radius);
    const int r = anyArrow ? static_cast<int>(a) : static_cast<int>(2 * a);
    return SquareFromCorners(-r, -r, r - 1, r - 1);
}

QPoint BadgePlace(const QSize &area, const QSize &badge)
{
    return QPoint(area.width() / 2 - badge.width() / 2, area.height() / 8 * 3 - badge.height() / 2);
}

HandTriangles TrianglesFor(int size)
{
    const bool small = size < 64;
    const int w = small ? 2 : size / 30;
    const int half = small ? size / 2 - 4 : size / 2;
    const auto triangle = [w, half](double length) {
        const int tip = static_cast<int>(-half * length);
        return std::array<QPoint, 3> {QPoint(w, w), QPoint(-w, w + 1), QPoint(0, tip)};
    };
    return {triangle(0.5), triangle(0.7), triangle(0.9)};
}

} // namespace Lw::HNodeClock
