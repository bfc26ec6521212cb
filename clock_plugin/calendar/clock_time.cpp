#include "calendar/clock_time.h"

#include "calendar/time_units.h"

#include "number_text.h"

#include <QLocale>

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

constexpr qint64 kEpochJulianDay = 2440588; // 1970-01-01

bool IsAscii(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 128; });
}

// Qt 6 refuses a sign in place of a field's leading zero; Qt 5 does not.
QString WithoutSigns(QString text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        const bool beginsField = i == 0 || text.at(i - 1) == QLatin1Char(':');
        if (beginsField && text.at(i) == QLatin1Char('+') && text.at(i + 1).isDigit())
            text[i] = QLatin1Char('0');
    }
    return text;
}

// Untrusted strings may have any length, so the length is checked first. QTime::fromString() also
// accepts the locale's digits; a text must mean the same on every device.
QTime TimeFromText(const QString &text, const QString &pattern, int longest)
{
    return text.size() <= longest && IsAscii(text) ? QTime::fromString(WithoutSigns(text), pattern)
                                                   : QTime();
}

int FieldAt(const QString &text, int position)
{
    return NumberIn(text.mid(position, 2));
}

} // namespace

DisplayedFields SplitReading(qint64 reading)
{
    const qint64 days = FloorDivide(reading, kMillisecondsPerDay);
    const QDate date = QDate::fromJulianDay(kEpochJulianDay + days);
    const auto second =
        static_cast<int>(FloorModulo(reading, kMillisecondsPerDay) / kMillisecondsPerSecond);
    DisplayedFields fields;
    date.getDate(&fields.year, &fields.month, &fields.day);
    fields.hour = second / kSecondsPerHour;
    fields.minute = second / kSecondsPerMinute % 60;
    fields.second = second % 60;
    fields.dayOfWeek = date.dayOfWeek();
    return fields;
}

QString FormatAscii(const QDate &date, const char *format)
{
    return QLocale::c().toString(date, QLatin1String(format));
}

QString FormatAscii(const QTime &time, const char *format)
{
    return QLocale::c().toString(time, QLatin1String(format));
}

QString FormatAscii(const QDateTime &dateTime, const char *format)
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
    return kSecondsPerHour * FieldAt(adjustment, 0) + kSecondsPerMinute * FieldAt(adjustment, 3)
        + FieldAt(adjustment, 6);
}

int ClockOffset(const QString &zone, const QString &adjustment, int adjustType)
{
    const int correction = ParseAdjustment(adjustment);
    return ParseZoneOffset(zone) + (adjustType == 1 ? -correction : correction);
}

} // namespace Lw::HNodeClock
