// host/: the timer that all image players share to call their renderers. Not part of the host
// interface.
#pragma once

#include <QObject>
#include <QVector>

#include <functional>

namespace Lw {

/// The waits of all image players on one kernel timer (timerfd). Waits that end within two
/// milliseconds of each other end together with the last of them, so that clocks which show the
/// same second wake the process once. No wait ends early.
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

    int m_timer;
    bool m_isFiring = false;
    QVector<Entry> m_entries;
};

} // namespace Lw
