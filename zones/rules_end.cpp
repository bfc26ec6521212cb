#include "rules_end.h"

#include "system_zones.h"

#include "calendar/time_units.h"

#include <QDateTime>

namespace ClockZones {

namespace {

using namespace Lw::HNodeClock;

constexpr qint64 kShortestAgreement = 2 * 365 * kMillisecondsPerDay;
constexpr int kYearsBack = 20;

/// Quick pre-check: whether a zone has the offsets of both seasons.
bool HasOffsets(const CivilTime &civil, const ZoneSettings &settings)
{
    bool hasStandard = civil.offset == settings.offset;
    bool hasDaylight = civil.offset == settings.offset + DaylightSaving::kShiftSeconds;
    for (const OffsetChange &change : civil.changes) {
        hasStandard = hasStandard || change.offset == settings.offset;
        hasDaylight =
            hasDaylight || change.offset == settings.offset + DaylightSaving::kShiftSeconds;
    }
    return hasStandard && hasDaylight;
}

std::optional<RulesEnd> FindEnd(const ZoneSettings &settings, qint64 now)
{
    const QDate today = QDateTime::fromMSecsSinceEpoch(now, Qt::UTC).date();
    const Span span = ListedSince(today.addYears(-kYearsBack));
    std::optional<RulesEnd> found;
    if (now >= span.end)
        return found;
    for (const QByteArray &zone : ZonesToTry()) {
        const auto civil = CivilTimeOf(zone, span);
        if (!civil || !HasOffsets(*civil, settings))
            continue;
        const std::optional<qint64> end = LastAgreement(settings, *civil, now);
        if (end && (!found || *end > found->until))
            found = RulesEnd {*end, zone, {zone}, *end < span.end};
        else if (end && *end == found->until && !found->all.contains(zone))
            found->all.append(zone);
        if (found && !found->isListed)
            break; // no zone can use them longer
    }
    return found;
}

} // namespace

std::optional<qint64> LastAgreement(const ZoneSettings &settings, const CivilTime &civil,
                                    qint64 now)
{
    QVector<WrongTime> wrong = WrongTimes(settings, civil);
    wrong.append({civil.end, civil.end, 0});
    std::optional<qint64> last;
    qint64 begin = civil.begin;
    for (const WrongTime &time : qAsConst(wrong)) {
        if (begin <= now && time.begin - begin >= kShortestAgreement)
            last = time.begin;
        begin = time.end;
    }
    return last;
}

std::optional<RulesEnd> RulesEnds::Of(const ZoneSettings &settings, qint64 now)
{
    if (!ParseDaylightRule(settings.start) || !ParseDaylightRule(settings.end))
        return std::nullopt;
    const QDate day = QDateTime::fromMSecsSinceEpoch(now, Qt::UTC).date();
    const QStringList parts {settings.ZoneText(), settings.start, settings.end};
    Known &known = m_known[parts.join(QLatin1Char('\n'))];
    if (known.day != day)
        known = {day, FindEnd(settings, now)};
    return known.end;
}

} // namespace ClockZones
