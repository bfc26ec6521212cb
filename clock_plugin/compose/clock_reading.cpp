#include "compose/clock_reading.h"

#include "calendar/device_clock.h"
#include "compose/element_layout.h"
#include "glyph/glyph_set.h"

namespace Lw::HNodeClock {

namespace {

bool ShowsPersianDate(HClockNode &node)
{
    switch (node.ClockType()) {
    case AnalogClock:
        return node.GetAttributeToInt(Key(Attribute::AnalogDateType)) == DatePersian;
    case DigitalClock:
        return node.GetAttributeToInt(Key(Attribute::DigitalDateType)) == DatePersian;
    default:
        return false;
    }
}

} // namespace

void ClockReading::SetUp(HClockNode &node)
{
    m_offset = 1000LL
        * ClockOffset(node.GetAttribute(Key(Attribute::TimeZone)),
                      node.GetAttribute(Key(Attribute::TimeAdjust)),
                      node.GetAttributeToInt(Key(Attribute::AdjustType)));
}

void ClockReading::Update(HClockNode *node)
{
    m_milliseconds = StandardMilliseconds();
    if (node && node->GetAttributeToInt(Key(Attribute::UseDaylightSavingTime)) == 1) {
        m_milliseconds += 1000LL
            * m_daylightSaving.ShiftSeconds(
                node->GetAttribute(Key(Attribute::DaylightSavingTimeStart)),
                node->GetAttribute(Key(Attribute::DaylightSavingTimeEnd)), m_milliseconds);
    }
    m_fields = SplitReading(m_milliseconds);
    if (node && ShowsPersianDate(*node))
        TakePersianDate();
}

// A date without a Persian one stays Gregorian.
void ClockReading::TakePersianDate()
{
    const QDate date(m_fields.year, m_fields.month, m_fields.day);
    if (date != m_gregorianDate) {
        m_gregorianDate = date;
        m_persianDate = ToPersianDate(date);
    }
    if (m_persianDate.day == -1)
        return;
    m_fields.year = m_persianDate.year;
    m_fields.month = m_persianDate.month;
    m_fields.day = m_persianDate.day;
}

qint64 ClockReading::StandardMilliseconds() const
{
    return UtcMilliseconds() + m_offset;
}

DisplayedFields ClockReading::StandardFields() const
{
    return SplitReading(StandardMilliseconds());
}

QDateTime ClockReading::DateTime() const
{
    return QDateTime::fromMSecsSinceEpoch(m_milliseconds, Qt::UTC);
}

} // namespace Lw::HNodeClock
