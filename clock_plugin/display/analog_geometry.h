// display/: the shapes of an analog clock as points and boxes, computed from the size of its area
// alone.
//
// All coordinates but those of Centre() and BadgePlace() are pixels relative to the centre of the
// area, y growing downwards: 12 o'clock is up, at negative y. Marks and hands point up; the
// painting code rotates them into place. Truncation of coordinates toward zero is intended.
//
// Every measure is a multiple of a = R / 27 or of b = R / 90, R being the radius.
#pragma once

#include <QLineF>
#include <QPoint>
#include <QPointF>
#include <QPolygonF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QVector>

#include <array>

namespace Lw::HNodeClock {

/// Half of the smaller side in pixels: exact for the dial, rounded down for the hands.
double DialRadius(const QSize &area);
double HandRadius(const QSize &area);
/// The point on which dial and hands are centred, from the area's top left.
QPoint Centre(const QSize &area);

// Marks.

/// The values of HourScaleType. Every other value has no marks.
enum HourScale { HourLines, HourDots, HourSquares, TwelveNumerals, FourNumerals };
/// The values of MinuteScaleType. Every other value has no marks.
enum MinuteScale { MinuteDots, MinuteSquares, MinuteLines };

/// One mark at 12 o'clock; only the member of its shape is set. Dots and squares are filled and
/// outlined by the pen of the marks.
struct Mark
{
    enum Shape { None, Line, Dot, Square };

    Shape shape = None;
    QLineF line;
    QRectF dot;
    QRect square;
};

/// Small dials, up to a radius of 100 pixels, have longer lines, larger dots and squares of fixed
/// size.
Mark HourMark(int scale, double radius);
/// Dials with a radius of up to 40 pixels have no minute marks.
Mark MinuteMark(int scale, double radius);
/// Width of the pen of all marks; 0 is the thinnest line of one pixel.
int MarkPenWidth(double radius);

// Numerals.

/// How the strip of ten digits is cut.
struct DigitCells
{
    explicit DigitCells(const QSize &strip);

    int width;  ///< of one digit
    int height; ///< of the strip
    int half;   ///< half a digit's width, by which a single digit is shifted left to be centred
};

struct Numeral
{
    int number;     ///< 1 to 12
    QPoint topLeft; ///< of its picture
};

/// The numerals of a dial: twelve, or 12, 3, 6 and 9 only, or none, by the hour scale. "10" and
/// "11" are offset by half a digit like single digits, so they are too far to the right.
QVector<Numeral> Numerals(int hourScale, double radius, const DigitCells &cells);

// Hands.

enum class Hand { Hour, Minute, Second };

/// The values of HourRectType, MinuteRectType and SecondRectType. Every other value draws nothing.
enum HandType { BarHand, ArrowHand };

/// The ring on the tail of an arrow, not filled.
struct Ring
{
    QPointF centre;
    double radius = 0;
    int penWidth = 0; ///< 0 is the thinnest line of one pixel
};

/// One hand pointing to 12. Bars have no ring: its radius is 0.
struct HandShape
{
    QPolygonF outline;
    Ring ring;
};

HandShape ShapeOf(Hand hand, int type, double radius);

/// Degrees clockwise from 12. The minute hand jumps once a minute; the hour hand moves smoothly.
double HandAngle(Hand hand, int hour, int minute, int second);

/// The box of the disc over the hands; empty on the smallest dials.
QRect CentreCap(double radius, bool anyArrow);

// AM/PM badge and classic hands.

/// Top left corner of the AM/PM badge within the area: centred, at three eighths of the height.
QPoint BadgePlace(const QSize &area, const QSize &badge);

/// The classic hands as triangles: two points beside the centre, and the tip.
struct HandTriangles
{
    std::array<QPoint, 3> hour;
    std::array<QPoint, 3> minute;
    std::array<QPoint, 3> second;
};

/// The triangles for a dial `size` pixels across.
HandTriangles TrianglesFor(int size);

} // namespace Lw::HNodeClock
