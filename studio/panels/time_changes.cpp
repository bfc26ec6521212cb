#include "time_changes.h"

#include "calendar/lunar_date.h"

#include <QDateTime>

#include <algorithm>

namespace ClockStudio {

namespace {

using Lw::HNodeClock::ZoneSettings;

constexpr qint64 kSecond = 1000;
constexpr qint64 kDay = 86400 * kSecond;
constexpr int kLunarSearchDays = 31; // a lunar month has 29 or 30 days

/// What a clock shows at an instant, in a QDateTime that is marked as UTC.
QDateTime Reading(const ZoneSettings &clock, qint64 instant)
{
    return QDateTime::fromMSecsSinceEpoch(
        instant + Lw::HNodeClock::OffsetAt(clock, instant) * kSecond, Qt::UTC);
}

/// The instant at which a clock shows the midnight that begins a date.
qint64 MidnightOf(const ZoneSettings &clock, const QDate &date)
{
    const qint64 reading = QDateTime(date, QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    const qint64 standard = reading - clock.offset * kSecond;
    const qint64 shifted = reading - Lw::HNodeClock::OffsetAt(clock, standard) * kSecond;
    return Reading(clock, shifted).date() == date ? shifted : standard;
}

bool IsLunarMonthStart(const QDate &date)
{
    return Lw::HNodeClock::LunarDateOf(date).day == 1;
}

/// The first date after the given one on which such a change happens; invalid if there is none.
QDate NextDate(ChangeKind kind, const QDate &date)
{
    switch (kind) {
    case ChangeKind::Midnight:
        return date.addDays(1);
    case ChangeKind::Month:
        return QDate(date.year(), date.month(), 1).addMonths(1);
    case ChangeKind::Year:
        return QDate(date.year() + 1, 1, 1);
    case ChangeKind::LunarMonth:
        for (int days = 1; days <= kLunarSearchDays; ++days) {
            if (IsLunarMonthStart(date.addDays(days)))
                return date.addDays(days);
        }
        break;
    case ChangeKind::DaylightSaving:
        break;
    }
    return {};
}

std::optional<qint64> NextOf(ChangeKind kind, const ZoneSettings &clock, qint64 instant)
{
    if (kind == ChangeKind::DaylightSaving) {
        const auto change = Lw::HNodeClock::NextChange(clock, instant);
        return change ? std::optional<qint64>(change->instant) : std::nullopt;
    }
    const QDate date = NextDate(kind, Reading(clock, instant).date());
    return date.isValid() ? std::optional<qint64>(MidnightOf(clock, date)) : std::nullopt;
}

} // namespace

std::optional<qint64> NextChangeOf(ChangeKind kind, const QVector<ZoneSettings> &clocks,
                                   qint64 instant)
{
    std::optional<qint64> first;
    for (const ZoneSettings &clock : clocks) {
        std::optional<qint64> next = NextOf(kind, clock, instant);
        // MidnightOf() may give a midnight just before the instant.
        if (next && *next <= instant)
            next = NextOf(kind, clock, instant + kDay);
        if (next && *next > instant && (!first || *next < *first))
            first = next;
    }
    return first;
}

} // namespace ClockStudio
