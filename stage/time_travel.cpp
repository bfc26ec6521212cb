#include "time_travel.h"

#include "calendar/system_time.h"

#include <QElapsedTimer>
#include <QSocketNotifier>

#include <cerrno>
#include <limits>
#include <utility>

#include <sys/timerfd.h>
#include <time.h>
#include <unistd.h>

namespace ClockStage {

namespace {

qint64 WithinLimits(double instant)
{
    return static_cast<qint64>(qBound(double(kEarliestInstant), instant, double(kLatestInstant)));
}

std::optional<StageTime::PluginTime> &LastPluginTime()
{
    static std::optional<StageTime::PluginTime> time;
    return time;
}

} // namespace

qint64 TimeTravel::Shown(const RealTime &real) const
{
    if (m_present)
        return real.system;
    if (m_paused)
        return m_instant;
    return WithinLimits(double(m_instant) + double(real.steady - m_since) * m_speed);
}

void TimeTravel::GoTo(qint64 instant, const RealTime &real)
{
    m_present = false;
    m_instant = WithinLimits(double(instant));
    m_since = real.steady;
}

void TimeTravel::Step(qint64 milliseconds, const RealTime &real)
{
    GoTo(WithinLimits(double(Shown(real)) + double(milliseconds)), real);
}

void TimeTravel::SetSpeed(double speed, const RealTime &real)
{
    GoTo(Shown(real), real);
    m_speed = speed;
}

void TimeTravel::SetPaused(bool paused, const RealTime &real)
{
    GoTo(Shown(real), real);
    m_paused = paused;
}

void TimeTravel::ReturnToPresent()
{
    *this = TimeTravel();
}

ClockSteps::ClockSteps(QObject *parent)
    : QObject(parent), m_timer(::timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC))
{
    if (m_timer < 0)
        return;
    auto *const notifier = new QSocketNotifier(m_timer, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &ClockSteps::Follow);
    Arm();
}

ClockSteps::~ClockSteps()
{
    if (m_timer >= 0)
        ::close(m_timer);
}

// Armed for a time that never comes; only its cancellation matters.
void ClockSteps::Arm()
{
    itimerspec never {};
    never.it_value.tv_sec = std::numeric_limits<time_t>::max();
    ::timerfd_settime(m_timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &never, nullptr);
}

void ClockSteps::Follow()
{
    quint64 expirations = 0;
    if (::read(m_timer, &expirations, sizeof expirations) < 0 && errno == EAGAIN)
        return;
    Arm();
    emit Stepped();
}

namespace StageTime {

TimeTravel &Travel()
{
    static TimeTravel travel;
    return travel;
}

qint64 Shown()
{
    return Travel().Shown(Real());
}

long long TellPlugin()
{
    const qint64 instant = Shown();
    LastPluginTime() = PluginTime {instant, Steady()};
    return instant;
}

std::optional<PluginTime> TakePluginTime()
{
    return std::exchange(LastPluginTime(), std::nullopt);
}

RealTime Real()
{
    return {Lw::HNodeClock::SystemMilliseconds(), static_cast<qint64>(Steady())};
}

double Steady()
{
    static const QElapsedTimer timer = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return double(timer.nsecsElapsed()) / 1e6;
}

void RunFrom(qint64 utcMilliseconds)
{
    Travel().ReturnToPresent();
    Travel().GoTo(utcMilliseconds, Real());
}

void HoldAt(qint64 utcMilliseconds)
{
    RunFrom(utcMilliseconds);
    Travel().SetPaused(true, Real());
    Travel().GoTo(utcMilliseconds, Real());
}

} // namespace StageTime

} // namespace ClockStage
