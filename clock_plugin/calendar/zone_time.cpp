#include "calendar/zone_time.h"

#include "calendar/clock_time.h"
#include "calendar/time_units.h"

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

constexpr int kYearsToSearch = 50;

// A reading of the zone's standard time for an instant, and back.
qint64 StandardReading(const ZoneSettings &zone, qint64 utc)
{
    return utc + zone.offset * kMillisecondsPerSecond;
}

qint64 InstantOf(const ZoneSettings &zone, const QDateTime &standardReading)
{
    return standardReading.toMSecsSinceEpoch() - zone.offset * kMillisecondsPerSecond;
}

} // namespace

QString ZoneSettings::ZoneText() const
{
    const int minutes = qAbs(offset) / kSecondsPerMinute;
    return QStringLiteral("%1%2:%3")
        .arg(QLatin1Char(offset < 0 ? '-' : '+'))
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

int OffsetAt(const ZoneSettings &zone, qint64 utc)
{
    DaylightSaving daylight;
    return OffsetAt(zone, utc, daylight);
}

int OffsetAt(const ZoneSettings &zone, qint64 utc, DaylightSaving &daylight)
{
    return zone.offset + daylight.ShiftSeconds(zone.start, zone.end, StandardReading(zone, utc));
}

QVector<qint64> PossibleChanges(const ZoneSettings &zone, int firstYear, int lastYear)
{
    const std::optional<DaylightRule> start = ParseDaylightRule(zone.start);
    const std::optional<DaylightRule> end = ParseDaylightRule(zone.end);
    QVector<qint64> instants;
    if (!start || !end)
        return instants;
    for (int year = firstYear; year <= lastYear; ++year) {
        const QDateTime newYear(QDate(year, 1, 1), QTime(0, 0), Qt::UTC);
        for (const QDateTime &reading :
             {newYear, BoundaryInYear(*start, year), BoundaryInYear(*end, year)}) {
            if (reading.isValid())
                instants.append(InstantOf(zone, reading));
        }
    }
    std::sort(instants.begin(), instants.end());
    return instants;
}

std::optional<ZoneChange> NextChange(const ZoneSettings &zone, qint64 utc)
{
    DaylightSaving daylight;
    const int now = OffsetAt(zone, utc, daylight);
    const int first = std::max(1, SplitReading(StandardReading(zone, utc)).year);
    for (int year = first; year <= first + kYearsToSearch; ++year) {
        for (const qint64 instant : PossibleChanges(zone, year, year)) {
            const int offset = OffsetAt(zone, instant, daylight);
            if (instant > utc && offset != now)
                return ZoneChange {instant, now, offset};
        }
    }
    return std::nullopt;
}

} // namespace Lw::HNodeClock
