#include "calendar/daylight_saving.h"

#include "calendar/clock_time.h"

#include "number_text.h"

#include <QStringList>

namespace Lw::HNodeClock {

namespace {

constexpr int kFirstYear = 1;
constexpr int kLastYear = 9999;

qint64 MillisecondsOfDate(const QDate &date)
{
    return QDateTime(date, QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
}

// A number from 1 to highest; 0 for any other text.
int NumberUpTo(int highest, const QString &text)
{
    const int number = NumberIn(text);
    return number >= 1 && number <= highest ? number : 0;
}

int OccurrenceFromText(const QString &text)
{
    return text == QLatin1String("Last") ? DaylightRule::kLast : NumberUpTo(5, text);
}

// The day of the month that a rule names, 0 for none.
int DayOfRule(const DaylightRule &rule, const QDate &firstOfMonth)
{
    const int days = firstOfMonth.daysInMonth();
    const int firstMatch = 1 + (rule.weekday - firstOfMonth.dayOfWeek() + 7) % 7;
    if (rule.occurrence == DaylightRule::kLast)
        return firstMatch + (days - firstMatch) / 7 * 7;
    const int day = firstMatch + (rule.occurrence - 1) * 7;
    return day <= days ? day : 0;
}

bool IsComplete(const DaylightRule &rule)
{
    const bool occurs =
        rule.occurrence == DaylightRule::kLast || (rule.occurrence >= 1 && rule.occurrence <= 5);
    return rule.month >= 1 && rule.month <= 12 && occurs && rule.weekday >= 1 && rule.weekday <= 7
        && rule.time.isValid();
}

// Attribute texts are shared from frame to frame, so comparing addresses is usually enough.
bool IsSameText(const QString &a, const QString &b)
{
    return (a.constData() == b.constData() && a.size() == b.size()) || a == b;
}

} // namespace

std::optional<DaylightRule> ParseDaylightRule(const QString &text)
{
    const QLatin1Char separator('.');
    if (text.count(separator) != 3)
        return std::nullopt;
    const QStringList fields = text.split(separator);
    DaylightRule rule;
    rule.month = NumberUpTo(12, fields[0]);
    rule.occurrence = OccurrenceFromText(fields[1]);
    rule.weekday = NumberUpTo(7, fields[2]);
    rule.time = ParseTimeOfDay(fields[3]);
    return IsComplete(rule) ? std::optional(rule) : std::nullopt;
}

QDateTime BoundaryInYear(const DaylightRule &rule, int year)
{
    if (year < kFirstYear || year > kLastYear || !IsComplete(rule))
        return {};
    const int day = DayOfRule(rule, QDate(year, rule.month, 1));
    return day > 0 ? QDateTime(QDate(year, rule.month, day), rule.time, Qt::UTC) : QDateTime();
}

bool InDaylightPeriod(qint64 reading, qint64 start, qint64 end)
{
    if (start < end)
        return start <= reading && reading < end;
    if (end < start)
        return reading < end || start <= reading;
    return false;
}

int DaylightSaving::ShiftSeconds(const QString &start, const QString &end, qint64 reading)
{
    if (!IsSameText(start, m_startText) || !IsSameText(end, m_endText))
        SetRules(start, end);
    if (!m_startRule || !m_endRule)
        return 0;
    if (reading < m_yearBegin || reading >= m_yearEnd)
        MoveToYearOf(reading);
    return m_hasPeriod && InDaylightPeriod(reading, m_periodStart, m_periodEnd) ? kShiftSeconds : 0;
}

void DaylightSaving::SetRules(const QString &start, const QString &end)
{
    m_startText = start;
    m_endText = end;
    m_startRule = ParseDaylightRule(start);
    m_endRule = ParseDaylightRule(end);
    m_yearBegin = m_yearEnd = 0;
}

void DaylightSaving::MoveToYearOf(qint64 reading)
{
    m_hasPeriod = false;
    m_yearBegin = m_yearEnd = 0;
    const int year = SplitReading(reading).year;
    if (year < kFirstYear || year > kLastYear)
        return;
    const QDateTime start = BoundaryInYear(*m_startRule, year);
    const QDateTime end = BoundaryInYear(*m_endRule, year);
    m_yearBegin = MillisecondsOfDate(QDate(year, 1, 1));
    m_yearEnd = MillisecondsOfDate(QDate(year + 1, 1, 1));
    m_hasPeriod = start.isValid() && end.isValid();
    if (!m_hasPeriod)
        return;
    m_periodStart = start.toMSecsSinceEpoch();
    m_periodEnd = end.toMSecsSinceEpoch();
}

} // namespace Lw::HNodeClock
