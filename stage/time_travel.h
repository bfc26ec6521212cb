// stage/: the time that the clocks of this process show. It is the system's time until TimeTravel
// moves it to another instant.
#pragma once

#include <QObject>
#include <QtGlobal>

#include <optional>

namespace ClockStage {

/// Both in milliseconds.
struct RealTime
{
    qint64 system = 0; ///< the system clock, UTC; may be set at any time
    qint64 steady = 0; ///< a monotonic clock, since an arbitrary moment
};

// Travel is limited to the years 1 to 9999.
constexpr qint64 kEarliestInstant = -62135596800000; ///< 0001-01-01T00:00:00Z
constexpr qint64 kLatestInstant = 253402300799000;   ///< 9999-12-31T23:59:59Z

/// Which instant is shown: the present, or another one that runs at its own speed or is paused.
/// Pure: the real time is an argument.
class TimeTravel
{
public:
    /// UTC milliseconds. Unless IsPresent(), setting the system clock has no effect.
    qint64 Shown(const RealTime &real) const;

    /// Leaves the present for this instant; pause and speed stay as they are.
    void GoTo(qint64 instant, const RealTime &real);
    void Step(qint64 milliseconds, const RealTime &real);
    /// Shown seconds per real second, above 0. Leaves the present, as do SetPaused() and Step().
    void SetSpeed(double speed, const RealTime &real);
    void SetPaused(bool paused, const RealTime &real);
    /// Follows the system clock again; resets pause and speed.
    void ReturnToPresent();

    bool IsPresent() const { return m_present; }
    bool IsPaused() const { return m_paused; }
    double Speed() const { return m_speed; }

private:
    bool m_present = true;
    bool m_paused = false;
    double m_speed = 1;
    qint64 m_instant = 0; ///< the instant shown when the monotonic clock was m_since
    qint64 m_since = 0;
};

/// Signals that the system clock was set, by however little. Slewing is not reported.
class ClockSteps : public QObject
{
    Q_OBJECT

public:
    explicit ClockSteps(QObject *parent = nullptr);
    ~ClockSteps() override;

Q_SIGNALS:
    void Stepped(); ///< emitted from the event loop

private:
    void Arm();
    void Follow();

    int m_timer; ///< a timerfd, which the kernel cancels when the clock is set
};

/// The shown time. One per process, because a plugin takes its time source as a plain function.
namespace StageTime {

TimeTravel &Travel();

/// UTC milliseconds that the clocks show now.
qint64 Shown();

/// Shown() as the plugins' time source; each call is recorded for TakePluginTime().
long long TellPlugin();

/// One call of TellPlugin().
struct PluginTime
{
    qint64 instant = 0; ///< UTC milliseconds that were returned to the plugin
    double steady = 0;  ///< when: milliseconds of the monotonic clock
};

/// The last call of TellPlugin(); nothing if it was already taken. Plugins read the time when they
/// start to draw a picture.
std::optional<PluginTime> TakePluginTime();

RealTime Real();
/// Milliseconds, with fraction, of the clock of RealTime::steady.
double Steady();

/// Runs from this instant in real time, independently of the system clock.
void RunFrom(qint64 utcMilliseconds);

/// Pauses at this instant, and resets the speed to 1.
void HoldAt(qint64 utcMilliseconds);

} // namespace StageTime

} // namespace ClockStage
