#include "quit_signals.h"

#include <csignal>

namespace ClockPlayer {

QuitSignals::QuitSignals(QObject *parent)
    : QObject(parent), m_pipe({SIGINT, SIGTERM}, SignalPipe::Times::Once)
{
    connect(&m_pipe, &SignalPipe::Received, this, &QuitSignals::Requested);
}

bool QuitSignals::IsRequested()
{
    return SignalPipe::HasArrived(SIGINT) || SignalPipe::HasArrived(SIGTERM);
}

} // namespace ClockPlayer
