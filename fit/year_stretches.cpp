#include "year_stretches.h"

#include "calendar/device_clock.h"
#include "calendar/time_units.h"
#include "compose/clock_reading.h"

#include <QDateTime>

#include <algorithm>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

// The instants of a year at which what a clock shows may change other than by one second.
class Changes
{
public:
    Changes(const ZoneSettings &zone, const Year &year) : m_year(year)
    {
        m_instants.append(year.begin);
        AddMidnights(zone.offset);
        const auto yearOf = [&zone](qint64 utc) {
            return SplitReading(utc + zone.offset * kMillisecondsPerSecond).year;
        };
        const QVector<qint64> changes = PossibleChanges(zone, yearOf(year.begin), yearOf(year.end));
        for (const qint64 utc : changes)
            Add(utc);
        if (!changes.isEmpty())
            AddMidnights(zone.offset + DaylightSaving::kShiftSeconds);
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
    void AddMidnights(int offsetSeconds)
    {
        const qint64 offset = offsetSeconds * kMillisecondsPerSecond;
        const qint64 begin = m_year.begin + offset;
        qint64 reading = begin - FloorModulo(begin, kMillisecondsPerDay);
        for (; reading - offset < m_year.end; reading += kMillisecondsPerDay)
            Add(reading - offset);
    }

    const Year m_year;
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
    return (utc - begin + kMillisecondsPerSecond - 1) / kMillisecondsPerSecond;
}

qint64 Stretch::At(int second) const
{
    return second == firstSecond ? begin
                                 : begin - FloorModulo(begin, kMillisecondsPerSecond)
            + (second - firstSecond) * kMillisecondsPerSecond;
}

QVector<Stretch> StretchesOf(HClockNode &node, const Year &year)
{
    ClockReading reading;
    reading.SetUp(node);
    reading.Update(&node);
    QVector<Stretch> stretches;
    Beginning last;
    for (const qint64 change : Changes(reading.Zone(), year).InOrder()) {
        const HeldInstant held(change);
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
            if (second == kSecondsPerDay)
                return stretches[first].begin;
        }
    }
    return stretches.first().begin;
}

} // namespace ClockFit
