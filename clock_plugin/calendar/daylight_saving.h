// calendar/: daylight saving: parses rules, finds the boundaries they name, and says how far a
// reading is shifted.
//
// A reading is what a clock shows, in milliseconds since 1970-01-01 00:00 on that clock. All
// boundaries are readings of the zone's standard time, the end of the period too.
#pragma once

#include <QDateTime>
#include <QString>
#include <QTime>

#include <optional>

namespace Lw::HNodeClock {

/// One boundary of a daylight-saving period, the same every year.
struct DaylightRule
{
    static constexpr int kLast = -1;

    int month = 0;      ///< 1 to 12
    int occurrence = 0; ///< 1 to 5 counted from the month's first day, or kLast
    int weekday = 0;    ///< 1 Monday to 7 Sunday
    QTime time;         ///< of the zone's standard time
};

/// Parses a rule; nothing for any other text:
///
///     rule       = month "." occurrence "." weekday "." time
///     month      = 1 to 12
///     occurrence = 1 to 5 | "Last"
///     weekday    = 1 (Monday) to 7 (Sunday)
///     time       = hh ":" mm ":" ss
///
/// Numbers are decimal integers as Lw::NumberIn() reads them: surrounding white space, a sign
/// and leading zeros are accepted. "Last" is case-sensitive; the time has two ASCII digits per
/// field. A rule may name a day that the month does not have in every year, such as a fifth Sunday.
std::optional<DaylightRule> ParseDaylightRule(const QString &text);

/// The reading that a rule names in a year, tagged UTC; invalid when that year has no such day, for
/// a rule with a field out of range, and for years outside 1 to 9999.
QDateTime BoundaryInYear(const DaylightRule &rule, int year);

/// Whether a reading is in the period from start (inclusive) to end (exclusive). If the end is
/// before the start, the period spans the new year; if they are equal, there is none.
bool InDaylightPeriod(qint64 reading, qint64 start, qint64 end);

/// Says for each frame whether daylight saving is in force. Parses the rules again only when a text
/// changes and recomputes the boundaries only when the rules or the year change; otherwise it does
/// not allocate.
class DaylightSaving
{
public:
    static constexpr int kShiftSeconds = 3600;

    /// Seconds to add to a standard-time reading: kShiftSeconds in the period from the start rule
    /// to the end rule of the reading's year, else 0. Always 0 when a rule is empty, malformed or
    /// names a day that the year does not have, and outside the years 1 to 9999.
    int ShiftSeconds(const QString &start, const QString &end, qint64 reading);

private:
    void SetRules(const QString &start, const QString &end);
    void MoveToYearOf(qint64 reading);

    QString m_startText;
    QString m_endText;
    std::optional<DaylightRule> m_startRule;
    std::optional<DaylightRule> m_endRule;
    // The current year as readings, end exclusive; equal while there is none.
    qint64 m_yearBegin = 0;
    qint64 m_yearEnd = 0;
    bool m_hasPeriod = false;
    qint64 m_periodStart = 0;
    qint64 m_periodEnd = 0;
};

} // namespace Lw::HNodeClock
