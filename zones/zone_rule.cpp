#include "zone_rule.h"

#include "calendar/clock_time.h"
#include "calendar/time_units.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace ClockZones {

namespace {

using namespace Lw::HNodeClock;

/// Most zones have one or two rules; those with dates that move every year have too many to try.
constexpr int kMaxRules = 40;

QDateTime Utc(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

/// Every instant of the span at which clock or zone may change, its beginning among them.
QVector<qint64> Instants(const ZoneSettings &settings, const CivilTime &civil)
{
    QVector<qint64> instants {civil.begin};
    for (const OffsetChange &change : civil.changes)
        instants.append(change.at);
    // A clock's year begins up to a day before or after that of UTC.
    instants += PossibleChanges(settings, Utc(civil.begin).date().year() - 1,
                                Utc(civil.end).date().year() + 1);
    std::sort(instants.begin(), instants.end());
    instants.erase(std::unique(instants.begin(), instants.end()), instants.end());
    const auto outside = [&](qint64 at) { return at < civil.begin || at >= civil.end; };
    instants.erase(std::remove_if(instants.begin(), instants.end(), outside), instants.end());
    return instants;
}

qint64 TotalOf(const QVector<WrongTime> &times)
{
    qint64 total = 0;
    for (const WrongTime &time : times)
        total += time.end - time.begin;
    return total;
}

/// The candidate standard offsets: the zone's own offsets, rounded to minutes, the one at the
/// beginning first.
QVector<int> PossibleOffsets(const CivilTime &civil)
{
    QVector<int> offsets;
    const auto add = [&](int seconds) {
        const auto minutes =
            static_cast<int>(FloorDivide(seconds + kSecondsPerMinute / 2, kSecondsPerMinute))
            * kSecondsPerMinute;
        if (qAbs(minutes) < kSecondsPerDay && !offsets.contains(minutes))
            offsets.append(minutes);
    };
    add(civil.offset);
    for (const OffsetChange &change : civil.changes)
        add(change.offset);
    return offsets;
}

/// The reading itself and, for midnight, the last second of the day before, or from 22:00 on, the
/// next midnight: a change at midnight before the shift is on another day after it, and a rule can
/// name only one of the two.
QVector<qint64> ReadingsNear(qint64 reading)
{
    const QDateTime exact = Utc(reading);
    const QDateTime midnight(exact.date(), QTime(0, 0), Qt::UTC);
    QVector<qint64> readings {reading};
    if (exact == midnight)
        readings.append(reading - kMillisecondsPerSecond);
    else if (exact.time().hour() >= 22)
        readings.append(midnight.addDays(1).toMSecsSinceEpoch());
    return readings;
}

/// The rules that may name the beginning of daylight saving over a standard offset, or its end.
QStringList PossibleRules(const CivilTime &civil, int standard, bool isStart)
{
    const int daylight = standard + DaylightSaving::kShiftSeconds;
    QStringList rules;
    int before = civil.offset;
    for (const OffsetChange &change : civil.changes) {
        const int daylightSide = isStart ? change.offset : before;
        const int otherSide = isStart ? before : change.offset;
        before = change.offset;
        if (daylightSide != daylight || otherSide == daylight)
            continue;
        for (const qint64 reading : ReadingsNear(change.at + standard * kMillisecondsPerSecond))
            rules += RulesNaming(reading);
    }
    rules.removeDuplicates();
    return rules.mid(0, kMaxRules);
}

/// Keeps the best of the settings tried; on a tie the first.
class Choice
{
public:
    Choice(const CivilTime &civil, const CivilTime &after) : m_civil(civil), m_after(after) { }

    void Try(const ZoneSettings &settings)
    {
        if (m_wrong == 0 && m_rightUntil == m_after.end)
            return; // there is nothing better
        const qint64 wrong = TotalOf(WrongTimes(settings, m_civil));
        const qint64 until = wrong == 0 ? RightUntil(settings, m_after) : m_after.begin;
        const bool isBetter = wrong < m_wrong || (wrong == m_wrong && until > m_rightUntil);
        if (m_wrong >= 0 && !isBetter)
            return;
        m_wrong = wrong;
        m_rightUntil = until;
        m_best = settings;
    }

    const ZoneSettings &Best() const { return m_best; }

private:
    const CivilTime &m_civil;
    const CivilTime &m_after;
    ZoneSettings m_best;
    qint64 m_wrong = -1; // milliseconds; none tried yet
    qint64 m_rightUntil = 0;
};

} // namespace

QVector<WrongTime> WrongTimes(const ZoneSettings &settings, const CivilTime &civil)
{
    DaylightSaving daylight;
    const QVector<qint64> instants = Instants(settings, civil);
    QVector<WrongTime> times;
    int next = 0;
    int offset = civil.offset;
    for (int i = 0; i < instants.size(); ++i) {
        for (; next < civil.changes.size() && civil.changes[next].at <= instants[i]; ++next)
            offset = civil.changes[next].offset;
        const int error = OffsetAt(settings, instants[i], daylight) - offset;
        const qint64 end = i + 1 < instants.size() ? instants[i + 1] : civil.end;
        if (error == 0)
            continue;
        if (!times.isEmpty() && times.last().end == instants[i] && times.last().error == error)
            times.last().end = end;
        else
            times.append({instants[i], end, error});
    }
    return times;
}

int OtherShift(const CivilTime &civil)
{
    int before = civil.offset;
    for (const OffsetChange &change : civil.changes) {
        const int shift = qAbs(change.offset - std::exchange(before, change.offset));
        if (shift != 0 && shift != DaylightSaving::kShiftSeconds)
            return shift;
    }
    return 0;
}

qint64 RightUntil(const ZoneSettings &settings, const CivilTime &civil)
{
    const QVector<WrongTime> wrong = WrongTimes(settings, civil);
    return wrong.isEmpty() ? civil.end : wrong.first().begin;
}

QStringList RulesNaming(qint64 reading)
{
    const QDateTime time = Utc(reading);
    const QDate date = time.date();
    const auto rule = [&](const QString &occurrence) {
        return QStringLiteral("%1.%2.%3.%4")
            .arg(date.month())
            .arg(occurrence)
            .arg(date.dayOfWeek())
            .arg(FormatAscii(time.time(), "hh:mm:ss"));
    };
    QStringList rules;
    if (date.day() + 7 > date.daysInMonth())
        rules.append(rule(QStringLiteral("Last")));
    const int count = (date.day() - 1) / 7 + 1;
    if (count <= 4) // a fifth is the last, and not there every year
        rules.append(rule(QString::number(count)));
    return rules;
}

ZoneSettings BestSettings(const CivilTime &civil, const CivilTime &after)
{
    Choice choice(civil, after);
    const QVector<int> offsets = PossibleOffsets(civil);
    for (const int offset : offsets)
        choice.Try({offset, QString(), QString()});
    for (const int offset : offsets) {
        const QStringList ends = PossibleRules(civil, offset, false);
        for (const QString &start : PossibleRules(civil, offset, true)) {
            for (const QString &end : ends)
                choice.Try({offset, start, end});
        }
    }
    return choice.Best();
}

} // namespace ClockZones
