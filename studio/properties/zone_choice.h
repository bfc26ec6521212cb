// studio/properties: the list of zones, searchable by city, country or offset, and the clock
// settings for each.
#pragma once

#include "zone_rule.h"

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QVector>

#include <optional>

namespace ClockStudio {

struct ZoneName
{
    QByteArray zone; ///< IANA name
    QString city;
    QString region; ///< country and continent
    QString offset; ///< current standard time, "+05:30"
};

/// All of the system's zones with a city, sorted by city. Built once.
const QVector<ZoneName> &AllZones();

/// The zones in which each word of the search is a prefix of a word of city, region or offset;
/// first those whose city begins with the search. Otherwise sorted by city.
QVector<ZoneName> MatchingZones(const QString &search);

struct ZoneAnswer
{
    ClockZones::ZoneSettings settings;
    /// The periods in the ten years from `today` in which such a clock is wrong; empty if exact.
    QVector<ClockZones::WrongTime> wrong;
    int otherShift = 0;    ///< the zone's, in seconds, where daylight saving is not an hour; or 0
    qint64 rightUntil = 0; ///< UTC ms until which the settings are right; only if `wrong` is empty
};

/// The best settings for a zone; nothing if the system does not know it.
std::optional<ZoneAnswer> SettingsFor(const QByteArray &zone, const QDate &today);

/// A zone whose time agrees with a clock's settings for ten years from a day.
struct KnownZone
{
    QString city;          ///< empty where no zone has it
    qint64 rightUntil = 0; ///< UTC milliseconds; right at least until then
};

KnownZone ZoneOf(const ClockZones::ZoneSettings &settings, const QDate &today);

} // namespace ClockStudio
