// Lets the player end in good order when the system or the keyboard asks it to.
#pragma once

#include "signal_pipe.h"

namespace ClockPlayer {

/// While one lives, the first interrupt or termination signal is turned into Requested(); a second
/// one ends the process at once. There may be one at a time.
class QuitSignals : public QObject
{
    Q_OBJECT

public:
    explicit QuitSignals(QObject *parent = nullptr);

    static bool IsRequested();

Q_SIGNALS:
    void Requested(); ///< from the event loop

private:
    SignalPipe m_pipe;
};

} // namespace ClockPlayer
