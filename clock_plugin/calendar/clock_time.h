// calendar/: splits the displayed time into fields, formats it, and parses zones and adjustments.
// Pure functions of their arguments.
#pragma once

#include "calendar/daylight_saving.h" // kept for hosts that include only this header

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

namespace Lw::HNodeClock {

/// A point in time as a clock shows it, in the Gregorian calendar.
struct DisplayedFields
{
    int year = 0;      ///< there is no year 0: 1 follows -1
    int month = 0;     ///< 1 to 12
    int day = 0;       ///< 1 to 31
    int hour = 0;      ///< 0 to 23
    int minute = 0;    ///< 0 to 59
    int second = 0;    ///< 0 to 59
    int dayOfWeek = 0; ///< 1 Monday to 7 Sunday
};

/// The fields of a reading, in milliseconds since 1970-01-01 00:00; any value is valid. Equal to
/// those of a QDateTime with Qt::UTC, without constructing one.
DisplayedFields SplitReading(qint64 reading);

/// Formats a date, a time of day or both in Qt's format syntax with ASCII digits, for text that is
/// stored, exported or read by a program. (Their own toString() writes the system locale's digits.)
/// Empty if it is invalid.
QString FormatAscii(const QDate &date, const char *format);
QString FormatAscii(const QTime &time, const char *format);
QString FormatAscii(const QDateTime &dateTime, const char *format);

/// A time of day written with two ASCII digits each as "hh:mm:ss"; invalid for every other text.
QTime ParseTimeOfDay(const QString &text);

/// Seconds to add to UTC for a zone text: "hh:mm" or "h:mm" in ASCII after its first character. A
/// leading "-" means negative, any other first character positive. Any other text gives 0.
int ParseZoneOffset(const QString &zone);

/// The adjustment in seconds, before the adjust type gives it a direction: hours, minutes and
/// seconds at the positions 0-1, 3-4 and 6-7, with any characters between them. A field may have a
/// sign; one that is not a number counts as 0.
int ParseAdjustment(const QString &adjustment);

/// Zone and adjustment together, in seconds to add to UTC. An adjust type of 1 subtracts the
/// adjustment; every other adds it.
int ClockOffset(const QString &zone, const QString &adjustment, int adjustType);

} // namespace Lw::HNodeClock
