#include "soak_year.h"

#include <algorithm>

namespace {

constexpr qint64 kSecond = 1000;
constexpr int kCoarse = 61;
constexpr int kStandardOffset = 3600;

} // namespace

// The two new years' days are part of it, with the days before and after.
SoakYear::SoakYear()
    : m_zone("Europe/Berlin"),
      m_first(QDateTime(QDate(2025, 12, 31), QTime(0, 0), m_zone).toMSecsSinceEpoch()),
      m_end(QDateTime(QDate(2027, 1, 2), QTime(0, 0), m_zone).toMSecsSinceEpoch())
{ }

bool SoakYear::IsEventful(const QDate &day) const
{
    if (day.day() == 1 || day.day() == day.daysInMonth())
        return true;
    const auto offset = [this](const QDate &date) {
        return QDateTime(date, QTime(0, 0), m_zone).offsetFromUtc();
    };
    return offset(day.addDays(-1)) != offset(day.addDays(2));
}

qint64 SoakYear::Next(qint64 instant)
{
    if (instant >= m_dayEnd) {
        const QDate day = CivilTime(instant).date();
        m_dayEnd = QDateTime(day.addDays(1), QTime(0, 0), m_zone).toMSecsSinceEpoch();
        m_step = IsEventful(day) ? kSecond : kCoarse * kSecond;
    }
    const qint64 next = std::min(instant + m_step, m_dayEnd); // every midnight is among them
    return next < m_end ? next : -1;
}

QDateTime SoakYear::CivilTime(qint64 instant) const
{
    return QDateTime::fromMSecsSinceEpoch(instant, m_zone);
}

QDate SoakYear::StandardDate(qint64 instant) const
{
    return QDateTime::fromMSecsSinceEpoch(instant, Qt::OffsetFromUTC, kStandardOffset).date();
}
