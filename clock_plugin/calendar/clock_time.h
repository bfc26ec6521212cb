// The displayed time: zone, adjustment and daylight saving. Pure functions of their arguments.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

#include <optional>

namespace Lw::HNodeClock {

/// A point of time as a clock shows it, in the Gregorian calendar.
struct DisplayedFields
{
    int year = 0;      ///< there is no year 0: -1 goes before 1
    int month = 0;     ///< 1 to 12
    int day = 0;       ///< 1 to 31
    int hour = 0;      ///< 0 to 23
    int minute = 0;    ///< 0 to 59
    int second = 0;    ///< 0 to 59
    int dayOfWeek = 0; ///< 1 Monday to 7 Sunday
};

/// The fields of a reading in milliseconds since 1970-01-01 UTC, for every value: what a QDateTime
/// tagged UTC would answer, without making one.
DisplayedFields SplitReading(qint64 reading);

/// A date, a time of day or both by one of Qt's formats, in ASCII digits: for every text that is
/// stored, exported or read by a program. The toString() of these writes the digits of the system's
/// locale. Empty for one that is invalid.
QString PlainText(const QDate &date, const char *format);
QString PlainText(const QTime &time, const char *format);
QString PlainText(const QDateTime &dateTime, const char *format);

/// A time of day written with two ASCII digits each as "hh:mm:ss"; invalid for every other text.
QTime ParseTimeOfDay(const QString &text);

/// Seconds to add to UTC for a zone text: "hh:mm" or "h:mm" in ASCII after its first character. The
/// first character makes the offset negative when it is "-" and positive whatever else it is. A
/// text that holds no time gives 0.
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
/// that is empty or malformed or has a field out of range. A rule that is read may still name a
/// day that the month does not have in a year, a fifth Sunday.
std::optional<DaylightRule> ParseDaylightRule(const QString &text);

/// The instant that a rule names in a year, as a reading of the zone's standard time tagged UTC;
/// invalid when that year has no such day, and for years outside 1 to 9999.
QDateTime BoundaryInYear(const DaylightRule &rule, int year);

/// Whether a standard-time reading lies in the period from start (inclusive) to end (exclusive),
/// all in milliseconds. An end before the start wraps the new year; equal boundaries are no
/// period.
bool InDaylightPeriod(qint64 reading, qint64 start, qint64 end);

/// Answers from frame to frame whether daylight saving is in force. Keeps what it made of the rule
/// texts until they change, and the boundaries until the year changes; in between it neither parses
/// nor allocates.
class DaylightSaving
{
public:
    static constexpr int kShiftSeconds = 3600;

    /// Seconds to add to a standard-time reading (milliseconds, tagged UTC): kShiftSeconds in the
    /// period from the start rule to the end rule of the reading's year, else 0. Always 0 when a
    /// rule is empty, malformed or names a day that the year does not have, and outside the years
    /// 1 to 9999.
    int ShiftSeconds(const QString &start, const QString &end, qint64 reading);

private:
    void SetRules(const QString &start, const QString &end);
    void MoveToYearOf(qint64 reading);

    QString m_startText;
    QString m_endText;
    std::optional<DaylightRule> m_startRule;
    std::optional<DaylightRule> m_endRule;
    // The year that the boundaries are of, from its first to past its last millisecond; no year
    // while both are equal.
    qint64 m_yearBegin = 0;
    qint64 m_yearEnd = 0;
    bool m_hasPeriod = false;
    qint64 m_periodStart = 0;
    qint64 m_periodEnd = 0;
};

} // namespace Lw::HNodeClock
