#include "compose/element_composer.h"

#include "calendar/lunar_calendar.h"
#include "calendar/lunar_date.h"
#include "compose/element_layout.h"
#include "compose/piece_canvas.h"
#include "glyph/glyph_set.h"

#include <QImage>

#include <cstdlib>
#include <cstring>

namespace Lw::HNodeClock {

namespace {

QPixmap Drawn(const Element &element)
{
    if (element.Size().isEmpty())
        return QPixmap();
    QImage image(element.Size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) // out of memory
        return QPixmap();
    image.fill(Qt::transparent);
    PieceCanvas(image).Draw(element, QPoint(0, 0), image.rect());
    return QPixmap::fromImage(image, Qt::NoOpaqueDetection);
}

void RecordLostImages(HClockNode &node, const QVector<Lw::GlyphFault> &lost)
{
    QVector<Lw::GlyphFault> faults;
    for (const Lw::GlyphFault &fault : Lw::GlyphFaultsOf(node)) {
        if (fault.kind != Lw::GlyphFault::NotKept)
            faults.append(fault);
    }
    Lw::SetGlyphFaults(node, faults + lost);
}

} // namespace

ElementComposer::FrameScope::FrameScope(ElementComposer &composer) : m_composer(composer)
{
    ++m_composer.m_scopes;
}

ElementComposer::FrameScope::~FrameScope()
{
    if (--m_composer.m_scopes == 0)
        m_composer.m_done = Done();
}

bool ElementComposer::Replace(Shown &shown, const Shown &wanted)
{
    if (shown == wanted)
        return false;
    shown = wanted;
    return true;
}

void ElementComposer::SetUp(HClockNode &node)
{
    m_fixedMarks.reset();
    QVector<Lw::GlyphFault> lost;
    SetUp(node, node.ClockType(), m_glyphs.RecordedFiles(node, &lost));
    RecordLostImages(node, lost);
}

void ElementComposer::SetUp(HClockNode &node, const GlyphSource &source)
{
    const int clockType = node.ClockType();
    m_fixedMarks.emplace();
    if (clockType == DigitalClock)
        m_fixedMarks = {source(Glyph::TimeAM, 0), source(Glyph::TimePM, 0)};
    SetUp(node, clockType, source);
}

void ElementComposer::SetUp(HClockNode &node, int clockType, const GlyphSource &source)
{
    m_node = &node;
    m_reading.SetUp(node);
    m_done = Done();
    if (clockType == PictureClock)
        return;
    const bool analog = clockType == AnalogClock;
    const int weekType = Number(analog ? Attribute::AnalogWeekType : Attribute::DigitalWeekType);
    m_dateType = Number(analog ? Attribute::AnalogDateType : Attribute::DigitalDateType);
    m_glyphs.Load(source, clockType, weekType);
    m_topText.reset();
    m_dateShown = m_timeShown = m_weekShown = m_lunarShown = Shown();
}

int ElementComposer::Number(Attribute attribute) const
{
    return m_node ? m_node->GetAttributeToInt(Key(attribute)) : 0;
}

const ClockReading &ElementComposer::UpdateReading()
{
    if (!m_done.reading)
        m_reading.Update(m_node);
    m_done.reading = m_scopes > 0;
    m_shownHour = m_reading.Fields().hour;
    return m_reading;
}

const Element &ElementComposer::TopText()
{
    if (!m_topText)
        m_topText = Element(m_glyphs.topText);
    return *m_topText;
}

const Element &ElementComposer::Date()
{
    const DisplayedFields &now = UpdateReading().Fields();
    if (Replace(m_dateShown, {{m_dateType, now.year, now.month, now.day}}))
        m_date = DateElement(m_glyphs, m_dateType, now.year, now.month, now.day);
    return m_date;
}

// Unlike all other images, the AM/PM mark is checked during playback: once per frame scope, and at
// each call outside one. In 12-hour mode also reduces m_shownHour; midnight and noon keep theirs, 0
// and 12.
const GlyphStrip &ElementComposer::AmPmMark(bool twelveHours)
{
    static const GlyphStrip none;
    if (!twelveHours)
        return none;
    const bool morning = m_shownHour < 12;
    if (m_shownHour > 12)
        m_shownHour -= 12;
    const bool hidden = m_node && m_node->HaveAttribute(Key(Attribute::DigitalDispAMPM))
        && Number(Attribute::DigitalDispAMPM) == 0;
    if (hidden || !m_node)
        return none;
    if (m_fixedMarks)
        return (*m_fixedMarks)[morning ? 0 : 1];
    LiveGlyph &mark = morning ? m_glyphs.morningMark : m_glyphs.afternoonMark;
    return mark.Load(m_node->GetFirstFile(GlyphKey(morning ? Glyph::TimeAM : Glyph::TimePM)),
                     [this](const QString &path) { return m_glyphs.LoadFile(path); });
}

const Element &ElementComposer::Time()
{
    const DisplayedFields &now = UpdateReading().Fields();
    if (m_done.time) {
        m_shownHour = m_timeHour;
        return m_time;
    }
    m_done.time = m_scopes > 0;
    const int timeType = Number(Attribute::DigitalTimeType);
    const GlyphStrip &mark = AmPmMark(Number(Attribute::DigitalMode) == 1);
    if (Replace(m_timeShown, {{timeType, m_shownHour, now.minute, now.second, mark.Key()}}))
        m_time = TimeElement(m_glyphs, timeType, m_shownHour, now.minute, now.second, mark);
    m_timeHour = m_shownHour;
    return m_time;
}

const Element &ElementComposer::Week()
{
    const int index = UpdateReading().Fields().dayOfWeek - 1;
    if (Replace(m_weekShown, {{index}})) {
        const bool known = index >= 0 && index < m_glyphs.weeks.size();
        m_week = known ? Element(m_glyphs.weeks.at(index)) : Element();
    }
    return m_week;
}

QPixmap ElementComposer::WeekPixmap()
{
    const int index = UpdateReading().Fields().dayOfWeek - 1;
    const bool known = index >= 0 && index < m_glyphs.weeks.size();
    return known ? m_glyphs.weeks.at(index).Pixmap() : QPixmap();
}

QDate ElementComposer::StandardDate() const
{
    const DisplayedFields now = m_reading.StandardFields();
    return QDate(now.year, now.month, now.day);
}

// A result other than "m$dd" or "mm$dd" leaves month and day unchanged.
void ElementComposer::UpdateLunarDate()
{
    const QDate date = StandardDate();
    m_lunarAsked = date;
    m_lunarKnown = LunarDateOf(date).IsValid();
    const char *const answer = LunarCalendarSetup(date.year(), date.month(), date.day());
    const std::size_t length = std::strlen(answer);
    if (length != 4 && length != 5)
        return;
    m_lunarMonth = std::atoi(answer); // ends at the "$"
    m_lunarDay = std::atoi(answer + length - 2);
}

const Element &ElementComposer::Lunar()
{
    if (m_done.lunar)
        return m_lunar;
    m_done.lunar = m_scopes > 0;
    if (StandardDate() != m_lunarAsked)
        UpdateLunarDate();
    if (Replace(m_lunarShown, {{m_lunarKnown, m_lunarMonth, m_lunarDay}})) {
        m_lunar = m_lunarKnown ? LunarElement(m_glyphs.lunar, m_lunarMonth, m_lunarDay) : Element();
    }
    return m_lunar;
}

QPixmap ElementComposer::LunarPixmap()
{
    UpdateLunarDate();
    return m_lunarPixmap.Of(Lunar());
}

QPixmap ElementComposer::DrawnElement::Of(const Element &element)
{
    const bool missing = m_pixmap.isNull() && !element.Size().isEmpty();
    if (missing || element != m_element) {
        m_element = element;
        m_pixmap = Drawn(element);
    }
    return m_pixmap;
}

} // namespace Lw::HNodeClock
