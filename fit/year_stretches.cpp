#include "year_stretches.h"

#include "calendar/clock_time.h"
#include "calendar/device_clock.h"
#include "compose/clock_reading.h"

#include <QDateTime>

#include <algorithm>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr qint64 kSecond = 1000;
constexpr qint64 kDay = 24 * 3600 * kSecond;

qint64 OffsetOf(HClockNode &node)
{
    return kSecond
        * ClockOffset(node.GetAttribute(Key(Attribute::TimeZone)),
                      node.GetAttribute(Key(Attribute::TimeAdjust)),
                      node.GetAttributeToInt(Key(Attribute::AdjustType)));
}

class Changes
{
public:
    Changes(HClockNode &node, const Year &year) : m_year(year), m_offset(OffsetOf(node))
    {
        m_instants.append(year.begin);
        AddMidnights(m_offset);
        if (node.GetAttributeToInt(Key(Attribute::UseDaylightSavingTime)) != 1)
            return;
        AddMidnights(m_offset + DaylightSaving::kShiftSeconds * kSecond);
        AddBoundaries(node.GetAttribute(Key(Attribute::DaylightSavingTimeStart)));
        AddBoundaries(node.GetAttribute(Key(Attribute::DaylightSavingTimeEnd)));
    }

    QVector<qint64> InOrder()
    {
        std::sort(m_instants.begin(), m_instants.end());
        m_instants.erase(std::unique(m_instants.begin(), m_instants.end()), m_instants.end());
        return m_instants;
    }

private:
    void Add(qint64 utc)
    {
        if (utc > m_year.begin && utc < m_year.end)
            m_instants.append(utc);
    }
    void AddMidnights(qint64 offset)
    {
        qint64 reading = m_year.begin + offset;
        reading -= (reading % kDay + kDay) % kDay;
        for (; reading - offset < m_year.end; reading += kDay)
            Add(reading - offset);
    }
    // Rules apply to every year; the clock's year begins at another instant than that of UTC.
    void AddBoundaries(const QString &text)
    {
        const std::optional<DaylightRule> rule = ParseDaylightRule(text);
        const auto yearOf = [this](qint64 utc) { return SplitReading(utc + m_offset).year; };
        for (int year = yearOf(m_year.begin); rule && year <= yearOf(m_year.end); ++year) {
            const QDateTime boundary = BoundaryInYear(*rule, year);
            if (boundary.isValid())
                Add(boundary.toMSecsSinceEpoch() - m_offset);
        }
        // Each year has its own daylight saving period, so it may begin or end at the new year.
        for (int year = yearOf(m_year.begin); year <= yearOf(m_year.end); ++year)
            Add(QDateTime(QDate(year + 1, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch()
                - m_offset);
    }

    const Year m_year;
    const qint64 m_offset;
    QVector<qint64> m_instants;
};

int SecondOfDay(const DisplayedFields &fields)
{
    return (fields.hour * 60 + fields.minute) * 60 + fields.second;
}

bool SameDay(const DisplayedFields &one, const DisplayedFields &other)
{
    return one.year == other.year && one.month == other.month && one.day == other.day;
}

// The clock's reading at the beginning of a stretch.
struct Beginning
{
    DisplayedFields shown;
    DisplayedFields standard; ///< the lunar date is computed from these
    int second = 0;

    bool Continues(const Beginning &before, qint64 seconds) const
    {
        return SameDay(shown, before.shown) && SameDay(standard, before.standard)
            && second == before.second + seconds;
    }
};

} // namespace

Year YearFrom(qint64 utcMilliseconds)
{
    const QDateTime first(QDate(1, 1, 2), QTime(0, 0), Qt::UTC);
    const QDateTime last(QDate(9998, 12, 1), QTime(0, 0), Qt::UTC);
    const qint64 begin =
        qBound(first.toMSecsSinceEpoch(), utcMilliseconds, last.toMSecsSinceEpoch());
    return {begin, QDateTime::fromMSecsSinceEpoch(begin, Qt::UTC).addYears(1).toMSecsSinceEpoch()};
}

// A stretch may begin in the middle of a second.
qint64 Stretch::LengthUntil(qint64 utc) const
{
    return (utc - begin + kSecond - 1) / kSecond;
}

qint64 Stretch::At(int second) const
{
    return second == firstSecond
        ? begin
        : begin - (begin % kSecond + kSecond) % kSecond + (second - firstSecond) * kSecond;
}

QVector<Stretch> StretchesOf(HClockNode &node, const Year &year)
{
    ClockReading reading;
    reading.SetUp(node);
    QVector<Stretch> stretches;
    Beginning last;
    for (const qint64 change : Changes(node, year).InOrder()) {
        const HeldReading then(change);
        reading.Update(&node);
        const DisplayedFields &shown = reading.Fields();
        const Beginning next = {shown, reading.StandardFields(), SecondOfDay(shown)};
        if (!stretches.isEmpty()) {
            if (next.Continues(last, stretches.last().LengthUntil(change)))
                continue;
            stretches.last().end = change;
        }
        stretches.append({change, year.end, next.second});
        last = next;
    }
    return stretches;
}

qint64 MidnightOf(const QVector<Stretch> &stretches)
{
    for (int first = 0; first < stretches.size(); ++first) {
        int second = 0;
        for (int i = first; i < stretches.size() && stretches[i].firstSecond == second; ++i) {
            second = stretches[i].EndSecond();
            if (second == kDay / kSecond)
                return stretches[first].begin;
        }
    }
    return stretches.first().begin;
}

} // namespace ClockFit
