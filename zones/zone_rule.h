// zones/: finds the clock settings for a zone's civil time, and when they are wrong. Pure: zones
// are given as lists of changes, so that no zone data are needed.
#pragma once

#include "calendar/zone_time.h"

#include <QStringList>
#include <QVector>

namespace ClockZones {

/// One change of a zone's offset.
struct OffsetChange
{
    qint64 at;  ///< milliseconds since 1970-01-01 UTC
    int offset; ///< from then on, in seconds to add to UTC
};

/// A zone's civil time over a span.
struct CivilTime
{
    qint64 begin = 0;              ///< milliseconds since 1970-01-01 UTC
    qint64 end = 0;                ///< not part of the span
    int offset = 0;                ///< at the beginning, in seconds to add to UTC
    QVector<OffsetChange> changes; ///< in order, after the beginning and before the end
};

using ZoneSettings = Lw::HNodeClock::ZoneSettings;

/// A period in which a clock differs from its zone.
struct WrongTime
{
    qint64 begin; ///< milliseconds since 1970-01-01 UTC
    qint64 end;
    int error; ///< seconds by which the clock is ahead
};

/// Where a clock with these settings differs from a zone, in order, by the clock's own arithmetic.
QVector<WrongTime> WrongTimes(const ZoneSettings &settings, const CivilTime &civil);

/// The first shift that is not the hour of a clock's daylight saving, in seconds; 0 if there is
/// none.
int OtherShift(const CivilTime &civil);

/// The first instant of a span at which a clock with these settings differs from the zone, or the
/// end of the span.
qint64 RightUntil(const ZoneSettings &settings, const CivilTime &civil);

/// The rules that name a standard-time reading in its year: with "Last" if its weekday is the last
/// one of the month, and with its occurrence if that is 1 to 4.
QStringList RulesNaming(qint64 reading);

/// The settings with which a clock is wrong for the shortest time in a span. Of those that are
/// never wrong there, those that stay right longest afterwards. If one hour of daylight saving fits
/// nowhere, a fixed offset.
ZoneSettings BestSettings(const CivilTime &civil, const CivilTime &after);

} // namespace ClockZones
