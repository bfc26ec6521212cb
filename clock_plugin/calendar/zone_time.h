// calendar/: zone arithmetic, what a clock adds to UTC at an instant, and when that changes. Pure.
// Instants are milliseconds since 1970-01-01 UTC, far enough from the ends of their type to add a
// day.
#pragma once

#include "calendar/daylight_saving.h"

#include <QString>
#include <QVector>

#include <optional>

namespace Lw::HNodeClock {

/// What decides the time that a clock shows.
struct ZoneSettings
{
    int offset = 0; ///< zone and adjustment: seconds to add to UTC, daylight saving apart
    QString start;  ///< daylight-saving rules; none where either is empty or malformed
    QString end;

    bool HasDaylightSaving() const { return !start.isEmpty(); }
    QString ZoneText() const; ///< the offset's whole minutes, as "+01:00"
};

/// Seconds that a clock adds to UTC at an instant.
int OffsetAt(const ZoneSettings &zone, qint64 utc);
/// The same, with the daylight saving that the caller keeps for one clock: see there.
int OffsetAt(const ZoneSettings &zone, qint64 utc, DaylightSaving &daylight);

/// The instants, in order, at which the offset may change in a range of years of the zone's
/// standard time: what the rules name in each year, and each new year, when the boundaries of
/// another year apply. Empty without daylight saving.
QVector<qint64> PossibleChanges(const ZoneSettings &zone, int firstYear, int lastYear);

struct ZoneChange
{
    qint64 instant; ///< the first with the new offset
    int before;     ///< seconds added to UTC up to it
    int after;      ///< and from it on
};

/// The first change after an instant; nothing when there is none within 50 years. (A rule may name
/// a day that few years have: a fifth Sunday in February comes after 40 years at most.)
std::optional<ZoneChange> NextChange(const ZoneSettings &zone, qint64 utc);

} // namespace Lw::HNodeClock
