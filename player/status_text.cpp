#include "status_text.h"

#include "calendar/clock_time.h"

#include <QDateTime>
#include <QStringList>

namespace ClockPlayer {

namespace {

using Lw::HNodeClock::PlainText;

constexpr qint64 kSecond = 1000;

QDateTime Utc(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

QString InstantText(qint64 instant)
{
    return PlainText(Utc(instant), "yyyy-MM-dd'T'HH:mm:ss'Z'");
}

// Whole minutes as "+01:00"; an adjusted clock may also have seconds.
QString OffsetText(int seconds)
{
    const int size = qAbs(seconds);
    const auto field = [](int number) {
        return QStringLiteral(":%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    return QLatin1Char(seconds < 0 ? '-' : '+') + field(size / 3600).mid(1) + field(size / 60 % 60)
        + (size % 60 ? field(size % 60) : QString());
}

QString TravelText(const Status &status)
{
    QString text = InstantText(status.instant);
    if (status.speed != 1)
        text += QStringLiteral(" x%1").arg(status.speed);
    if (status.paused)
        text += QStringLiteral(" paused");
    return text;
}

QString ClockText(const Status &status)
{
    const int offset = OffsetAt(*status.clock, status.instant);
    const QString reading =
        PlainText(Utc(status.instant + offset * kSecond), "yyyy-MM-dd HH:mm:ss ")
        + OffsetText(offset);
    if (status.clockCount == 1)
        return reading;
    return QStringLiteral("clock %1 of %2: %3")
        .arg(status.clockNumber)
        .arg(status.clockCount)
        .arg(reading);
}

QString ChangeText(const Status &status)
{
    const std::optional<Change> change = NextChange(*status.clock, status.instant);
    if (!change)
        return QStringLiteral("no daylight saving");
    const auto timeOfDay = [&change](int offset) {
        return PlainText(Utc(change->instant + offset * kSecond), "HH:mm:ss");
    };
    return QStringLiteral("daylight saving %1 %2: %3 becomes %4")
        .arg(change->after > change->before ? QStringLiteral("begins") : QStringLiteral("ends"),
             InstantText(change->instant), timeOfDay(change->before), timeOfDay(change->after));
}

} // namespace

QString StatusText(const Status &status)
{
    QStringList parts {TravelText(status)};
    if (status.clock)
        parts += {ClockText(status), ChangeText(status)};
    return parts.join(QStringLiteral(" | "));
}

} // namespace ClockPlayer
