// player/: a program in a window, from the first picture to the end of the process.
#pragma once

#include "command_line.h"
#include "playback.h"
#include "player.h"
#include "player_window.h"
#include "process_signals.h"
#include "program_watch.h"

#include <QObject>
#include <QTimer>

namespace ClockPlayer {

/// Takes what the command line chose. With Options::watchesProgram it plays the program file again
/// whenever it changes.
class WindowShow : public QObject
{
    Q_OBJECT

public:
    WindowShow(const Options &options, Playback::Travelling travelling, const Warn &warn);

    /// The signature is the file's before the program was read.
    ClockProgram::MaybeFailure Play(const ClockProgram::Program &program,
                                    const FileSignature &signature);
    void PrintStats();

private:
    void CheckProgram();
    ClockProgram::MaybeFailure Read();
    ClockProgram::MaybeFailure Show(const ClockProgram::Program &program);

    const Options m_options;
    const Warn m_warn;
    const SignalPipe m_reportSignal;
    PlayerWindow m_window;
    Playback m_playback;
    ProgramWatch m_watch;
    QTimer m_idle; ///< runs out where no seconds come
};

} // namespace ClockPlayer
