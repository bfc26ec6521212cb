#include "clock_status.h"

#include "calendar/clock_time.h"
#include "clock_attributes.h"
#include "hnode.h"

#include <QDateTime>
#include <QStringList>
#include <QVector>

#include <algorithm>

namespace ClockStage {

namespace {

using namespace Lw::HNodeClock;

constexpr qint64 kSecond = 1000;
constexpr int kYearsToSearch = 50;

/// Readings of the zone's standard time at which daylight saving may begin or end in a year: what
/// its rules name, and the new year, when the rules of another year come into force.
QVector<qint64> CandidatesOf(int year, const DaylightRule &start, const DaylightRule &end)
{
    QVector<qint64> candidates {
        QDateTime(QDate(year, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch()};
    for (const DaylightRule &rule : {start, end}) {
        const QDateTime boundary = BoundaryInYear(rule, year);
        if (boundary.isValid())
            candidates.append(boundary.toMSecsSinceEpoch());
    }
    std::sort(candidates.begin(), candidates.end());
    return candidates;
}

int ShiftAt(const ClockSettings &settings, qint64 reading)
{
    return settings.savesDaylight
        ? DaylightSaving().ShiftSeconds(settings.start, settings.end, reading)
        : 0;
}

// Read from the table itself: the plugin's sources are not linked here.
QString KeyOf(Attribute attribute)
{
    return QString::fromLatin1(RowOf(attribute).key);
}

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

std::optional<ClockSettings> SettingsOf(Lw::HNode *node)
{
    if (!node || !node->HaveAttribute(KeyOf(Attribute::TimeZone)))
        return std::nullopt;
    ClockSettings settings;
    settings.offsetSeconds = ClockOffset(node->GetAttribute(KeyOf(Attribute::TimeZone)),
                                         node->GetAttribute(KeyOf(Attribute::TimeAdjust)),
                                         node->GetAttributeToInt(KeyOf(Attribute::AdjustType)));
    settings.savesDaylight = node->GetAttributeToInt(KeyOf(Attribute::UseDaylightSavingTime)) == 1;
    settings.start = node->GetAttribute(KeyOf(Attribute::DaylightSavingTimeStart));
    settings.end = node->GetAttribute(KeyOf(Attribute::DaylightSavingTimeEnd));
    return settings;
}

int OffsetAt(const ClockSettings &settings, qint64 instant)
{
    return settings.offsetSeconds + ShiftAt(settings, instant + settings.offsetSeconds * kSecond);
}

std::optional<Change> NextChange(const ClockSettings &settings, qint64 instant)
{
    const std::optional<DaylightRule> start = ParseDaylightRule(settings.start);
    const std::optional<DaylightRule> end = ParseDaylightRule(settings.end);
    if (!settings.savesDaylight || !start || !end)
        return std::nullopt;
    const qint64 offset = settings.offsetSeconds * kSecond;
    const int now = ShiftAt(settings, instant + offset);
    const int year = std::max(1, SplitReading(instant + offset).year);
    for (int later = 0; later <= kYearsToSearch; ++later) {
        for (const qint64 candidate : CandidatesOf(year + later, *start, *end)) {
            const int shift = ShiftAt(settings, candidate);
            if (candidate > instant + offset && shift != now)
                return Change {candidate - offset, settings.offsetSeconds + now,
                               settings.offsetSeconds + shift};
        }
    }
    return std::nullopt;
}

QString StatusText(const Status &status)
{
    QStringList parts {TravelText(status)};
    if (status.clock)
        parts += {ClockText(status), ChangeText(status)};
    return parts.join(QStringLiteral(" | "));
}

} // namespace ClockStage
