// self_test/: checks the calendars and daylight saving.
#include "calendar_digests.h"
#include "checks.h"

#include "calendar/clock_time.h"
#include "calendar/lunar_date.h"
#include "calendar/persian_calendar.h"
#include "calendar/time_units.h"
#include "calendar/zone_time.h"

#include <QCryptographicHash>

namespace ClockTool {

namespace {

using namespace Lw::HNodeClock;

constexpr int kPersianBegin = 1372;

CheckResult Compare(const QString &what, const QCryptographicHash &texts, const char *expected)
{
    if (texts.result().toHex() == expected)
        return {what, Outcome::Ok, QString()};
    return {what, Outcome::Failed, QStringLiteral("the dates are wrong")};
}

CheckResult CheckLunar()
{
    const QDate first(1900, 2, 1);
    const QDate last(2051, 2, 10);
    QCryptographicHash texts(QCryptographicHash::Sha256);
    for (QDate date = first; date <= last; date = date.addDays(1)) {
        const LunarDate lunar = LunarDateOf(date);
        texts.addData(QStringLiteral("%1 %2$%3\n")
                          .arg(date.toString(Qt::ISODate))
                          .arg(lunar.month)
                          .arg(lunar.day, 2, 10, QLatin1Char('0'))
                          .toLatin1());
    }
    return Compare(QStringLiteral("lunar calendar, %1 days").arg(first.daysTo(last) + 1), texts,
                   kLunarDigest);
}

CheckResult CheckPersian()
{
    const QDate first(1993, 3, 21);
    QCryptographicHash texts(QCryptographicHash::Sha256);
    QDate date = first;
    for (PersianDate persian = ToPersianDate(date); persian.year < kPersianEnd && persian.day > 0;
         persian = ToPersianDate(date)) {
        texts.addData(QStringLiteral("%1 %2-%3-%4\n")
                          .arg(date.toString(Qt::ISODate))
                          .arg(persian.year)
                          .arg(persian.month)
                          .arg(persian.day)
                          .toLatin1());
        date = date.addDays(1);
    }
    return Compare(QStringLiteral("Persian calendar, %1 days").arg(first.daysTo(date)), texts,
                   kPersianDigest);
}

CheckResult CheckPersianLeapYears()
{
    QCryptographicHash texts(QCryptographicHash::Sha256);
    for (int year = kPersianBegin; year < kPersianEnd; ++year) {
        if (IsPersianLeapYear(year))
            texts.addData(QByteArray::number(year) + '\n');
    }
    return Compare(
        QStringLiteral("Persian leap years, %1 to %2").arg(kPersianBegin).arg(kPersianEnd - 1),
        texts, kPersianLeapDigest);
}

/// A change of offset that has happened, as it was announced.
struct KnownChange
{
    const char *name;
    const char *zone;
    const char *start;
    const char *end;
    const char *at; // UTC
    int before;     // hours to add to UTC
    int after;
};

// clang-format off
constexpr KnownChange kChanges[] = {
    {"Berlin, spring", "+01:00", "3.Last.7.02:00:00", "10.Last.7.02:00:00", "2024-03-31T01:00:00Z", 1, 2},
    {"Berlin, autumn", "+01:00", "3.Last.7.02:00:00", "10.Last.7.02:00:00", "2024-10-27T01:00:00Z", 2, 1},
    {"New York, spring", "-05:00", "3.2.7.02:00:00", "11.1.7.01:00:00", "2024-03-10T07:00:00Z", -5, -4},
    {"New York, autumn", "-05:00", "3.2.7.02:00:00", "11.1.7.01:00:00", "2024-11-03T06:00:00Z", -4, -5},
    {"Sydney, autumn", "+10:00", "10.1.7.02:00:00", "4.1.7.02:00:00", "2024-04-06T16:00:00Z", 11, 10},
    {"Sydney, spring", "+10:00", "10.1.7.02:00:00", "4.1.7.02:00:00", "2024-10-05T16:00:00Z", 10, 11},
    {"Cairo, autumn", "+02:00", "4.Last.5.00:00:00", "10.Last.4.23:00:00", "2024-10-31T21:00:00Z", 3, 2},
};
// clang-format on

ZoneSettings SettingsOf(const KnownChange &change)
{
    return {ParseZoneOffset(QLatin1String(change.zone)), QLatin1String(change.start),
            QLatin1String(change.end)};
}

} // namespace

QVector<CheckResult> CheckCalendars()
{
    return {CheckLunar(), CheckPersian(), CheckPersianLeapYears()};
}

QVector<CheckResult> CheckDaylightSaving()
{
    CheckResult result {QStringLiteral("daylight saving, %1 known changes")
                            .arg(static_cast<int>(std::size(kChanges))),
                        Outcome::Ok, QString()};
    for (const KnownChange &change : kChanges) {
        const qint64 at =
            QDateTime::fromString(QLatin1String(change.at), Qt::ISODate).toMSecsSinceEpoch();
        const ZoneSettings zone = SettingsOf(change);
        if (OffsetAt(zone, at - kMillisecondsPerSecond) == change.before * kSecondsPerHour
            && OffsetAt(zone, at) == change.after * kSecondsPerHour)
            continue;
        result.outcome = Outcome::Failed;
        result.why = QStringLiteral("wrong at this change: %1").arg(QLatin1String(change.name));
    }
    return {result};
}

} // namespace ClockTool
