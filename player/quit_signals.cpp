#include "quit_signals.h"

#include <QSocketNotifier>

#include <atomic>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace ClockPlayer {

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM};

std::atomic<bool> g_requested {false};
std::atomic<int> g_writeEnd {-1};

// Only what is safe in a signal handler: the flag, and a byte that wakes the event loop.
void Note(int)
{
    g_requested = true;
    const char byte = 1;
    if (::write(g_writeEnd, &byte, 1) < 0)
        return;
}

} // namespace

QuitSignals::QuitSignals(QObject *parent) : QObject(parent)
{
    if (::pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    g_writeEnd = m_ends[1];
    auto *const notifier = new QSocketNotifier(m_ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        emit Requested();
    });
    struct sigaction action = {};
    action.sa_handler = Note;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    for (const int number : kSignals)
        ::sigaction(number, &action, nullptr);
}

QuitSignals::~QuitSignals()
{
    for (const int number : kSignals)
        std::signal(number, SIG_DFL);
    g_writeEnd = -1;
    for (const int end : m_ends)
        ::close(end);
}

bool QuitSignals::IsRequested()
{
    return g_requested;
}

} // namespace ClockPlayer
