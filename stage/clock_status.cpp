#include "clock_status.h"

#include "calendar/clock_time.h"
#include "calendar/time_units.h"
#include "clock_attributes.h"
#include "hnode.h"

#include <QDateTime>
#include <QStringList>
#include <QVector>

#include <algorithm>

namespace ClockStage {

namespace {

using namespace Lw::HNodeClock;

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
    return QLatin1Char(seconds < 0 ? '-' : '+') + field(size / kSecondsPerHour).mid(1)
        + field(size / kSecondsPerMinute % 60)
        + (size % kSecondsPerMinute ? field(size % kSecondsPerMinute) : QString());
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

QString ClockText(const Status &status, ZoneMemory &memory)
{
    const int offset = memory.OffsetAt(*status.clock, status.instant);
    const QString reading =
        PlainText(Utc(status.instant + offset * kMillisecondsPerSecond), "yyyy-MM-dd HH:mm:ss ")
        + OffsetText(offset);
    if (status.clockCount == 1)
        return reading;
    return QStringLiteral("clock %1 of %2: %3")
        .arg(status.clockNumber)
        .arg(status.clockCount)
        .arg(reading);
}

QString ChangeText(const Status &status, ZoneMemory &memory)
{
    const std::optional<ZoneChange> change = memory.NextChange(*status.clock, status.instant);
    if (!change)
        return QStringLiteral("no daylight saving");
    const auto timeOfDay = [&change](int offset) {
        return PlainText(Utc(change->instant + offset * kMillisecondsPerSecond), "HH:mm:ss");
    };
    return QStringLiteral("daylight saving %1 %2: %3 becomes %4")
        .arg(change->after > change->before ? QStringLiteral("begins") : QStringLiteral("ends"),
             InstantText(change->instant), timeOfDay(change->before), timeOfDay(change->after));
}

} // namespace

std::optional<ZoneSettings> SettingsOf(Lw::HNode *node)
{
    if (!node || !node->HaveAttribute(KeyOf(Attribute::TimeZone)))
        return std::nullopt;
    ZoneSettings settings;
    settings.offset = ClockOffset(node->GetAttribute(KeyOf(Attribute::TimeZone)),
                                  node->GetAttribute(KeyOf(Attribute::TimeAdjust)),
                                  node->GetAttributeToInt(KeyOf(Attribute::AdjustType)));
    if (node->GetAttributeToInt(KeyOf(Attribute::UseDaylightSavingTime)) == 1) {
        settings.start = node->GetAttribute(KeyOf(Attribute::DaylightSavingTimeStart));
        settings.end = node->GetAttribute(KeyOf(Attribute::DaylightSavingTimeEnd));
    }
    return settings;
}

int ZoneMemory::OffsetAt(const ZoneSettings &zone, qint64 instant)
{
    Learn(zone, instant);
    return m_offset;
}

std::optional<ZoneChange> ZoneMemory::NextChange(const ZoneSettings &zone, qint64 instant)
{
    Learn(zone, instant);
    return m_change;
}

void ZoneMemory::Learn(const ZoneSettings &zone, qint64 instant)
{
    const bool isKnown = zone.offset == m_zone.offset && zone.start == m_zone.start
        && zone.end == m_zone.end && instant >= m_from && instant < m_until;
    if (isKnown)
        return;
    m_zone = zone;
    m_offset = Lw::HNodeClock::OffsetAt(zone, instant);
    m_change = Lw::HNodeClock::NextChange(zone, instant);
    m_from = instant;
    m_until = m_change ? m_change->instant : instant + kMillisecondsPerDay;
}

QString StatusText(const Status &status, ZoneMemory &memory)
{
    QStringList parts {TravelText(status)};
    if (status.clock)
        parts += {ClockText(status, memory), ChangeText(status, memory)};
    return parts.join(QStringLiteral(" | "));
}

} // namespace ClockStage
