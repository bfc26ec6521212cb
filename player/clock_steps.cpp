#include "clock_steps.h"

#include "player_time.h"

#include <utility>

namespace ClockPlayer {

namespace {

constexpr int kInterval = 100; // milliseconds
constexpr qint64 kStep = 100;

} // namespace

bool StepDetector::IsStepped(const RealTime &real)
{
    const qint64 difference = real.system - real.steady;
    const std::optional<qint64> before = std::exchange(m_difference, difference);
    return before && qAbs(difference - *before) >= kStep;
}

ClockSteps::ClockSteps(QObject *parent) : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (m_detector.IsStepped(PlayerTime::Real()))
            emit Stepped();
    });
    m_timer.start(kInterval);
}

} // namespace ClockPlayer
