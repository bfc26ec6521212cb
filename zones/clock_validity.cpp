#include "clock_validity.h"

#include "calendar/calendar_deviations.h"
#include "calendar/time_units.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cstddef>
#include <iterator>

namespace ClockZones {

namespace {

using namespace Lw::HNodeClock;

constexpr qint64 kNotice = 90 * kMillisecondsPerDay;

struct EndRow
{
    ValidityEnd end;
    const char *code;
    const char *text; ///< %1 is the instant, %2 the zone
};

#define WORDS(text) QT_TRANSLATE_NOOP("ClockZones::Validity", text)

constexpr EndRow kEnds[] = {
    {ValidityEnd::Rules, "daylight_saving_rules",
     WORDS("the daylight-saving rules are those of %2 only until %1")},
    {ValidityEnd::ZoneData, "zone_data",
     WORDS("the daylight-saving rules are those of %2 until %1, where the system's zone data end")},
    {ValidityEnd::LunarDate, "lunar_calendar", WORDS("the lunar date is wrong from %1 on")},
    {ValidityEnd::LunarTable, "lunar_table", WORDS("the lunar date is missing from %1 on")},
    {ValidityEnd::PersianDate, "persian_calendar", WORDS("the Persian date is wrong from %1 on")},
};

constexpr bool EndsFollowEnumeration()
{
    for (std::size_t i = 0; i < std::size(kEnds); ++i) {
        if (static_cast<std::size_t>(kEnds[i].end) != i)
            return false;
    }
    return true;
}

static_assert(EndsFollowEnumeration(), "row i of the table must describe end i");

const EndRow &RowOf(ValidityEnd end)
{
    return kEnds[static_cast<int>(end)];
}

qint64 MidnightOf(const QDate &date)
{
    return QDateTime(date, QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
}

/// Keeps the earliest end.
class Earliest
{
public:
    void Add(const std::optional<Validity> &validity)
    {
        if (validity && (!m_found || validity->until < m_found->until))
            m_found = validity;
    }

    const std::optional<Validity> &Found() const { return m_found; }

private:
    std::optional<Validity> m_found;
};

/// The instant at which a day begins in standard time, which the lunar date uses.
qint64 StandardBegin(const QDate &day, const ZoneSettings &zone)
{
    return MidnightOf(day) - zone.offset * kMillisecondsPerSecond;
}

/// The same in the displayed time.
qint64 ShownBegin(const QDate &day, const ZoneSettings &zone)
{
    return MidnightOf(day) - OffsetAt(zone, StandardBegin(day, zone)) * kMillisecondsPerSecond;
}

/// The first deviation that is not over.
template<typename DayBegin>
std::optional<DeviatingDays> Next(const QVector<DeviatingDays> &deviations, qint64 now,
                                  DayBegin beginOf)
{
    for (const DeviatingDays &days : deviations) {
        if (!days.last.isValid() || now < beginOf(days.last.addDays(1)))
            return days;
    }
    return std::nullopt;
}

std::optional<Validity> LunarValidity(const ZoneSettings &zone, qint64 now)
{
    const auto beginOf = [&zone](const QDate &day) { return StandardBegin(day, zone); };
    const auto days = Next(LunarDeviations(), now, beginOf);
    if (!days)
        return std::nullopt;
    const bool isTable = !days->last.isValid();
    return Validity {
        beginOf(days->first), isTable ? ValidityEnd::LunarTable : ValidityEnd::LunarDate, {}};
}

std::optional<Validity> PersianValidity(const ZoneSettings &zone, qint64 now)
{
    const auto beginOf = [&zone](const QDate &day) { return ShownBegin(day, zone); };
    const auto days = Next(PersianDeviations(), now, beginOf);
    if (!days)
        return std::nullopt;
    return Validity {beginOf(days->first), ValidityEnd::PersianDate, {}};
}

} // namespace

std::optional<Validity> ValidityOf(const ValidityTerms &terms, qint64 now, RulesEnds &rules)
{
    Earliest earliest;
    if (const auto end = rules.Of(terms.zone, now))
        earliest.Add(Validity {
            end->until, end->isListed ? ValidityEnd::Rules : ValidityEnd::ZoneData, end->zone});
    if (terms.showsLunarDate)
        earliest.Add(LunarValidity(terms.zone, now));
    if (terms.showsPersianDate)
        earliest.Add(PersianValidity(terms.zone, now));
    return earliest.Found();
}

bool IsDue(const Validity &validity, qint64 now)
{
    return validity.end != ValidityEnd::ZoneData && now >= validity.until - kNotice;
}

QString CodeOf(ValidityEnd end)
{
    return QString::fromLatin1(RowOf(end).code);
}

QString TextOf(const Validity &validity)
{
    return QCoreApplication::translate("ClockZones::Validity", RowOf(validity.end).text)
        .replace(QLatin1String("%1"),
                 QDateTime::fromMSecsSinceEpoch(validity.until, Qt::UTC).toString(Qt::ISODate))
        .replace(QLatin1String("%2"), QString::fromLatin1(validity.zone));
}

} // namespace ClockZones
