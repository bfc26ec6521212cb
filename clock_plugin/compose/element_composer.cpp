#include "compose/element_composer.h"

#include "calendar/lunar_calendar.h"
#include "compose/element_layout.h"
#include "glyph/glyph_set.h"

#include <QPainter>

#include <cstdlib>
#include <cstring>

namespace Lw::HNodeClock {

namespace {

QPixmap Drawn(const Element &element)
{
    if (element.Size().isEmpty())
        return QPixmap();
    QPixmap pixmap(element.Size());
    pixmap.fill(Qt::transparent);
    // A pixmap that is handed on while it is painted on would be copied: the painter ends first.
    {
        QPainter painter(&pixmap);
        for (int i = 0; i < element.Count(); ++i) {
            const Piece &piece = element.At(i);
            painter.drawPixmap(piece.x, 0, *piece.strip, piece.sourceX, 0, piece.width,
                               piece.strip->height());
        }
    }
    return pixmap;
}

} // namespace

ElementComposer::ReadingScope::ReadingScope(ElementComposer &composer) : m_composer(composer)
{
    ++m_composer.m_scopes;
}

ElementComposer::ReadingScope::~ReadingScope()
{
    if (--m_composer.m_scopes == 0)
        m_composer.m_readInScope = false;
}

bool ElementComposer::Shown::Becomes(const Shown &wanted)
{
    const bool same = made && format == wanted.format && first == wanted.first
        && second == wanted.second && third == wanted.third && image == wanted.image;
    if (!same) {
        *this = wanted;
        made = true;
    }
    return !same;
}

void ElementComposer::SetUp(HClockNode &node)
{
    m_node = &node;
    m_reading.SetUp(node);
    m_readInScope = false;
    const int clockType = node.ClockType();
    if (clockType == PictureClock)
        return;
    const bool analog = clockType == AnalogClock;
    const int weekType = Number(analog ? Attribute::AnalogWeekType : Attribute::DigitalWeekType);
    m_dateType = Number(analog ? Attribute::AnalogDateType : Attribute::DigitalDateType);
    m_glyphs.Load(node, clockType, weekType);
    m_topText = Element(m_glyphs.topText);
    m_dateShown.made = m_timeShown.made = m_weekShown.made = m_lunarShown.made = false;
}

int ElementComposer::Number(Attribute attribute) const
{
    return m_node ? m_node->GetAttributeToInt(Key(attribute)) : 0;
}

const ClockReading &ElementComposer::UpdateReading()
{
    if (!m_readInScope)
        m_reading.Update(m_node);
    m_readInScope = m_scopes > 0;
    m_shownHour = m_reading.Fields().hour;
    return m_reading;
}

const Element &ElementComposer::Date()
{
    const DisplayedFields &now = UpdateReading().Fields();
    if (m_dateShown.Becomes({m_dateType, now.year, now.month, now.day}))
        m_date = DateElement(m_glyphs, m_dateType, now.year, now.month, now.day);
    return m_date;
}

// The mark of the twelve-hour display is looked up at each call, unlike all other images. Midnight
// and noon keep their hour.
const QPixmap &ElementComposer::AmPmMark(bool twelveHours)
{
    static const QPixmap none;
    if (!twelveHours)
        return none;
    const bool morning = m_shownHour < 12;
    if (m_shownHour > 12)
        m_shownHour -= 12;
    const bool hidden = m_node && m_node->HaveAttribute(Key(Attribute::DigitalDispAMPM))
        && Number(Attribute::DigitalDispAMPM) == 0;
    if (hidden || !m_node)
        return none;
    LiveGlyph &mark = morning ? m_morningMark : m_afternoonMark;
    return mark.Load(m_node->GetFirstFile(GlyphKey(morning ? Glyph::TimeAM : Glyph::TimePM)));
}

const Element &ElementComposer::Time()
{
    const DisplayedFields &now = UpdateReading().Fields();
    const int timeType = Number(Attribute::DigitalTimeType);
    const QPixmap &mark = AmPmMark(Number(Attribute::DigitalMode) == 1);
    if (m_timeShown.Becomes({timeType, m_shownHour, now.minute, now.second, mark.cacheKey()}))
        m_time = TimeElement(m_glyphs, timeType, m_shownHour, now.minute, now.second, mark);
    return m_time;
}

const Element &ElementComposer::Week()
{
    const int index = UpdateReading().Fields().dayOfWeek - 1;
    if (m_weekShown.Becomes({index})) {
        const bool known = index >= 0 && index < m_glyphs.weeks.size();
        m_week = known ? Element(m_glyphs.weeks.at(index)) : Element();
    }
    return m_week;
}

QPixmap ElementComposer::WeekPixmap()
{
    return m_glyphs.weeks.value(UpdateReading().Fields().dayOfWeek - 1);
}

void ElementComposer::UpdateLunarDate()
{
    const DisplayedFields date = m_reading.StandardFields();
    m_lunarKnown = InLunarRange(date.year, date.month, date.day);
    const char *const answer = LunarCalendarSetup(date.year, date.month, date.day);
    const std::size_t length = std::strlen(answer);
    if (length != 4 && length != 5)
        return;
    m_lunarMonth = std::atoi(answer); // ends at the "$"
    m_lunarDay = std::atoi(answer + length - 2);
}

const Element &ElementComposer::Lunar()
{
    UpdateLunarDate();
    if (m_lunarShown.Becomes({m_lunarKnown ? 1 : 0, m_lunarMonth, m_lunarDay})) {
        m_lunar = m_lunarKnown ? LunarElement(m_glyphs.lunar, m_lunarMonth, m_lunarDay) : Element();
    }
    return m_lunar;
}

QPixmap ElementComposer::DrawnElement::Of(const Element &element)
{
    if (element != m_element) {
        m_element = element;
        m_pixmap = Drawn(element);
    }
    return m_pixmap;
}

} // namespace Lw::HNodeClock
