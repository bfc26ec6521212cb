#include "process_signals.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace ClockPlayer {

namespace {

struct Route
{
    std::atomic<bool> hasArrived {false};
    std::atomic<int> writeEnd {-1};
};

std::array<Route, NSIG> g_routes;
bool g_endsWithLosses = true;

Route &RouteOf(int number)
{
    return g_routes.at(static_cast<std::size_t>(number));
}

// Async-signal-safe: sets the flag and writes a byte that wakes the event loop.
void Note(int number)
{
    const int error = errno;
    Route &route = g_routes[static_cast<std::size_t>(number)];
    route.hasArrived = true;
    const char byte = 1;
    if (::write(route.writeEnd, &byte, 1) < 0)
        errno = error;
}

bool IsIgnored(int number)
{
    struct sigaction action = {};
    return ::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

std::vector<int> LossSignals()
{
    return IsIgnored(SIGHUP) ? std::vector<int> {SIGPIPE} : std::vector<int> {SIGHUP, SIGPIPE};
}

} // namespace

SignalPipe::SignalPipe(const std::vector<int> &numbers, Times times, QObject *parent)
    : QObject(parent)
{
    if (::pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *const notifier = new QSocketNotifier(m_ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        Drain();
        emit Received();
    });
    struct sigaction action = {};
    action.sa_handler = Note;
    action.sa_flags = SA_RESTART;
    if (times == Times::Once)
        action.sa_flags |= static_cast<int>(SA_RESETHAND);
    for (const int number : numbers) {
        RouteOf(number).writeEnd = m_ends[1];
        Caught caught = {number, {}};
        if (::sigaction(number, &action, &caught.before) == 0)
            m_caught.push_back(caught);
    }
}

SignalPipe::~SignalPipe()
{
    for (const Caught &caught : m_caught) {
        ::sigaction(caught.number, &caught.before, nullptr);
        RouteOf(caught.number).writeEnd = -1;
    }
    for (const int end : m_ends)
        ::close(end);
}

bool SignalPipe::HasArrived(int number)
{
    return RouteOf(number).hasArrived;
}

void SignalPipe::Drain()
{
    char bytes[16];
    while (::read(m_ends[0], bytes, sizeof bytes) > 0) { }
}

QuitSignals::QuitSignals(Losses losses, QObject *parent)
    : QObject(parent), m_requests({SIGINT, SIGTERM}, SignalPipe::Times::Once)
{
    connect(&m_requests, &SignalPipe::Received, this, &QuitSignals::Requested);
    g_endsWithLosses = losses == Losses::End;
    if (!g_endsWithLosses) {
        std::signal(SIGPIPE, SIG_IGN);
        return;
    }
    // They may come several times.
    m_losses = std::make_unique<SignalPipe>(LossSignals(), SignalPipe::Times::Always);
    connect(m_losses.get(), &SignalPipe::Received, this, &QuitSignals::Requested);
}

bool QuitSignals::IsRequested()
{
    const bool isAsked = SignalPipe::HasArrived(SIGINT) || SignalPipe::HasArrived(SIGTERM);
    const bool isLost = SignalPipe::HasArrived(SIGHUP) || SignalPipe::HasArrived(SIGPIPE);
    return isAsked || (g_endsWithLosses && isLost);
}

} // namespace ClockPlayer
