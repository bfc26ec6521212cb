#include "system_zones.h"

#include "calendar/clock_time.h"
#include "calendar/time_units.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>

namespace ClockZones {

namespace {

constexpr int kYears = 10;

/// Preferred where several zones have the same time.
constexpr const char *kWidelyUsed[] = {
    "Europe/Berlin",     "Europe/London",       "Europe/Athens",     "Atlantic/Azores",
    "America/New_York",  "America/Chicago",     "America/Denver",    "America/Los_Angeles",
    "America/Anchorage", "America/Halifax",     "America/St_Johns",  "America/Havana",
    "Australia/Sydney",  "Australia/Adelaide",  "Pacific/Auckland",  "Pacific/Chatham",
    "Africa/Cairo",      "America/Mexico_City", "America/Sao_Paulo", "Europe/Moscow",
};

QDateTime Utc(qint64 milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC);
}

qint64 MidnightOf(const QDate &date)
{
    return QDateTime(date, QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
}

/// Such a name cannot escape the zone directory.
bool IsZoneName(const QByteArray &name)
{
    static const QRegularExpression form(
        QStringLiteral("^[A-Za-z0-9_:+-]{1,64}(/[A-Za-z0-9_+-]{1,64}){0,3}$"));
    return form.match(QString::fromLatin1(name.constData(), name.size())).hasMatch();
}

// Qt 6 has a zone for any other word too, as if it were the abbreviation of one.
bool IsZone(const QByteArray &name)
{
    return QFileInfo(QStringLiteral("/usr/share/zoneinfo/") + QString::fromLatin1(name)).isFile()
        || QTimeZone::isTimeZoneIdAvailable(name);
}

CivilTime CivilTimeOf(const QTimeZone &zone, const Span &span)
{
    const auto [begin, end] = span;
    CivilTime civil {begin, end, zone.offsetFromUtc(Utc(begin)), {}};
    int offset = civil.offset;
    for (const QTimeZone::OffsetData &data : zone.transitions(Utc(begin), Utc(end))) {
        const qint64 at = data.atUtc.toMSecsSinceEpoch();
        if (at <= begin || at >= end || data.offsetFromUtc == offset)
            continue; // only the abbreviation changed
        offset = data.offsetFromUtc;
        civil.changes.append({at, offset});
    }
    return civil;
}

/// Quick pre-check: whether a zone can match the settings at all.
bool MayMatch(const QTimeZone &zone, const ZoneSettings &settings, qint64 begin)
{
    constexpr qint64 kHalfYear = 182 * Lw::HNodeClock::kMillisecondsPerDay;
    for (const qint64 at : {begin, begin + kHalfYear}) {
        const int offset = zone.offsetFromUtc(Utc(at));
        const CivilTime moment {at, at + 1, offset, {}};
        if (!WrongTimes(settings, moment).isEmpty())
            return false;
    }
    return true;
}

} // namespace

Span TenYearsFrom(const QDate &first)
{
    return {MidnightOf(first),
            MidnightOf(qMin(first.addYears(kYears), QDate(kLastListedYear + 1, 1, 1)))};
}

Span ListedAfter(const Span &span)
{
    return {span.end, qMax(span.end, MidnightOf(QDate(kLastListedYear + 1, 1, 1)))};
}

Span ListedSince(const QDate &first)
{
    return {MidnightOf(first), MidnightOf(QDate(kLastListedYear + 1, 1, 1))};
}

QString DateOf(qint64 utc)
{
    return Lw::HNodeClock::FormatAscii(Utc(utc), "yyyy-MM-dd");
}

QList<QByteArray> ZoneNames()
{
    return QTimeZone::availableTimeZoneIds();
}

QList<QByteArray> ZonesToTry()
{
    QList<QByteArray> names;
    for (const char *name : kWidelyUsed)
        names.append(name);
    return names + ZoneNames();
}

bool HasZoneData(const QList<QByteArray> &names)
{
    return std::any_of(names.cbegin(), names.cend(),
                       [](const QByteArray &name) { return name.contains('/'); });
}

std::optional<CivilTime> CivilTimeOf(const QByteArray &name, const Span &span)
{
    if (!IsZoneName(name) || !IsZone(name))
        return std::nullopt;
    const QTimeZone zone(name);
    return zone.isValid() ? std::optional(CivilTimeOf(zone, span)) : std::nullopt;
}

QByteArray ZoneWith(const ZoneSettings &settings, const Span &span)
{
    for (const QByteArray &name : ZonesToTry()) {
        const QTimeZone zone(name);
        if (zone.isValid() && MayMatch(zone, settings, span.begin)
            && WrongTimes(settings, CivilTimeOf(zone, span)).isEmpty())
            return name;
    }
    return {};
}

} // namespace ClockZones
