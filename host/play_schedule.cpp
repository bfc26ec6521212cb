#include "play_schedule_p.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSocketNotifier>

#include <algorithm>
#include <cmath>
#include <limits>

#include <sys/timerfd.h>
#include <time.h>
#include <unistd.h>

namespace Lw {

namespace {

constexpr qint64 kMillisecond = 1000000; // nanoseconds
constexpr qint64 kSecond = 1000 * kMillisecond;
constexpr double kLongestWait = 1e12; // milliseconds; some thirty years
constexpr qint64 kCoalesceWindow = 2 * kMillisecond;
// If drawing takes longer than this, return to the event loop so that finished frames are shown.
constexpr qint64 kMaxTurn = 20 * kMillisecond;

qint64 Now()
{
    timespec time {};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return qint64(time.tv_sec) * kSecond + time.tv_nsec;
}

} // namespace

PlaySchedule &PlaySchedule::Instance()
{
    static QPointer<PlaySchedule> schedule;
    if (!schedule)
        schedule = new PlaySchedule(QCoreApplication::instance());
    return *schedule;
}

PlaySchedule::PlaySchedule(QObject *parent)
    : QObject(parent), m_timer(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC))
{
    if (m_timer >= 0) {
        auto *const notifier = new QSocketNotifier(m_timer, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, &PlaySchedule::Fire);
    } else {
        m_fallback.setSingleShot(true);
        m_fallback.setTimerType(Qt::PreciseTimer);
        connect(&m_fallback, &QTimer::timeout, this, &PlaySchedule::Fire);
    }
}

PlaySchedule::~PlaySchedule()
{
    if (m_timer >= 0)
        ::close(m_timer);
}

void PlaySchedule::Wait(const void *waiter, double milliseconds, Due due)
{
    const double wait = std::ceil(qBound(0.0, milliseconds, kLongestWait));
    const qint64 deadline = Now() + static_cast<qint64>(wait) * kMillisecond;
    Cancel(waiter);
    m_entries.append({waiter, deadline, std::move(due)});
    Arm();
}

void PlaySchedule::Cancel(const void *waiter)
{
    const auto isOf = [waiter](const Entry &entry) { return entry.waiter == waiter; };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isOf), m_entries.end());
}

// A wait of 0 ms started by a callback fires in the next turn, not in this one.
void PlaySchedule::Fire()
{
    quint64 expirations = 0;
    if (m_timer >= 0 && ::read(m_timer, &expirations, sizeof expirations) < 0)
        return;
    const qint64 begun = Now();
    m_isFiring = true;
    while (const Due due = TakeDue(begun)) {
        due();
        if (Now() - begun > kMaxTurn)
            break;
    }
    m_isFiring = false;
    Arm();
}

PlaySchedule::Due PlaySchedule::TakeDue(qint64 now)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [now](const Entry &entry) { return entry.deadline <= now; });
    if (found == m_entries.end())
        return nullptr;
    const Due due = std::move(found->due);
    m_entries.erase(found);
    return due;
}

void PlaySchedule::Arm()
{
    if (m_isFiring || m_entries.isEmpty())
        return;
    qint64 first = std::numeric_limits<qint64>::max();
    for (const Entry &entry : qAsConst(m_entries))
        first = std::min(first, entry.deadline);
    qint64 last = first;
    for (const Entry &entry : qAsConst(m_entries)) {
        if (entry.deadline <= first + kCoalesceWindow)
            last = std::max(last, entry.deadline);
    }
    WakeAt(last);
}

void PlaySchedule::WakeAt(qint64 deadline)
{
    if (m_timer < 0) {
        const qint64 wait = (deadline - Now() + kMillisecond - 1) / kMillisecond; // rounded up
        constexpr qint64 kLongest = std::numeric_limits<int>::max();
        m_fallback.start(static_cast<int>(qBound(qint64(0), wait, kLongest)));
        return;
    }
    itimerspec time {};
    time.it_value.tv_sec = static_cast<time_t>(deadline / kSecond);
    time.it_value.tv_nsec = static_cast<long>(deadline % kSecond);
    ::timerfd_settime(m_timer, TFD_TIMER_ABSTIME, &time, nullptr);
}

} // namespace Lw
