// calendar/: zone arithmetic: what a clock adds to UTC at an instant, and when that changes. Pure.
// Instants are UTC milliseconds, at least a day from the limits of qint64.
#pragma once

#include "calendar/daylight_saving.h"

#include <QString>
#include <QVector>

#include <optional>

namespace Lw::HNodeClock {

/// The settings that determine the time a clock shows.
struct ZoneSettings
{
    int offset = 0; ///< zone plus adjustment: seconds to add to UTC, without daylight saving
    QString start;  ///< daylight-saving rules; no daylight saving unless both are valid
    QString end;

    /// Whether there is a rule for the start, valid or not.
    bool HasDaylightSaving() const { return !start.isEmpty(); }
    QString ZoneText() const; ///< the offset in whole minutes, for example "+01:00"
};

/// Seconds that a clock adds to UTC at an instant.
int OffsetAt(const ZoneSettings &zone, qint64 utc);
/// The same with a DaylightSaving cache, which the caller keeps per clock.
int OffsetAt(const ZoneSettings &zone, qint64 utc, DaylightSaving &daylight);

/// The instants, in order, at which the offset may change in a range of years of the zone's
/// standard time: the rules' boundaries in each year, and each new year, when the boundaries of the
/// next year take effect. Empty without daylight saving.
QVector<qint64> PossibleChanges(const ZoneSettings &zone, int firstYear, int lastYear);

struct ZoneChange
{
    qint64 instant; ///< the first instant with the new offset
    int before;     ///< seconds added to UTC before it
    int after;      ///< seconds added to UTC from then on
};

/// The first change after an instant; nothing when there is none within 50 years. (A rule may name
/// a day that few years have: a fifth Sunday in February comes after 40 years at most.)
std::optional<ZoneChange> NextChange(const ZoneSettings &zone, qint64 utc);

} // namespace Lw::HNodeClock
