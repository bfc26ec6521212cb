// host/: the timer that all image players share to call their renderers. Not part of the host
// interface.
#pragma once

#include <QObject>
#include <QTimer>
#include <QVector>

#include <functional>

namespace Lw {

/// The waits of all image players on one kernel timer (timerfd), or on a QTimer if the process has
/// no file descriptor left for one. Waits that end within two milliseconds of each other end
/// together with the last of them, so that clocks which show the same second wake the process once.
/// No wait ends early.
class PlaySchedule : public QObject
{
    Q_OBJECT

public:
    using Due = std::function<void()>;

    /// Lives as long as the application object.
    static PlaySchedule &Instance();

    ~PlaySchedule() override;

    /// Replaces the waiter's earlier wait. The callback may call this and Cancel(), for any waiter.
    void Wait(const void *waiter, double milliseconds, Due due);
    void Cancel(const void *waiter);

private:
    struct Entry
    {
        const void *waiter;
        qint64 deadline; ///< nanoseconds of the monotonic clock
        Due due;
    };

    explicit PlaySchedule(QObject *parent);
    void Fire();
    Due TakeDue(qint64 now);
    void Arm();
    void WakeAt(qint64 deadline);

    int m_timer;       ///< -1: there is none
    QTimer m_fallback; ///< used only without m_timer
    bool m_isFiring = false;
    QVector<Entry> m_entries;
};

} // namespace Lw
