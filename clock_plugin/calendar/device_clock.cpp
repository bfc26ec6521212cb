#include "calendar/device_clock.h"

#include "calendar/system_time.h"

#include <QByteArray>
#include <QHash>

#include <atomic>
#include <ctime>

namespace Lw::HNodeClock {

namespace {

using TimeSource = long long (*)(void);

constexpr qint64 kSecond = 1000;
constexpr qint64 kMinute = 60 * kSecond;

std::atomic<TimeSource> s_source {nullptr};

// One hold a thread: a frame that is being drawn does not stop the time of other threads.
struct Hold
{
    int depth = 0;
    qint64 reading = 0;
};
thread_local Hold t_hold;

// The local date found last. No zone has changed its offset within a minute, or had an offset of
// odd seconds, since 1972, so a date holds for its whole minute of UTC.
struct KnownDate
{
    bool known = false;
    qint64 minute = 0;
    uint zone = 0;
    qint64 julianDay = 0;
};
thread_local KnownDate t_date;

constexpr qint64 FloorDivide(qint64 value, qint64 divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

// A source may answer anything. Within these bounds, some 285 million years either way, zones
// and seconds are added without overflow.
constexpr qint64 kFurthest = Q_INT64_C(9000000000000000000);

qint64 ReadSource()
{
    const TimeSource source = s_source.load(std::memory_order_acquire);
    return source ? qBound<qint64>(-kFurthest, source(), kFurthest) : SystemMilliseconds();
}

// Qt 5 applies the summer time of 2037 to every later year; the C library knows better where its
// time_t reaches that far, as it does on 32-bit machines too unless it is an old one.
QDate FindLocalDate(qint64 utc)
{
    if constexpr (sizeof(std::time_t) >= sizeof(qint64)) {
        const std::time_t seconds = FloorDivide(utc, kSecond);
        std::tm local {};
        tzset();
        if (localtime_r(&seconds, &local))
            return QDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
    }
    return QDateTime::fromMSecsSinceEpoch(utc).date();
}

} // namespace

HeldReading::HeldReading() : m_outer(t_hold.reading)
{
    if (t_hold.depth++ == 0)
        t_hold.reading = ReadSource();
}

HeldReading::HeldReading(qint64 utcMilliseconds) : m_outer(t_hold.reading)
{
    ++t_hold.depth;
    t_hold.reading = qBound<qint64>(-kFurthest, utcMilliseconds, kFurthest);
}

HeldReading::~HeldReading()
{
    --t_hold.depth;
    t_hold.reading = m_outer;
}

qint64 UtcMilliseconds()
{
    return t_hold.depth > 0 ? t_hold.reading : ReadSource();
}

int LocalMillisecond()
{
    const qint64 utc = UtcMilliseconds();
    return static_cast<int>(utc - FloorDivide(utc, kSecond) * kSecond);
}

QDate LocalDate()
{
    const qint64 utc = UtcMilliseconds();
    const qint64 minute = FloorDivide(utc, kMinute);
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
