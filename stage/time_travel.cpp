#include "time_travel.h"

#include "calendar/system_time.h"

#include <QElapsedTimer>

#include <utility>

namespace ClockStage {

namespace {

constexpr qint64 kStep = 100;      // milliseconds
constexpr int kStepInterval = 100; // between two looks at the clocks

qint64 WithinLimits(double instant)
{
    return static_cast<qint64>(qBound(double(kEarliestInstant), instant, double(kLatestInstant)));
}

std::optional<StageTime::Reading> &LastReading()
{
    static std::optional<StageTime::Reading> reading;
    return reading;
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

bool StepDetector::IsStepped(const RealTime &real)
{
    const qint64 difference = real.system - real.steady;
    const std::optional<qint64> before = std::exchange(m_difference, difference);
    return before && qAbs(difference - *before) >= kStep;
}

ClockSteps::ClockSteps(QObject *parent) : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (m_detector.IsStepped(StageTime::Real()))
            emit Stepped();
    });
    m_timer.start(kStepInterval);
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
    LastReading() = Reading {instant, Steady()};
    return instant;
}

std::optional<Reading> TakeReading()
{
    return std::exchange(LastReading(), std::nullopt);
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
