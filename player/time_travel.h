// Which instant the clocks show: the present, or another one that runs at its own speed or stands
// still. Pure: the real time is an argument.
#pragma once

#include <QtGlobal>

namespace ClockPlayer {

/// Both in milliseconds: the system's clock, since 1970-01-01 UTC, which may be stepped; and one
/// that only ever runs, since any moment.
struct RealTime
{
    qint64 system = 0;
    qint64 steady = 0;
};

// Journeys stay within the years 1 to 9999.
constexpr qint64 kEarliestInstant = -62135596800000; ///< 0001-01-01T00:00:00Z
constexpr qint64 kLatestInstant = 253402300799000;   ///< 9999-12-31T23:59:59Z

class TimeTravel
{
public:
    /// UTC milliseconds. Away from the present the system's clock has no influence.
    qint64 Shown(const RealTime &real) const;

    /// Away to this instant. Pause and speed stay as they are.
    void GoTo(qint64 instant, const RealTime &real);
    void Step(qint64 milliseconds, const RealTime &real);
    /// Shown seconds for each real one, above 0.
    void SetSpeed(double speed, const RealTime &real);
    void SetPaused(bool paused, const RealTime &real);
    /// Follows the system's clock again, at its speed.
    void ReturnToPresent();

    bool IsPresent() const { return m_present; }
    bool IsPaused() const { return m_paused; }
    double Speed() const { return m_speed; }

private:
    bool m_present = true;
    bool m_paused = false;
    double m_speed = 1;
    qint64 m_instant = 0; ///< shown at m_since of the steady clock
    qint64 m_since = 0;
};

} // namespace ClockPlayer
