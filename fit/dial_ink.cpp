#include "dial_ink.h"

#include "clock_parts.h"

#include "display/analog_painting.h"
#include "image_bounds.h"

#include "happconfig.h"
#include "key_colour.h"

#include <QPainter>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

const QColor kInk(Qt::white);
constexpr int kNoMarks = -1;
// Pixels around the area: the pen of the marks may reach beyond the radius.
constexpr int kMargin = 2;

// The canvas: the area plus the space that the numerals need around it.
QRect CanvasOf(const QSize &area, int scale, const QSize &strip)
{
    QRect canvas = QRect(QPoint(0, 0), area).adjusted(-kMargin, -kMargin, kMargin, kMargin);
    const DigitCells cells(strip);
    for (const Numeral &numeral : Numerals(scale, DialRadius(area), cells))
        canvas |= QRect(numeral.topLeft + Centre(area), QSize(2 * cells.width, cells.height));
    return canvas;
}

class DialPainter
{
public:
    DialPainter(const QSize &area, const QRect &canvas) : m_area(area), m_canvas(canvas) { }

    // The ink of what paint(painter, radius) paints around the centre; the boxes behind numerals do
    // not count.
    template<typename Paint>
    InkMask InkOf(Paint paint) const
    {
        return InkMask(Painted(m_canvas, paint), m_canvas.topLeft(), kInk.rgba());
    }

    // Moving rotated marks changes their rounding: within the area they are painted at their real
    // position, and only what is beyond its edges is taken from a moved painting. What numerals and
    // their boxes hide is left out.
    template<typename PaintHiding>
    InkMask Marks(int hourScale, int minuteScale, PaintHiding hide) const
    {
        const auto paint = [&](QPainter &painter, double radius) {
            PaintMarks(painter, radius, {hourScale, minuteScale, kInk, kInk});
            painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
            hide(painter, radius);
        };
        QImage moved = Painted(m_canvas, paint);
        Clear(moved, QRect(-m_canvas.topLeft(), m_area));
        InkMask ink = InkMask::OfPicture(moved, m_canvas.topLeft());
        ink.Unite(InkMask::OfPicture(Painted(QRect(QPoint(0, 0), m_area), paint), QPoint(0, 0)));
        return ink;
    }

private:
    template<typename Paint>
    QImage Painted(const QRect &canvas, Paint paint) const
    {
        QImage image(canvas.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.translate(Centre(m_area) - canvas.topLeft());
        paint(painter, DialRadius(m_area));
        return image;
    }

    static void Clear(QImage &image, const QRect &box)
    {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(box, Qt::transparent);
    }

    const QSize m_area;
    const QRect m_canvas;
};

// The ink pixels of all numerals; where numerals overlap, those of each count.
int InkOfNumerals(int scale, double radius, const GlyphStrip &strip)
{
    const DigitCells cells(strip.Size());
    const auto inkOf = [&](int digit) {
        Element cell(cells.width, cells.height);
        cell.AddCell(strip, cells.width, digit);
        return InkMask(cell, QPoint(0, 0)).Count();
    };
    int ink = 0;
    for (const Numeral &numeral : Numerals(scale, radius, cells))
        ink += inkOf(numeral.number % 10) + (numeral.number >= 10 ? inkOf(1) : 0);
    return ink;
}

InkMask BadgeInk(const QSize &area, const GlyphStrip &badge)
{
    return InkMask(Element(badge), BadgePlace(area, badge.Size()));
}

} // namespace

InkMask DialInk::Under(bool isMorning) const
{
    InkMask all = hourMarks;
    for (const InkMask *part : {&minuteMarks, &numerals, isMorning ? &morning : &afternoon})
        all.Unite(*part);
    return all;
}

DialInk DialInkOf(HClockNode &node, const GlyphSource &source)
{
    DialInk ink;
    if (node.ClockType() != AnalogClock)
        return ink;
    const QSize area = node.Size();
    const int scale = NumberOf(node, Attribute::HourScaleType);
    ink.digits = source(Glyph::HourhandNumber, 0);
    const GlyphStrip &digits = ink.digits;
    const QRect canvas = CanvasOf(area, scale, digits.Size());
    if (NumberOf(node, Attribute::Analog_AMPM_d) == 1) {
        ink.morningBadge = source(Glyph::AnalogAM, 0);
        ink.afternoonBadge = source(Glyph::AnalogPM, 0);
        ink.morning = BadgeInk(area, ink.morningBadge);
        ink.afternoon = BadgeInk(area, ink.afternoonBadge);
    }
    ink.isDrawn = WithinBounds(canvas.size(), kFrameBytes);
    if (!ink.isDrawn)
        return ink;
    const DialPainter dial(area, canvas);
    const auto paintNumerals = [&](QPainter &painter, double radius) {
        if (!digits.IsNull())
            PaintNumerals(painter, scale, radius, digits.Pixmap(),
                          Lw::HAppConfig::IntToColor(Lw::kKeyColour));
    };
    ink.hourMarks = dial.Marks(scale, kNoMarks, paintNumerals);
    ink.minuteMarks =
        dial.Marks(kNoMarks, NumberOf(node, Attribute::MinuteScaleType), paintNumerals);
    if (digits.IsNull())
        return ink;
    ink.numerals = dial.InkOf(paintNumerals);
    ink.coveredNumerals = InkOfNumerals(scale, DialRadius(area), digits) - ink.numerals.Count();
    return ink;
}

} // namespace ClockFit
