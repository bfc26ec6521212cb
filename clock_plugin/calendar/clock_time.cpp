#include "calendar/clock_time.h"

#include <QLocale>
#include <QStringRef>

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

constexpr qint64 kMillisecondsOfDay = 86400000;
constexpr qint64 kEpochJulianDay = 2440588; // 1970-01-01

struct DayAndTime
{
    qint64 julianDay;
    int millisecond; // of the day
};

constexpr DayAndTime SplitDay(qint64 reading)
{
    const qint64 rest = reading % kMillisecondsOfDay;
    const qint64 days = reading / kMillisecondsOfDay - (rest < 0 ? 1 : 0);
    return {kEpochJulianDay + days, static_cast<int>(rest < 0 ? rest + kMillisecondsOfDay : rest)};
}

bool IsAscii(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 128; });
}

// No text longer than its pattern is a time; the length is asked first because texts of any size
// come in from outside. Beside ASCII's, Qt takes the digits of the program's locale, QLocale::c()
// or not; a text must not be a time on one device and none on another.
QTime TimeFromText(const QString &text, const QString &pattern, int longest)
{
    return text.size() <= longest && IsAscii(text) ? QTime::fromString(text, pattern) : QTime();
}

int FieldAt(const QString &text, int position)
{
    return text.midRef(position, 2).toInt();
}

} // namespace

DisplayedFields SplitReading(qint64 reading)
{
    const DayAndTime split = SplitDay(reading);
    const QDate date = QDate::fromJulianDay(split.julianDay);
    const int second = split.millisecond / 1000;
    DisplayedFields fields;
    date.getDate(&fields.year, &fields.month, &fields.day);
    fields.hour = second / 3600;
    fields.minute = second / 60 % 60;
    fields.second = second % 60;
    fields.dayOfWeek = date.dayOfWeek();
    return fields;
}

QString PlainText(const QDate &date, const char *format)
{
    return QLocale::c().toString(date, QLatin1String(format));
}

QString PlainText(const QTime &time, const char *format)
{
    return QLocale::c().toString(time, QLatin1String(format));
}

QString PlainText(const QDateTime &dateTime, const char *format)
{
    return QLocale::c().toString(dateTime, QLatin1String(format));
}

QTime ParseTimeOfDay(const QString &text)
{
    return TimeFromText(text, QStringLiteral("hh:mm:ss"), 8);
}

int ParseZoneOffset(const QString &zone)
{
    const QString text = zone.mid(1);
    QTime time = TimeFromText(text, QStringLiteral("hh:mm"), 5);
    if (!time.isValid())
        time = TimeFromText(text, QStringLiteral("h:mm"), 5);
    if (!time.isValid())
        return 0;
    const int seconds = QTime(0, 0).secsTo(time);
    return zone.startsWith(QLatin1Char('-')) ? -seconds : seconds;
}

int ParseAdjustment(const QString &adjustment)
{
    return 3600 * FieldAt(adjustment, 0) + 60 * FieldAt(adjustment, 3) + FieldAt(adjustment, 6);
}

int ClockOffset(const QString &zone, const QString &adjustment, int adjustType)
{
    const int correction = ParseAdjustment(adjustment);
    return ParseZoneOffset(zone) + (adjustType == 1 ? -correction : correction);
}

} // namespace Lw::HNodeClock
