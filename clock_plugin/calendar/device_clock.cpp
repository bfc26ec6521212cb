#include "calendar/device_clock.h"

#include "calendar/system_time.h"
#include "calendar/time_units.h"

#include <QByteArray>
#include <QHash>

#include <atomic>
#include <ctime>

namespace Lw::HNodeClock {

namespace {

using TimeSource = long long (*)(void);

std::atomic<TimeSource> s_source {nullptr};

// Per thread, so that drawing a frame does not stop the time of other threads.
struct Hold
{
    int depth = 0;
    qint64 instant = 0;
};
thread_local Hold t_hold;

// The last local date found. Since 1972 all zones have offsets of whole minutes and change them on
// the minute, so a date holds for its whole minute of UTC.
struct KnownDate
{
    bool known = false;
    qint64 minute = 0;
    uint zone = 0;
    qint64 julianDay = 0;
};
thread_local KnownDate t_date;

// A source may return any value. Within these bounds, about 285 million years either way, zones and
// seconds are added without overflow.
constexpr qint64 kFurthest = Q_INT64_C(9000000000000000000);

qint64 ReadSource()
{
    const TimeSource source = s_source.load(std::memory_order_acquire);
    return source ? qBound<qint64>(-kFurthest, source(), kFurthest) : SystemMilliseconds();
}

// Qt 5 applies the summer time of 2037 to every later year; localtime_r is right wherever time_t
// has 64 bits.
QDate FindLocalDate(qint64 utc)
{
    if constexpr (sizeof(std::time_t) >= sizeof(qint64)) {
        const std::time_t seconds = FloorDivide(utc, kMillisecondsPerSecond);
        std::tm local {};
        tzset();
        if (localtime_r(&seconds, &local))
            return QDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
    }
    return QDateTime::fromMSecsSinceEpoch(utc).date();
}

} // namespace

HeldInstant::HeldInstant() : m_outer(t_hold.instant)
{
    if (t_hold.depth++ == 0)
        t_hold.instant = ReadSource();
}

HeldInstant::HeldInstant(qint64 utcMilliseconds) : m_outer(t_hold.instant)
{
    ++t_hold.depth;
    t_hold.instant = qBound<qint64>(-kFurthest, utcMilliseconds, kFurthest);
}

HeldInstant::~HeldInstant()
{
    --t_hold.depth;
    t_hold.instant = m_outer;
}

qint64 UtcMilliseconds()
{
    return t_hold.depth > 0 ? t_hold.instant : ReadSource();
}

int LocalMillisecond()
{
    return static_cast<int>(FloorModulo(UtcMilliseconds(), kMillisecondsPerSecond));
}

QDate LocalDate()
{
    const qint64 utc = UtcMilliseconds();
    const qint64 minute = FloorDivide(utc, kMillisecondsPerMinute);
    const uint zone = qHash(qgetenv("TZ"));
    if (!t_date.known || t_date.minute != minute || t_date.zone != zone)
        t_date = {true, minute, zone, FindLocalDate(utc).toJulianDay()};
    return QDate::fromJulianDay(t_date.julianDay);
}

} // namespace Lw::HNodeClock

void clock_set_time_source(long long (*utcMilliseconds)(void))
{
    Lw::HNodeClock::s_source.store(utcMilliseconds, std::memory_order_release);
}
