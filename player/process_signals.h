// player/: delivers Unix signals through the event loop.
#pragma once

#include <QObject>

#include <csignal>
#include <memory>
#include <vector>

namespace ClockPlayer {

/// While one exists, its signals arrive as Received(); its destructor restores their old actions.
/// At most one object per signal at a time.
class SignalPipe : public QObject
{
    Q_OBJECT

public:
    enum class Times {
        Once, ///< the next signal of this number has its default action
        Always,
    };

    SignalPipe(const std::vector<int> &numbers, Times times, QObject *parent = nullptr);
    ~SignalPipe() override;

    /// Whether this signal has ever arrived, even if no event loop has run since.
    static bool HasArrived(int number);

Q_SIGNALS:
    void Received(); ///< from the event loop; signals in quick succession are merged

private:
    void Drain();

    /// A signal, and what the process did with it before.
    struct Caught
    {
        int number;
        struct sigaction before;
    };

    std::vector<Caught> m_caught;
    int m_ends[2] = {-1, -1};
};

/// For a clean exit: SIGINT and SIGTERM emit Requested(), and a second one kills the
/// process at once. At most one object at a time.
class QuitSignals : public QObject
{
    Q_OBJECT

public:
    enum class Losses {
        /// SIGHUP and SIGPIPE emit Requested() too: the terminal or a reader has gone. A SIGHUP
        /// that is ignored at the start, as under nohup, stays ignored.
        End,
        Ignore, ///< SIGPIPE is ignored, and SIGHUP is left to another SignalPipe
    };

    explicit QuitSignals(Losses losses = Losses::End, QObject *parent = nullptr);

    static bool IsRequested();

Q_SIGNALS:
    void Requested(); ///< from the event loop

private:
    SignalPipe m_requests;
    std::unique_ptr<SignalPipe> m_losses;
};

} // namespace ClockPlayer
