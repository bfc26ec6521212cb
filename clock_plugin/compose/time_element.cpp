// compose/: composes the time of a digital clock, with or without seconds and AM/PM mark.
#include "compose/element_layout.h"
#include "glyph/glyph_set.h"

namespace Lw::HNodeClock {

namespace {

enum class Part { Hour, Minute, Second, Separator, Label0, Label1, Label2 };

struct TimeFormat
{
    std::array<Part, 6> parts;
    int count;
};

// clang-format off
constexpr TimeFormat kTimeFormats[] = {
    /* 0 */ {{Part::Hour, Part::Separator, Part::Minute, Part::Separator, Part::Second}, 5},
    /* 1 */ {{Part::Hour, Part::Separator, Part::Minute}, 3},
    /* 2 */ {{Part::Hour, Part::Label0, Part::Minute, Part::Label1, Part::Second, Part::Label2}, 6},
    /* 3 */ {{Part::Hour, Part::Label0, Part::Minute, Part::Label1}, 4},
    /* 4 */ {{Part::Hour, Part::Separator, Part::Minute}, 3},
};
constexpr TimeFormat kFormatAboveRange = {{Part::Hour, Part::Label0, Part::Minute, Part::Second}, 4};
constexpr TimeFormat kFormatBelowRange = {{Part::Hour, Part::Separator, Part::Minute, Part::Second}, 4};
// clang-format on

const TimeFormat &FormatOf(int timeType)
{
    if (timeType < TimeToSecond)
        return kFormatBelowRange;
    return timeType > TimeShortHour ? kFormatAboveRange : kTimeFormats[timeType];
}

class TimeWriter
{
public:
    TimeWriter(const ClockGlyphs &glyphs, int timeType, int hour, int minute, int second)
        : m_glyphs(glyphs), m_timeType(timeType), m_hour(hour), m_minute(minute), m_second(second),
          m_digit(glyphs.timeNumber.Width() / kDigitCells),
          m_label(glyphs.timeCh.Width() / kLabelCells)
    { }

    // Codes outside the list reserve the width of two separators. Those above it use part of that
    // for their label, so that the end of their seconds may be cut off.
    long long Width() const
    {
        const long long digit = m_digit;
        const long long separator = m_glyphs.timeChar.Width();
        switch (m_timeType) {
        case TimeToMinute:
            return 4 * digit + separator;
        case TimeLabelled:
            return 6 * digit + m_glyphs.timeCh.Width();
        case TimeLabelledToMinute:
            return 4 * digit + 2LL * m_label;
        case TimeShortHour:
            return (HasShortHour() ? 3 : 4) * digit + separator;
        default:
            return 6 * digit + 2 * separator;
        }
    }

    void Write(Element &element, Part part) const
    {
        switch (part) {
        case Part::Hour:
            if (!HasShortHour())
                WriteDigit(element, m_hour / 10);
            WriteDigit(element, m_hour % 10);
            break;
        case Part::Minute:
            WriteTwoDigits(element, m_minute);
            break;
        case Part::Second:
            WriteTwoDigits(element, m_second);
            break;
        case Part::Separator:
            element.Add(m_glyphs.timeChar, 0, m_glyphs.timeChar.Width());
            break;
        case Part::Label0:
        case Part::Label1:
        case Part::Label2:
            element.AddCell(m_glyphs.timeCh, m_label,
                            static_cast<int>(part) - static_cast<int>(Part::Label0));
            break;
        }
    }

private:
    bool HasShortHour() const { return m_timeType == TimeShortHour && m_hour < 10; }
    void WriteDigit(Element &element, int digit) const
    {
        element.AddCell(m_glyphs.timeNumber, m_digit, digit);
    }
    void WriteTwoDigits(Element &element, int number) const
    {
        WriteDigit(element, number / 10);
        WriteDigit(element, number % 10);
    }

    const ClockGlyphs &m_glyphs;
    int m_timeType;
    int m_hour;
    int m_minute;
    int m_second;
    int m_digit; ///< width of a digit cell
    int m_label; ///< width of a label cell
};

} // namespace

Element TimeElement(const ClockGlyphs &glyphs, int timeType, int hour, int minute, int second,
                    const GlyphStrip &mark)
{
    const TimeWriter writer(glyphs, timeType, hour, minute, second);
    const long long width = writer.Width();
    // The canvas is as high as the label strip. A time without digits and separators has no canvas,
    // so its mark is not drawn either.
    Element element(width + mark.Width(), width > 0 ? glyphs.timeCh.Height() : 0);
    const TimeFormat &format = FormatOf(timeType);
    for (int i = 0; i < format.count; ++i)
        writer.Write(element, format.parts[static_cast<std::size_t>(i)]);
    element.ContinueAt(width);
    element.Add(mark, 0, mark.Width());
    return element;
}

} // namespace Lw::HNodeClock
