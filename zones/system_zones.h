// zones/: the system's time zones as lists of offset changes.
#pragma once

#include "zone_rule.h"

#include <QByteArray>
#include <QDate>
#include <QList>

#include <optional>

namespace ClockZones {

/// The system's data list each change up to the end of this year. The rules for later years are not
/// used: Qt 5 misreads those with an hour before the day's beginning or after its end.
constexpr int kLastListedYear = 2037;

/// A half-open span [begin, end) in milliseconds since 1970-01-01 UTC.
struct Span
{
    qint64 begin;
    qint64 end;
};

/// The ten years from a day, or fewer up to the end of kLastListedYear. The span ends before it
/// begins for a later day.
Span TenYearsFrom(const QDate &first);

/// What follows a span, to the end of kLastListedYear; may be empty.
Span ListedAfter(const Span &span);

/// From a day to the end of kLastListedYear. The span ends before it begins for a later day.
Span ListedSince(const QDate &first);

/// "2026-03-29", in UTC.
QString DateOf(qint64 utc);

/// The names of the system's zones. Aliases may be missing here but are accepted as well.
QList<QByteArray> ZoneNames();

/// The same, preceded by the most widely used ones, which are then repeated among the others.
QList<QByteArray> ZonesToTry();

/// Whether the system has zone data. Without it, Qt lists only fixed offsets.
bool HasZoneData(const QList<QByteArray> &names);

/// A zone's civil time over a span; nothing for a name that the system does not know.
std::optional<CivilTime> CivilTimeOf(const QByteArray &zone, const Span &span);

/// A zone whose civil time the settings show over the whole span, a widely used one if there
/// are several; empty when there is none.
QByteArray ZoneWith(const ZoneSettings &settings, const Span &span);

} // namespace ClockZones
