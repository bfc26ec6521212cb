#include "player_time.h"

#include "instant.h"

#include <QDateTime>
#include <QElapsedTimer>

namespace ClockPlayer::PlayerTime {

namespace {

enum class Mode { System, Running, Held };

struct State
{
    Mode mode = Mode::System;
    qint64 instant = 0;
    QElapsedTimer since;
};

State &Current()
{
    static State state;
    return state;
}

} // namespace

long long Now()
{
    const State &state = Current();
    switch (state.mode) {
    case Mode::Running:
        return state.instant + state.since.elapsed();
    case Mode::Held:
        return state.instant;
    case Mode::System:
        break;
    }
    return QDateTime::currentMSecsSinceEpoch();
}

void RunFrom(qint64 utcMilliseconds)
{
    State &state = Current();
    state.mode = Mode::Running;
    state.instant = utcMilliseconds;
    state.since.start();
}

void HoldAt(qint64 utcMilliseconds)
{
    State &state = Current();
    state.mode = Mode::Held;
    state.instant = utcMilliseconds;
}

void StepToNextSecond()
{
    HoldAt(WholeSecond(Current().instant) + 1000);
}

} // namespace ClockPlayer::PlayerTime
