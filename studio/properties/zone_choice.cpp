#include "zone_choice.h"

#include "system_zones.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>
#include <iterator>

namespace ClockStudio {

namespace {

using namespace ClockZones;

QString OffsetText(int seconds)
{
    ZoneSettings settings;
    settings.offset = seconds;
    return settings.ZoneText();
}

ZoneName NameOf(const QByteArray &zone)
{
    const QString name = QString::fromLatin1(zone);
    const QTimeZone system(zone);
    QString city = name.section(QLatin1Char('/'), -1);
    QString region = name.section(QLatin1Char('/'), 0, -2);
    const QString country = QLocale::countryToString(system.country());
    if (system.country() != QLocale::AnyCountry)
        region = country + QStringLiteral(", ") + region;
    return {zone, city.replace(QLatin1Char('_'), QLatin1Char(' ')),
            region.replace(QLatin1Char('_'), QLatin1Char(' ')),
            OffsetText(system.standardTimeOffset(QDateTime::currentDateTimeUtc()))};
}

} // namespace

const QVector<ZoneName> &AllZones()
{
    static const QVector<ZoneName> zones = [] {
        QVector<ZoneName> all;
        for (const QByteArray &zone : ZoneNames()) {
            if (zone.contains('/') && !zone.startsWith("Etc/"))
                all.append(NameOf(zone));
        }
        std::sort(all.begin(), all.end(), [](const ZoneName &one, const ZoneName &other) {
            return QString::localeAwareCompare(one.city, other.city) < 0;
        });
        return all;
    }();
    return zones;
}

namespace {

bool Matches(const ZoneName &zone, const QString &search)
{
    static const QRegularExpression blanks(QStringLiteral("[\\s/,_]+"));
    const QStringList words = (zone.city + QLatin1Char(' ') + zone.region + QLatin1Char(' ')
                               + zone.offset + QStringLiteral(" UTC") + zone.offset)
                                  .split(blanks, Qt::SkipEmptyParts);
    const QStringList wanted = search.split(blanks, Qt::SkipEmptyParts);
    return std::all_of(wanted.cbegin(), wanted.cend(), [&words](const QString &begin) {
        return std::any_of(words.cbegin(), words.cend(), [&begin](const QString &word) {
            return word.startsWith(begin, Qt::CaseInsensitive);
        });
    });
}

} // namespace

QVector<ZoneName> MatchingZones(const QString &search)
{
    QVector<ZoneName> found;
    std::copy_if(AllZones().cbegin(), AllZones().cend(), std::back_inserter(found),
                 [&search](const ZoneName &zone) { return Matches(zone, search); });
    std::stable_partition(found.begin(), found.end(), [&search](const ZoneName &zone) {
        return zone.city.startsWith(search.trimmed(), Qt::CaseInsensitive);
    });
    return found;
}

std::optional<ZoneAnswer> SettingsFor(const QByteArray &zone, const QDate &today)
{
    const Span span = TenYearsFrom(today);
    const auto civil = CivilTimeOf(zone, span);
    const auto after = CivilTimeOf(zone, ListedAfter(span));
    if (!civil || !after || span.begin >= span.end)
        return std::nullopt;
    ZoneAnswer answer;
    answer.settings = BestSettings(*civil, *after);
    answer.wrong = WrongTimes(answer.settings, *civil);
    answer.otherShift = OtherShift(*civil);
    answer.rightUntil = RightUntil(answer.settings, *after);
    return answer;
}

KnownZone ZoneOf(const ZoneSettings &settings, const QDate &today)
{
    static QHash<QString, KnownZone> known;
    const QString key = settings.ZoneText() + settings.start + settings.end + today.toString();
    if (!known.contains(key)) {
        const Span span = TenYearsFrom(today);
        const QByteArray zone = ZoneWith(settings, span);
        const auto after = zone.isEmpty() ? std::nullopt : CivilTimeOf(zone, ListedAfter(span));
        known.insert(
            key, after ? KnownZone {NameOf(zone).city, RightUntil(settings, *after)} : KnownZone());
    }
    return known.value(key);
}

} // namespace ClockStudio
