// studio/properties: what can be set of the chosen clocks.
// Zones to choose from, by city, country or offset; and what a clock is set to for one.
#pragma once

#include "zones/zone_rule.h"

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QVector>

#include <optional>

namespace ClockStudio {

struct ZoneName
{
    QByteArray zone; ///< as the system names it
    QString city;
    QString region; ///< country and continent
    QString offset; ///< of the standard time now, "+05:30"
};

/// All of the system's zones with a city, by city. Made once.
const QVector<ZoneName> &AllZones();

/// Whether all words of a search begin a word of the zone's city, region or offset.
bool Matches(const ZoneName &zone, const QString &search);

struct ZoneAnswer
{
    ClockTool::ZoneSettings settings;
    /// Where a clock with them is wrong in the ten years from the day; empty where it never is.
    QVector<ClockTool::WrongTime> wrong;
    qint64 rightUntil = 0; ///< milliseconds since 1970-01-01 UTC, where it is never wrong
};

/// Nothing for a zone that the system does not know.
std::optional<ZoneAnswer> SettingsFor(const QByteArray &zone, const QDate &today);

/// The city of a zone that has these settings' time; empty where there is none.
QString CityWith(const ClockTool::ZoneSettings &settings, const QDate &today);

} // namespace ClockStudio
