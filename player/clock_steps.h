// Notices that somebody set the system's clock.
#pragma once

#include "time_travel.h"

#include <QObject>
#include <QTimer>

#include <optional>

namespace ClockPlayer {

/// Pure: from the second time on, whether the system's clock has moved otherwise than the steady
/// one since the last time, by a tenth of a second or more.
class StepDetector
{
public:
    bool IsStepped(const RealTime &real);

private:
    std::optional<qint64> m_difference; ///< of the two clocks, milliseconds
};

/// Looks ten times a second. A clock that is slewed gently is not stepped.
class ClockSteps : public QObject
{
    Q_OBJECT

public:
    explicit ClockSteps(QObject *parent = nullptr);

Q_SIGNALS:
    void Stepped();

private:
    StepDetector m_detector;
    QTimer m_timer;
};

} // namespace ClockPlayer
