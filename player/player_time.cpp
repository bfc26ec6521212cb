#include "player_time.h"

#include "calendar/system_time.h"

#include <QElapsedTimer>

#include <utility>

namespace ClockPlayer::PlayerTime {

namespace {

std::optional<Reading> &NotedReading()
{
    static std::optional<Reading> reading;
    return reading;
}

} // namespace

long long Now()
{
    const qint64 instant = Instant();
    NotedReading() = Reading {instant, Steady()};
    return instant;
}

std::optional<Reading> TakeReading()
{
    return std::exchange(NotedReading(), std::nullopt);
}

qint64 Instant()
{
    return Travel().Shown(Real());
}

TimeTravel &Travel()
{
    static TimeTravel travel;
    return travel;
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

} // namespace ClockPlayer::PlayerTime
