#include "clock_status.h"

#include "calendar/clock_time.h"
#include "calendar/time_units.h"
#include "clock_attributes.h"
#include "hnode.h"

#include <QStringList>

#include <charconv>
#include <cstdlib>
#include <utility>

namespace ClockStage {

namespace {

using namespace Lw::HNodeClock;

// Padded with leading zeros to a width.
void AppendNumber(QString &text, int number, int width)
{
    char digits[16];
    const auto length =
        static_cast<int>(std::to_chars(digits, digits + sizeof digits, number).ptr - digits);
    for (int i = length; i < width; ++i)
        text += QLatin1Char('0');
    text += QLatin1String(digits, length);
}

// Date and time with a character between them, such as "2024-03-31T00:59:58". Called every second,
// so without QDateTime, which would also query the system's zone.
QString ReadingText(qint64 reading, char between)
{
    const DisplayedFields fields = SplitReading(reading);
    QString text;
    text.reserve(32);
    if (fields.year < 0)
        text += QLatin1Char('-');
    AppendNumber(text, std::abs(fields.year), 4);
    for (const auto &[separator, number] :
         {std::pair('-', fields.month), std::pair('-', fields.day), std::pair(between, fields.hour),
          std::pair(':', fields.minute), std::pair(':', fields.second)}) {
        text += QLatin1Char(separator);
        AppendNumber(text, number, 2);
    }
    return text;
}

QString InstantText(qint64 instant)
{
    return ReadingText(instant, 'T') + QLatin1Char('Z');
}

// Whole minutes as "+01:00"; an adjusted clock may also have seconds.
QString OffsetText(int seconds)
{
    const int size = std::abs(seconds);
    QString text(QLatin1Char(seconds < 0 ? '-' : '+'));
    AppendNumber(text, size / kSecondsPerHour, 2);
    text += QLatin1Char(':');
    AppendNumber(text, size / kSecondsPerMinute % 60, 2);
    if (size % kSecondsPerMinute) {
        text += QLatin1Char(':');
        AppendNumber(text, size % kSecondsPerMinute, 2);
    }
    return text;
}

QString ChangeText(const std::optional<ZoneChange> &change)
{
    if (!change)
        return QStringLiteral("no daylight saving");
    const auto timeOfDay = [&change](int offset) {
        const QString text = ReadingText(change->instant + offset * kMillisecondsPerSecond, 'T');
        return text.section(QLatin1Char('T'), 1);
    };
    return QStringLiteral("daylight saving %1 %2: %3 becomes %4")
        .arg(change->after > change->before ? QStringLiteral("begins") : QStringLiteral("ends"),
             InstantText(change->instant), timeOfDay(change->before), timeOfDay(change->after));
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
    const QString reading = ReadingText(status.instant + offset * kMillisecondsPerSecond, ' ')
        + QLatin1Char(' ') + OffsetText(offset);
    if (status.clockCount == 1)
        return reading;
    return QStringLiteral("clock ") + QString::number(status.clockNumber) + QStringLiteral(" of ")
        + QString::number(status.clockCount) + QStringLiteral(": ") + reading;
}

} // namespace

QString KeyOf(Attribute attribute)
{
    return QString::fromLatin1(RowOf(attribute).key);
}

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

QString ZoneMemory::ChangeText(const ZoneSettings &zone, qint64 instant)
{
    Learn(zone, instant);
    return m_changeText;
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
    m_changeText = ClockStage::ChangeText(m_change);
    m_from = instant;
    m_until = m_change ? m_change->instant : instant + kMillisecondsPerDay;
}

QString StatusText(const Status &status, ZoneMemory &memory)
{
    QStringList parts {TravelText(status)};
    if (status.clock)
        parts += {ClockText(status, memory), memory.ChangeText(*status.clock, status.instant)};
    return parts.join(QStringLiteral(" | "));
}

} // namespace ClockStage
