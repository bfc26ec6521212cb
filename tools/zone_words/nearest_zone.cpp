#include "nearest_zone.h"

#include "suggestion.h"
#include "system_zones.h"

#include <QStringList>

namespace ClockTool {

namespace {

// Large cities that have no zone named after them.
struct SharedZone
{
    const char *zone;
    const char *cities; ///< with blanks between them, and "_" within a name
};

// clang-format off
constexpr SharedZone kSharedZones[] = {
    {"Asia/Shanghai", "Beijing Peking Chengdu Guangzhou Hangzhou Nanjing Shenzhen Tianjin Wuhan Xian"},
    {"Asia/Kolkata", "Mumbai Bombay Delhi New_Delhi Bangalore Bengaluru Chennai Hyderabad Ahmedabad Pune"},
    {"Asia/Tokyo", "Osaka Kyoto Nagoya Sapporo Yokohama"},
    {"Asia/Seoul", "Busan Incheon"},
    {"Asia/Taipei", "Kaohsiung Taichung"},
    {"Asia/Tehran", "Isfahan Mashhad Shiraz Tabriz"},
    {"Asia/Karachi", "Islamabad Lahore"},
    {"Asia/Ho_Chi_Minh", "Hanoi"},
    {"Asia/Dubai", "Abu_Dhabi Sharjah"},
    {"Asia/Qatar", "Doha"},
    {"Asia/Riyadh", "Jeddah Mecca Medina"},
    {"Asia/Jerusalem", "Tel_Aviv Haifa"},
    {"Europe/Berlin", "Munich München Hamburg Frankfurt Cologne Köln Stuttgart Düsseldorf Leipzig Dresden"},
    {"Europe/Zurich", "Geneva Bern Basel Zürich"},
    {"Europe/Vienna", "Graz Salzburg Linz"},
    {"Europe/Paris", "Lyon Marseille Toulouse Nice"},
    {"Europe/London", "Birmingham Edinburgh Glasgow Liverpool Manchester"},
    {"Europe/Rome", "Milan Naples Turin Florence Venice"},
    {"Europe/Madrid", "Barcelona Seville Valencia"},
    {"Europe/Lisbon", "Porto"},
    {"Europe/Amsterdam", "Rotterdam The_Hague Eindhoven"},
    {"Europe/Brussels", "Antwerp Ghent"},
    {"Europe/Stockholm", "Gothenburg Malmo"},
    {"Europe/Warsaw", "Krakow Gdansk Wroclaw"},
    {"Europe/Moscow", "Saint_Petersburg St_Petersburg"},
    {"Europe/Istanbul", "Ankara Izmir"},
    {"Africa/Cairo", "Alexandria"},
    {"Africa/Casablanca", "Rabat Marrakesh Marrakech"},
    {"Africa/Johannesburg", "Cape_Town Pretoria Durban"},
    {"Africa/Lagos", "Abuja"},
    {"America/New_York", "Atlanta Baltimore Boston Miami Orlando Philadelphia Pittsburgh Washington"},
    {"America/Chicago", "Austin Dallas Houston Memphis Minneapolis New_Orleans San_Antonio"},
    {"America/Denver", "Albuquerque Salt_Lake_City"},
    {"America/Los_Angeles", "Las_Vegas Portland Sacramento San_Diego San_Francisco San_Jose Seattle"},
    {"America/Toronto", "Montreal Ottawa Quebec"},
    {"America/Edmonton", "Calgary"},
    {"America/Mexico_City", "Guadalajara Puebla"},
    {"America/Sao_Paulo", "Brasilia Rio_de_Janeiro Curitiba"},
    {"Australia/Sydney", "Canberra Newcastle"},
    {"Pacific/Auckland", "Wellington Christchurch"},
};
// clang-format on

/// Case-insensitive, "_" or spaces between words; empty for a city that is not listed.
QString ZoneOfCity(const QString &city)
{
    const QString word = city.simplified().replace(QLatin1Char(' '), QLatin1Char('_'));
    for (const SharedZone &shared : kSharedZones) {
        const QStringList cities = QString::fromUtf8(shared.cities).split(QLatin1Char(' '));
        if (cities.contains(word, Qt::CaseInsensitive))
            return QLatin1String(shared.zone);
    }
    return {};
}

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
