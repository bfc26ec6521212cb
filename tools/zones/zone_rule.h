// A clock's zone settings for a zone's civil time, and where they go wrong. Pure: zones come as
// lists of changes, so that no zone data are needed.
#pragma once

#include "calendar/zone_time.h"

#include <QStringList>
#include <QVector>

namespace ClockTool {

/// A zone's offset changes.
struct OffsetChange
{
    qint64 at;  ///< milliseconds since 1970-01-01 UTC
    int offset; ///< from then on, in seconds to add to UTC
};

/// What a zone's civil time is over a span.
struct CivilTime
{
    qint64 begin = 0;              ///< milliseconds since 1970-01-01 UTC
    qint64 end = 0;                ///< not part of the span
    int offset = 0;                ///< at the beginning, in seconds to add to UTC
    QVector<OffsetChange> changes; ///< in order, after the beginning and before the end
};

using ZoneSettings = Lw::HNodeClock::ZoneSettings;

/// A time in which a clock shows something else than the zone has.
struct WrongTime
{
    qint64 begin; ///< milliseconds since 1970-01-01 UTC
    qint64 end;
    int error; ///< seconds by which the clock is ahead
};

/// Where a clock with these settings differs from a zone, in order, by the clock's own arithmetic.
QVector<WrongTime> WrongTimes(const ZoneSettings &settings, const CivilTime &civil);

/// The first instant of a span at which a clock with these settings differs from the zone, or the
/// end of the span.
qint64 RightUntil(const ZoneSettings &settings, const CivilTime &civil);

/// The texts of the rules that name a standard-time reading in its year: by the last such weekday
/// of its month where it is the last, and by its count where that is 1 to 4.
QStringList RulesNaming(qint64 reading);

/// The settings with which a clock is wrong for the shortest time in a span. Of those that are
/// never wrong there, the ones that stay right longest in what comes after it. Where no hour of
/// daylight saving fits, a fixed offset.
ZoneSettings BestSettings(const CivilTime &civil, const CivilTime &after);

} // namespace ClockTool
