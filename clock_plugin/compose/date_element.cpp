// compose/: lays out dates: pieces, their order and the width of the canvas.
#include "clock_attributes.h"
#include "compose/element_layout.h"
#include "glyph/glyph_set.h"

#include <iterator>

namespace Lw::HNodeClock {

namespace {

// The parts a date format is composed of.
enum class Part { Year, Month, MonthName, Day, Separator, Minus, Space, Label0, Label1, Label2 };

/// Which parts determine the canvas width of a date.
enum class Canvas { Separators, MonthName, Labels, LabelsWithoutYear };

struct DateFormat
{
    Canvas canvas;
    std::array<Part, 6> parts;
    int count;
};

// clang-format off
constexpr DateFormat kDateFormats[] = {
    /* 0 */ {Canvas::Separators, {Part::Year, Part::Separator, Part::Month, Part::Separator, Part::Day}, 5},
    /* 1 */ {Canvas::Separators, {Part::Month, Part::Separator, Part::Day, Part::Separator, Part::Year}, 5},
    /* 2 */ {Canvas::Separators, {Part::Day, Part::Separator, Part::Month, Part::Separator, Part::Year}, 5},
    /* 3 */ {Canvas::MonthName, {Part::MonthName, Part::Space, Part::Day, Part::Year}, 4},
    /* 4 */ {Canvas::MonthName, {Part::Day, Part::Space, Part::MonthName, Part::Year}, 4},
    /* 5 */ {Canvas::Labels, {Part::Year, Part::Label0, Part::Month, Part::Label1, Part::Day, Part::Label2}, 6},
    /* 6 */ {Canvas::LabelsWithoutYear, {Part::Month, Part::Label1, Part::Day, Part::Label2}, 4},
    /* 7 */ {Canvas::Separators, {Part::Year, Part::Separator, Part::Month, Part::Separator, Part::Day}, 5},
    /* 8 */ {Canvas::Separators, {Part::Year, Part::Minus, Part::Month, Part::Minus, Part::Day}, 5},
};
// clang-format on
static_assert(std::size(kDateFormats) == std::size(CodeNames::kDates), "each format has a name");

class DateWriter
{
public:
    DateWriter(const ClockGlyphs &glyphs, int year, int month, int day)
        : m_glyphs(glyphs), m_year(year), m_month(month), m_day(day),
          m_digit(glyphs.dateNumber.Width() / kDigitCells),
          m_label(glyphs.dateCh.Width() / kLabelCells)
    { }

    // Formats with separators reserve the width of the whole comma-and-slash image for their two
    // separators, even if hyphens are drawn instead; those with a month name reserve half of it and
    // a second space, which remain empty at the right.
    long long CanvasWidth(Canvas canvas) const
    {
        const long long digits = 4LL * m_digit + 2LL * m_digit;
        switch (canvas) {
        case Canvas::MonthName:
            return digits + MonthName().Width() + m_glyphs.dateChar.Width() / 2
                + 2LL * m_glyphs.space.Width();
        case Canvas::Labels:
            return digits + 2LL * m_digit + 3LL * m_label;
        case Canvas::LabelsWithoutYear:
            return 4LL * m_digit + 2LL * m_label;
        case Canvas::Separators:
            break;
        }
        return digits + 2LL * m_digit + m_glyphs.dateChar.Width();
    }

    void Write(Element &element, Part part) const
    {
        switch (part) {
        case Part::Year:
            WriteDigit(element, m_year / 1000);
            WriteDigit(element, m_year % 1000 / 100);
            WriteTwoDigits(element, m_year % 100);
            break;
        case Part::Month:
            WriteTwoDigits(element, m_month);
            break;
        case Part::MonthName:
            element.Add(MonthName(), 0, MonthName().Width());
            break;
        case Part::Day:
            WriteTwoDigits(element, m_day);
            break;
        case Part::Separator:
            element.AddCell(m_glyphs.dateChar, m_glyphs.dateChar.Width() / kSeparatorCells, 1);
            break;
        case Part::Minus:
            element.Add(m_glyphs.minus, 0, m_glyphs.minus.Width());
            break;
        case Part::Space:
            element.Skip(m_glyphs.space.Width());
            break;
        case Part::Label0:
        case Part::Label1:
        case Part::Label2:
            element.AddCell(m_glyphs.dateCh, m_label,
                            static_cast<int>(part) - static_cast<int>(Part::Label0));
            break;
        }
    }

private:
    const GlyphStrip &MonthName() const
    {
        static const GlyphStrip none;
        const bool known = m_month >= 0 && m_month < m_glyphs.months.size();
        return known ? m_glyphs.months.at(m_month) : none;
    }
    void WriteDigit(Element &element, int digit) const
    {
        element.AddCell(m_glyphs.dateNumber, m_digit, digit <= 9 ? digit : -1);
    }
    void WriteTwoDigits(Element &element, int number) const
    {
        WriteDigit(element, number / 10);
        WriteDigit(element, number % 10);
    }

    const ClockGlyphs &m_glyphs;
    int m_year;
    int m_month;
    int m_day;
    int m_digit; ///< width of a digit cell
    int m_label; ///< width of a label cell
};

} // namespace

Element DateElement(const ClockGlyphs &glyphs, int dateType, int year, int month, int day)
{
    if (dateType < 0 || dateType >= static_cast<int>(std::size(kDateFormats)))
        return Element();
    const DateFormat &format = kDateFormats[dateType];
    const DateWriter writer(glyphs, year, month, day);
    Element element(writer.CanvasWidth(format.canvas), glyphs.dateCh.Height());
    for (int i = 0; i < format.count; ++i)
        writer.Write(element, format.parts[static_cast<std::size_t>(i)]);
    return element;
}

} // namespace Lw::HNodeClock
