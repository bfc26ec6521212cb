#include "instant.h"

#include "calendar/time_units.h"

#include <QDateTime>
#include <QRegularExpression>

namespace ClockStage {

namespace {

// Named groups, in the order of the grammar in the header.
const char kInstantPattern[] =
    "\\A(?<date>[0-9]{4}-[0-9]{2}-[0-9]{2})"
    "(?:T(?<hour>[0-9]{2}):(?<minute>[0-9]{2})"
    "(?::(?<second>[0-9]{2})(?:[.,](?<fraction>[0-9]{1,3}))?)?"
    "(?<offset>Z|(?<sign>[+-])(?<hours>[0-9]{2})(?::?(?<minutes>[0-9]{2}))?)?)?\\z";

int Number(const QRegularExpressionMatch &match, const char *group)
{
    return match.captured(QLatin1String(group)).toInt();
}

QTime TimeOf(const QRegularExpressionMatch &match)
{
    const QString fraction = match.captured(QStringLiteral("fraction")).leftJustified(3, '0');
    return QTime(Number(match, "hour"), Number(match, "minute"), Number(match, "second"),
                 fraction.toInt());
}

std::optional<int> OffsetSeconds(const QRegularExpressionMatch &match)
{
    const int hours = Number(match, "hours");
    const int minutes = Number(match, "minutes");
    if (hours > 23 || minutes > 59)
        return std::nullopt;
    const int seconds = (hours * 60 + minutes) * 60;
    return match.captured(QStringLiteral("sign")) == QLatin1String("-") ? -seconds : seconds;
}

} // namespace

std::optional<qint64> ParseInstant(const QString &text)
{
    static const QRegularExpression pattern(QString::fromLatin1(kInstantPattern));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QDate date = QDate::fromString(match.captured(QStringLiteral("date")), Qt::ISODate);
    const QTime time = TimeOf(match);
    const std::optional<int> offset = OffsetSeconds(match);
    if (!date.isValid() || !time.isValid() || !offset)
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch()
        - *offset * Lw::HNodeClock::kMillisecondsPerSecond;
}

qint64 WholeSecond(qint64 milliseconds)
{
    using namespace Lw::HNodeClock;
    return milliseconds - FloorModulo(milliseconds, kMillisecondsPerSecond);
}

} // namespace ClockStage
