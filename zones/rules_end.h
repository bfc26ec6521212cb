// zones/: until when daylight-saving rules are those of a zone.
#pragma once

#include "zone_rule.h"

#include <QByteArray>
#include <QDate>
#include <QHash>

#include <optional>

namespace ClockZones {

/// The end of the last period, at least two years long and begun by `now`, in which a clock with
/// these settings shows the zone's time. Nothing if there is none. Two years of agreement show
/// that the rules are meant for the zone. Pure.
std::optional<qint64> LastAgreement(const ZoneSettings &settings, const CivilTime &civil,
                                    qint64 now);

/// Until when a zone of the system uses the rules of a clock.
struct RulesEnd
{
    qint64 until = 0;      ///< UTC milliseconds; in the past if the zone has already left them
    QByteArray zone;       ///< the first of the zones that use them longest
    QList<QByteArray> all; ///< all of those zones; only one if the zone data end
    bool isListed = false; ///< false: the zone data end then, and no other end is known
};

/// Finds the end of rules, and caches it for a day: where no widely used zone has the rules, all
/// zones are read.
class RulesEnds
{
public:
    /// Nothing without daylight saving, for rules that no zone has used for two of the last twenty
    /// years, and where the system's zone data do not reach `now` (UTC milliseconds).
    std::optional<RulesEnd> Of(const ZoneSettings &settings, qint64 now);

private:
    struct Known
    {
        QDate day;
        std::optional<RulesEnd> end;
    };

    QHash<QString, Known> m_known;
};

} // namespace ClockZones
