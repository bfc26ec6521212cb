// The displayed time: zone, adjustment and daylight saving. Pure functions of their arguments.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

#include <optional>

namespace Lw::HNodeClock {

/// A time of day written with two digits each as "hh:mm:ss"; invalid for every other text.
QTime ParseTimeOfDay(const QString &text);

/// Seconds to add to UTC for a zone text: "hh:mm" or "h:mm" after its first character. The first
/// character makes the offset negative when it is "-" and positive whatever else it is. A text
/// that holds no time gives 0.
int ParseZoneOffset(const QString &zone);

/// Magnitude in seconds of an adjustment text: hours, minutes and seconds at the positions 0-1,
/// 3-4 and 6-7, whatever stands between them. A field that is not a number counts as 0.
int ParseAdjustment(const QString &adjustment);

/// Zone and adjustment together, in seconds to add to UTC. An adjust type of 1 subtracts the
/// adjustment; every other adds it.
int ClockOffset(const QString &zone, const QString &adjustment, int adjustType);

/// One boundary of a daylight-saving period, the same every year.
struct DaylightRule
{
    static constexpr int kLast = -1;

    int month = 0;      ///< 1 to 12
    int occurrence = 0; ///< 1 to 5 counted from the month's first day, or kLast
    int weekday = 0;    ///< 1 Monday to 7 Sunday
    QTime time;         ///< of the zone's standard time
};

/// Reads "month.occurrence.weekday.hh:mm:ss"; the occurrence may be "Last". Nothing for a text
/// that is empty or malformed. A rule that is read may still name a day that no year has.
std::optional<DaylightRule> ParseDaylightRule(const QString &text);

/// The instant that a rule names in a year, as a reading of the zone's standard time tagged UTC;
/// invalid when that year has no such day.
QDateTime BoundaryInYear(const DaylightRule &rule, int year);

/// Whether a standard-time reading lies in the period from start (inclusive) to end (exclusive),
/// all in milliseconds. An end before the start wraps the new year; equal boundaries are no
/// period.
bool InDaylightPeriod(qint64 reading, qint64 start, qint64 end);

} // namespace Lw::HNodeClock
