#include "compose/element_layout.h"

namespace Lw::HNodeClock {

namespace {

// The parts of a date, in the units that an order is written in.
enum class Part { Year, Month, MonthName, Day, Separator, Minus, Space, Label0, Label1, Label2 };

struct DateFormat
{
    std::array<Part, 6> parts;
    int count;
};

// clang-format off
constexpr DateFormat kDateFormats[] = {
    /* 0 */ {{Part::Year, Part::Separator, Part::Month, Part::Separator, Part::Day}, 5},
    /* 1 */ {{Part::Month, Part::Separator, Part::Day, Part::Separator, Part::Year}, 5},
    /* 2 */ {{Part::Day, Part::Separator, Part::Month, Part::Separator, Part::Year}, 5},
    /* 3 */ {{Part::MonthName, Part::Space, Part::Day, Part::Year}, 4},
    /* 4 */ {{Part::Day, Part::Space, Part::MonthName, Part::Year}, 4},
    /* 5 */ {{Part::Year, Part::Label0, Part::Month, Part::Label1, Part::Day, Part::Label2}, 6},
    /* 6 */ {{Part::Month, Part::Label1, Part::Day, Part::Label2}, 4},
    /* 7 */ {{Part::Year, Part::Separator, Part::Month, Part::Separator, Part::Day}, 5},
    /* 8 */ {{Part::Year, Part::Minus, Part::Month, Part::Minus, Part::Day}, 5},
};
// clang-format on

class DateWriter
{
public:
    DateWriter(const ClockGlyphs &glyphs, int year, int month, int day)
        : m_glyphs(glyphs), m_year(year), m_month(month), m_day(day),
          m_digit(glyphs.dateNumber.width() / 10), m_label(glyphs.dateCh.width() / 3)
    { }

    // Formats with separators reserve the whole comma-and-slash image for their two separators,
    // also where the minus is drawn instead; those with a month's name reserve half of it and a
    // second blank, which stay empty at the right.
    long long CanvasWidth(int dateType) const
    {
        const long long digits = 4LL * m_digit + 2LL * m_digit;
        switch (dateType) {
        case DateNamedMonthDayYear:
        case DateDayNamedMonthYear:
            return digits + MonthName().width() + m_glyphs.dateChar.width() / 2
                + 2LL * m_glyphs.space.width();
        case DateLabelled:
            return digits + 2LL * m_digit + 3LL * m_label;
        case DateLabelledMonthDay:
            return 4LL * m_digit + 2LL * m_label;
        default:
            return digits + 2LL * m_digit + m_glyphs.dateChar.width();
        }
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
            element.Add(MonthName(), 0, MonthName().width());
            break;
        case Part::Day:
            WriteTwoDigits(element, m_day);
            break;
        case Part::Separator:
            element.AddCell(m_glyphs.dateChar, m_glyphs.dateChar.width() / 2, 1);
            break;
        case Part::Minus:
            element.Add(m_glyphs.minus, 0, m_glyphs.minus.width());
            break;
        case Part::Space:
            element.Skip(m_glyphs.space.width());
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
    const QPixmap &MonthName() const
    {
        static const QPixmap none;
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
    if (dateType < DateYearMonthDay || dateType > DateWithMinus)
        return Element();
    const DateWriter writer(glyphs, year, month, day);
    Element element(writer.CanvasWidth(dateType), glyphs.dateCh.height());
    const DateFormat &format = kDateFormats[dateType];
    for (int i = 0; i < format.count; ++i)
        writer.Write(element, format.parts[static_cast<std::size_t>(i)]);
    return element;
}

namespace {

bool HasShortHour(int timeType, int hour)
{
    return timeType == TimeShortHour && hour > -10 && hour < 10;
}

// The hours and minutes format with labels leaves no room for the seconds that are drawn after it:
// they are cut off.
long long TimeWidth(const ClockGlyphs &glyphs, int timeType, int hour)
{
    const long long digit = glyphs.timeNumber.width() / 10;
    const long long separator = glyphs.timeChar.width();
    switch (timeType) {
    case TimeToMinute:
        return 4 * digit + separator;
    case TimeLabelled:
        return 6 * digit + glyphs.timeCh.width();
    case TimeLabelledToMinute:
        return 4 * digit + 2 * (glyphs.timeCh.width() / 3);
    case TimeShortHour:
        return (HasShortHour(timeType, hour) ? 3 : 4) * digit + separator;
    default:
        return 6 * digit + 2 * separator;
    }
}

} // namespace

Element TimeElement(const ClockGlyphs &glyphs, int timeType, int hour, int minute, int second,
                    const QPixmap &mark)
{
    const int digit = glyphs.timeNumber.width() / 10;
    const int label = glyphs.timeCh.width() / 3;
    const bool labelled = timeType == TimeLabelled || timeType == TimeLabelledToMinute;
    const bool separated =
        timeType == TimeToSecond || timeType == TimeToMinute || timeType == TimeShortHour;
    const long long width = TimeWidth(glyphs, timeType, hour);
    Element element(width + mark.width(), glyphs.timeCh.height());
    const auto add = [&](int number) { element.AddCell(glyphs.timeNumber, digit, number); };
    const auto addSeparator = [&] { element.Add(glyphs.timeChar, 0, glyphs.timeChar.width()); };

    if (!HasShortHour(timeType, hour))
        add(hour / 10);
    add(hour % 10);
    if (separated)
        addSeparator();
    else
        element.AddCell(glyphs.timeCh, label, 0);
    add(minute / 10);
    add(minute % 10);
    if (timeType != TimeToMinute && timeType != TimeShortHour) {
        if (labelled)
            element.AddCell(glyphs.timeCh, label, 1);
        else if (timeType == TimeToSecond)
            addSeparator();
        if (timeType != TimeLabelledToMinute) {
            add(second / 10);
            add(second % 10);
        }
        if (timeType == TimeLabelled)
            element.AddCell(glyphs.timeCh, label, 2);
    }
    element.StandAt(width);
    element.Add(mark, 0, mark.width());
    return element;
}

namespace {

// Cells of the lunar strip. Numeral n is cell n - 1, for n from one to ten.
constexpr int kLunarCells = 17;
constexpr int kLeadWord = 10; ///< two cells
constexpr int kMonthWord = 13;
constexpr int kEarlyDay = 15; ///< before days 1 to 10
constexpr int kFirstMonth = 16;

constexpr int Numeral(int number)
{
    return number - 1;
}

} // namespace

Element LunarElement(const QPixmap &strip, int month, int day)
{
    if (month < 1 || month > 12 || day < 1 || day > 30)
        return Element();
    const int cell = strip.width() / kLunarCells;
    const int monthCells = month > 10 ? 5 : 4;
    const int dayCells = day > 20 && day < 30 ? 3 : 2;
    Element element(static_cast<long long>(cell) * (monthCells + dayCells), strip.height());
    const auto add = [&](int index) { element.AddCell(strip, cell, index); };

    element.Add(strip, kLeadWord * cell, 2 * cell);
    if (month > 10)
        add(Numeral(10));
    add(month == 1 ? kFirstMonth : Numeral(month > 10 ? month % 10 : month));
    add(kMonthWord);

    if (day > 20) {
        add(Numeral(day / 10));
        add(Numeral(10));
        if (day != 30)
            add(Numeral(day % 10));
    } else if (day == 20) {
        add(Numeral(2));
        add(Numeral(10));
    } else {
        add(day > 10 ? Numeral(10) : kEarlyDay);
        add(Numeral(day > 10 ? day % 10 : day));
    }
    return element;
}

} // namespace Lw::HNodeClock
