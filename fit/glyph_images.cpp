#include "glyph_images.h"

#include "clock_parts.h"

#include "compose/element_layout.h"
#include "display/analog_geometry.h"
#include "glyph/glyph_check.h"
#include "glyph/glyph_picture.h"
#include "image_bounds.h"
#include "whole_text.h"

#include <QPainter>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

bool BelongsTo(GlyphFont font, bool isDigital)
{
    if (font == GlyphFont::Time)
        return isDigital;
    return !isDigital || (font != GlyphFont::HourScale && font != GlyphFont::AmPm);
}

bool ShowsNumerals(HClockNode &node)
{
    const int scale = NumberOf(node, Attribute::HourScaleType);
    return scale == TwelveNumerals || scale == FourNumerals;
}

// Whether the elements of a font are shown, or take part in the layout.
bool IsShown(HClockNode &node, GlyphFont font)
{
    const bool isDigital = node.ClockType() == DigitalClock;
    const auto flag = [&](Attribute analog, Attribute digital) {
        return NumberOf(node, isDigital ? digital : analog) != 0;
    };
    switch (font) {
    case GlyphFont::TopText:
        return flag(Attribute::Analog_TopTexy_d, Attribute::Digital_TopTexy_d);
    case GlyphFont::Week:
        return flag(Attribute::Analog_Week_d, Attribute::Digital_Week_d);
    case GlyphFont::Lunar:
        return flag(Attribute::Analog_Lunar_d, Attribute::Digital_Lunar_d);
    case GlyphFont::Date:
        return flag(Attribute::Analog_Date_d, Attribute::Digital_Date_d);
    case GlyphFont::HourScale:
        return !isDigital && ShowsNumerals(node);
    case GlyphFont::AmPm:
        return !isDigital && NumberOf(node, Attribute::Analog_AMPM_d) == 1;
    case GlyphFont::Time:
        return isDigital && NumberOf(node, Attribute::Digital_Time_d) != 0;
    }
    return false;
}

bool IsNeeded(HClockNode &node, Glyph glyph)
{
    if (!IsShown(node, RowOf(glyph).font))
        return false;
    if (glyph != Glyph::EnMonth)
        return true;
    const bool isDigital = node.ClockType() == DigitalClock;
    const int type =
        NumberOf(node, isDigital ? Attribute::DigitalDateType : Attribute::AnalogDateType);
    return type == DateNamedMonthDayYear || type == DateDayNamedMonthYear;
}

int CellsOf(Glyph glyph)
{
    switch (glyph) {
    case Glyph::Lunar:
        return kLunarCells;
    case Glyph::DateCh:
    case Glyph::TimeCh:
        return kLabelCells;
    case Glyph::DateChar:
        return kSeparatorCells;
    default:
        return RowOf(glyph).shape == GlyphShape::DigitStrip ? kDigitCells : 1;
    }
}

} // namespace

FontSizes SizesOf(HClockNode &node)
{
    FontSizes sizes = {};
    const int clockType = node.ClockType();
    for (int font = 0; font < kGlyphFontCount; ++font) {
        const auto which = static_cast<GlyphFont>(font);
        if (BelongsTo(which, clockType == DigitalClock))
            sizes[static_cast<std::size_t>(font)] =
                NumberOf(node, FontAttributes(which, clockType).size);
    }
    return sizes;
}

GlyphSource GlyphImages::SourceFor(HClockNode &node, const FontSizes &sizes)
{
    return [this, &node, sizes](Glyph glyph, int number) {
        if (!IsNeeded(node, glyph))
            return GlyphStrip();
        const GlyphRow &row = RowOf(glyph);
        const QString family =
            node.GetAttribute(Key(FontAttributes(row.font, node.ClockType()).family));
        const int points = sizes[static_cast<std::size_t>(row.font)];
        return Draw(family, points, GlyphText({&row, number}, TopTextOf(node)), CellsOf(glyph));
    };
}

GlyphStrip GlyphImages::Draw(const QString &family, int points, const QString &text, int cells)
{
    const QString key = QStringLiteral("%1\n%2\n%3\n%4").arg(cells).arg(points).arg(family, text);
    const auto known = m_strips.constFind(key);
    if (known != m_strips.constEnd())
        return *known;
    GlyphStrip &strip = m_strips[key];
    if (text.isEmpty() || points > kLargestFontSize)
        return strip;
    const QFont font = GlyphTypeface(family, points);
    const QFontMetrics metrics(font);
    const bool isDigits = cells == kDigitCells;
    QPixmap picture =
        EmptyPicture(font, isDigits ? cells * WidestDigit(metrics) : GlyphTextWidth(metrics, text));
    if (picture.isNull())
        return strip;
    QPainter painter;
    if (isDigits)
        BeginDigits(painter, picture, font, Qt::white);
    else
        BeginText(painter, picture, font, Qt::white, text);
    painter.end();
    strip = GlyphStrip(picture.toImage());
    m_drawn.insert(strip.Key(),
                   {text, text.size() == cells ? cells : 1, family, points, picture.size(), {}});
    return strip;
}

bool GlyphImages::LacksImages(HClockNode &node, const FontSizes &sizes, GlyphFont font)
{
    const GlyphSource source = SourceFor(node, sizes);
    for (const GlyphImage &image :
         Lw::HNodeClock::GlyphImages(GlyphOrder::Generation, node.ClockType())) {
        const GlyphRow &row = *image.row;
        if (row.font != font || !IsNeeded(node, row.glyph))
            continue;
        const bool hasText = !GlyphText(image, TopTextOf(node)).isEmpty();
        if (hasText && source(row.glyph, image.number).IsNull())
            return true;
    }
    return false;
}

QString GlyphImages::TextOf(const Element &element) const
{
    QString text;
    int end = 0;
    for (int i = 0; i < element.Count(); ++i) {
        const Piece &piece = element.At(i);
        if (piece.x > end)
            text += QLatin1Char(' ');
        end = piece.x + piece.width;
        text += TextOf(piece);
    }
    return text;
}

QString GlyphImages::TextOf(const Piece &piece) const
{
    const Drawn drawn = m_drawn.value(piece.stripKey);
    const int cell = drawn.CellWidth();
    if (drawn.cells == 1 || cell == 0)
        return drawn.text;
    return drawn.text.mid(piece.sourceX / cell, qMax(1, piece.width / cell));
}

QRect GlyphImages::WholeInk(const Piece &piece)
{
    const auto known = m_drawn.find(piece.stripKey);
    if (known == m_drawn.end())
        return {};
    Drawn &drawn = *known;
    if (drawn.inks.isEmpty())
        drawn.inks = InkOfCells(GlyphTypeface(drawn.family, drawn.points), drawn.size, drawn.text,
                                drawn.cells);
    const int cell = qMax(1, drawn.CellWidth());
    const int first = piece.sourceX / cell;
    const int count = qMax(1, piece.width / cell);
    QRect ink;
    for (int i = first; i < qMin(first + count, drawn.inks.size()); ++i)
        ink |= drawn.inks[i];
    return ink;
}

} // namespace ClockFit
