#include "compose/clock_reading.h"

#include "calendar/device_clock.h"
#include "calendar/persian_calendar.h"
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
                true, node->GetAttribute(Key(Attribute::DaylightSavingTimeStart)),
                node->GetAttribute(Key(Attribute::DaylightSavingTimeEnd)), m_milliseconds);
    }
    const QDateTime reading = DateTime();
    TakeDate(reading.date(), node && ShowsPersianDate(*node));
    const int secondOfDay = reading.time().msecsSinceStartOfDay() / 1000;
    hour = secondOfDay / 3600;
    minute = secondOfDay / 60 % 60;
    second = secondOfDay % 60;
}

void ClockReading::TakeDate(const QDate &date, bool persian)
{
    if (date == m_date && persian == m_persian)
        return;
    m_date = date;
    m_persian = persian;
    dayOfWeek = date.dayOfWeek();
    const PersianDate converted = persian ? ToPersianDate(date) : PersianDate();
    if (converted.day != -1) {
        year = converted.year;
        month = converted.month;
        day = converted.day;
    } else {
        date.getDate(&year, &month, &day);
    }
}

qint64 ClockReading::StandardMilliseconds() const
{
    return UtcMilliseconds() + m_offset;
}

QDate ClockReading::StandardDate() const
{
    return QDateTime::fromMSecsSinceEpoch(StandardMilliseconds(), Qt::UTC).date();
}

QDateTime ClockReading::DateTime() const
{
    return QDateTime::fromMSecsSinceEpoch(m_milliseconds, Qt::UTC);
}

} // namespace Lw::HNodeClock
