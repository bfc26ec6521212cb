#include "clock_status.h"

#include "calendar/clock_time.h"
#include "calendar/time_units.h"
#include "clock_attributes.h"
#include "hnode.h"

#include <charconv>
#include <cstdlib>
#include <limits>
#include <utility>

namespace ClockStage {

namespace {

using namespace Lw::HNodeClock;

constexpr int kStatusLength = 160; // of most
const QLatin1String kSeparator(" | ");

// Padded with leading zeros to as many digits as the power of ten has. Returns the end.
char *PutNumber(char *to, int number, int power)
{
    for (; power > 1 && number < power; power /= 10)
        *to++ = '0';
    return std::to_chars(to, to + std::numeric_limits<int>::digits10 + 1, number).ptr;
}

void AppendNumber(QString &text, int number)
{
    char digits[std::numeric_limits<int>::digits10 + 1];
    text += QLatin1String(digits, static_cast<int>(PutNumber(digits, number, 1) - digits));
}

// Date and time with a character between them, such as "2024-03-31T00:59:58". Called every second,
// so without QDateTime, which would also query the system's zone.
void AppendReading(QString &text, qint64 reading, char between)
{
    const DisplayedFields fields = SplitReading(reading);
    char characters[32];
    char *end = characters;
    if (fields.year < 0)
        *end++ = '-';
    end = PutNumber(end, std::abs(fields.year), 1000);
    for (const auto &[separator, number] :
         {std::pair('-', fields.month), std::pair('-', fields.day), std::pair(between, fields.hour),
          std::pair(':', fields.minute), std::pair(':', fields.second)}) {
        *end++ = separator;
        end = PutNumber(end, number, 10);
    }
    text += QLatin1String(characters, static_cast<int>(end - characters));
}

// Whole minutes as "+01:00"; an adjusted clock may also have seconds.
void AppendOffset(QString &text, int seconds)
{
    const int size = std::abs(seconds);
    char characters[32];
    char *end = characters;
    *end++ = seconds < 0 ? '-' : '+';
    end = PutNumber(end, size / kSecondsPerHour, 10);
    *end++ = ':';
    end = PutNumber(end, size / kSecondsPerMinute % 60, 10);
    if (size % kSecondsPerMinute) {
        *end++ = ':';
        end = PutNumber(end, size % kSecondsPerMinute, 10);
    }
    text += QLatin1String(characters, static_cast<int>(end - characters));
}

QString ReadingText(qint64 reading, char between)
{
    QString text;
    AppendReading(text, reading, between);
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
    return QStringLiteral("daylight saving %1 %2Z: %3 becomes %4")
        .arg(change->after > change->before ? QStringLiteral("begins") : QStringLiteral("ends"),
             ReadingText(change->instant, 'T'), timeOfDay(change->before),
             timeOfDay(change->after));
}

void AppendTravel(QString &text, const Status &status)
{
    AppendReading(text, status.instant, 'T');
    text += QLatin1Char('Z');
    if (status.speed != 1)
        text += QStringLiteral(" x%1").arg(status.speed);
    if (status.paused)
        text += QLatin1String(" paused");
}

// Without QString::arg(), which takes longer than all else in the line.
void AppendPlace(QString &text, const Status &status)
{
    text += QLatin1String("clock ");
    AppendNumber(text, status.clockNumber);
    text += QLatin1String(" of ");
    AppendNumber(text, status.clockCount);
    text += QLatin1String(": ");
}

void AppendClock(QString &text, const Status &status, int offset)
{
    if (status.clockCount != 1)
        AppendPlace(text, status);
    AppendReading(text, status.instant + offset * kMillisecondsPerSecond, ' ');
    text += QLatin1Char(' ');
    AppendOffset(text, offset);
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
    QString text;
    text.reserve(kStatusLength);
    AppendTravel(text, status);
    if (status.clock) {
        text += kSeparator;
        AppendClock(text, status, memory.OffsetAt(*status.clock, status.instant));
        text += kSeparator;
        text += memory.ChangeText(*status.clock, status.instant);
    }
    return text;
}

} // namespace ClockStage
