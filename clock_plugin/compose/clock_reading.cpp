#include "compose/clock_reading.h"

#include "calendar/device_clock.h"
#include "calendar/time_units.h"
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
    m_zone.offset = ClockOffset(node.GetAttribute(Key(Attribute::TimeZone)),
                                node.GetAttribute(Key(Attribute::TimeAdjust)),
                                node.GetAttributeToInt(Key(Attribute::AdjustType)));
}

void ClockReading::ReadDaylightRules(HClockNode *node)
{
    const bool isUsed = node && node->GetAttributeToInt(Key(Attribute::UseDaylightSavingTime)) == 1;
    m_zone.start = isUsed ? node->GetAttribute(Key(Attribute::DaylightSavingTimeStart)) : QString();
    m_zone.end = isUsed ? node->GetAttribute(Key(Attribute::DaylightSavingTimeEnd)) : QString();
}

void ClockReading::Update(HClockNode *node)
{
    ReadDaylightRules(node);
    const qint64 utc = UtcMilliseconds();
    m_milliseconds = utc + OffsetAt(m_zone, utc, m_daylightSaving) * kMillisecondsPerSecond;
    m_gregorian = m_shown = SplitReading(m_milliseconds);
    if (node && ShowsPersianDate(*node))
        TakePersianDate();
}

// A date that cannot be converted stays Gregorian.
void ClockReading::TakePersianDate()
{
    const QDate date(m_gregorian.year, m_gregorian.month, m_gregorian.day);
    if (date != m_persianDay) {
        m_persianDay = date;
        m_persianDate = ToPersianDate(date);
    }
    if (m_persianDate.day == -1)
        return;
    m_shown.year = m_persianDate.year;
    m_shown.month = m_persianDate.month;
    m_shown.day = m_persianDate.day;
}

DisplayedFields ClockReading::StandardFields() const
{
    return SplitReading(UtcMilliseconds() + m_zone.offset * kMillisecondsPerSecond);
}

QDateTime ClockReading::DateTime() const
{
    return QDateTime::fromMSecsSinceEpoch(m_milliseconds, Qt::UTC);
}

} // namespace Lw::HNodeClock
