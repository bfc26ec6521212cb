#include "next_change.h"

#include "calendar/clock_time.h"

#include <QVector>

#include <algorithm>

namespace ClockPlayer {

namespace {

using namespace Lw::HNodeClock;

constexpr qint64 kSecond = 1000;
constexpr int kYearsToSearch = 50;

/// Readings of the zone's standard time at which daylight saving may begin or end in a year: what
/// its rules name, and the new year, when the rules of another year come into force.
QVector<qint64> CandidatesOf(int year, const DaylightRule &start, const DaylightRule &end)
{
    QVector<qint64> candidates {
        QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch()};
    for (const DaylightRule &rule : {start, end}) {
        const QDateTime boundary = BoundaryInYear(rule, year);
        if (boundary.isValid())
            candidates.append(boundary.toMSecsSinceEpoch());
    }
    std::sort(candidates.begin(), candidates.end());
    return candidates;
}

int ShiftAt(const ClockSettings &settings, qint64 reading)
{
    return settings.savesDaylight
        ? DaylightSaving().ShiftSeconds(settings.start, settings.end, reading)
        : 0;
}

} // namespace

int OffsetAt(const ClockSettings &settings, qint64 instant)
{
    return settings.offsetSeconds + ShiftAt(settings, instant + settings.offsetSeconds * kSecond);
}

std::optional<Change> NextChange(const ClockSettings &settings, qint64 instant)
{
    const std::optional<DaylightRule> start = ParseDaylightRule(settings.start);
    const std::optional<DaylightRule> end = ParseDaylightRule(settings.end);
    if (!settings.savesDaylight || !start || !end)
        return std::nullopt;
    const qint64 offset = settings.offsetSeconds * kSecond;
    const int now = ShiftAt(settings, instant + offset);
    const int year = std::max(1, SplitReading(instant + offset).year);
    for (int later = 0; later <= kYearsToSearch; ++later) {
        for (const qint64 candidate : CandidatesOf(year + later, *start, *end)) {
            const int shift = ShiftAt(settings, candidate);
            if (candidate > instant + offset && shift != now)
                return Change {candidate - offset, settings.offsetSeconds + now,
                               settings.offsetSeconds + shift};
        }
    }
    return std::nullopt;
}

} // namespace ClockPlayer
