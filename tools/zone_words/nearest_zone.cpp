#include "nearest_zone.h"

#include "city_names.h"
#include "suggestion.h"
#include "system_zones.h"

namespace ClockTool {

namespace {

QString CityOf(const QString &zone)
{
    return zone.section(QLatin1Char('/'), -1);
}

} // namespace

QString NearestZone(const QString &name)
{
    const QString word = name.simplified().replace(QLatin1Char(' '), QLatin1Char('_'));
    QStringList zones;
    QStringList cities;
    for (const QByteArray &zone : ClockZones::ZoneNames()) {
        zones.append(QString::fromLatin1(zone));
        cities.append(CityOf(zones.last()));
    }
    const QString city = CityOf(word);
    const auto isCity = [&](const QString &other) {
        return other.compare(city, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(cities.cbegin(), cities.cend(), isCity);
    if (found != cities.cend())
        return zones[static_cast<int>(found - cities.cbegin())];
    const QString shared = ZoneOfCity(city);
    if (!shared.isEmpty())
        return shared;
    const QString nearest = Nearest(word, zones);
    return nearest.isEmpty() ? zones.value(cities.indexOf(Nearest(city, cities))) : nearest;
}

} // namespace ClockTool
