// Runs the real clock_player and keeps what it said.
#pragma once

#include "process_run.h"

using PlayerRun = ProcessRun;

inline PlayerRun RunPlayer(const QStringList &arguments,
                           const QProcessEnvironment &environment = DisplaylessEnvironment())
{
    return RunProcess(QStringLiteral(PLAYER), arguments, environment);
}
