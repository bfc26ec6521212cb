#include "time_travel.h"

namespace ClockPlayer {

namespace {

qint64 WithinJourneys(double instant)
{
    return static_cast<qint64>(qBound(double(kEarliestInstant), instant, double(kLatestInstant)));
}

} // namespace

qint64 TimeTravel::Shown(const RealTime &real) const
{
    if (m_present)
        return real.system;
    if (m_paused)
        return m_instant;
    return WithinJourneys(double(m_instant) + double(real.steady - m_since) * m_speed);
}

void TimeTravel::GoTo(qint64 instant, const RealTime &real)
{
    m_present = false;
    m_instant = WithinJourneys(double(instant));
    m_since = real.steady;
}

void TimeTravel::Step(qint64 milliseconds, const RealTime &real)
{
    GoTo(WithinJourneys(double(Shown(real)) + double(milliseconds)), real);
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

} // namespace ClockPlayer
