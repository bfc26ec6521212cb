// player/: Unix signals in the event loop.
#pragma once

#include <QObject>

#include <initializer_list>
#include <vector>

namespace ClockPlayer {

/// While one lives, its signals arrive as Received(). There may be one for each signal at a time.
class SignalPipe : public QObject
{
    Q_OBJECT

public:
    enum class Times {
        Once, ///< the next of the same number does what it would do without a pipe
        Always,
    };

    SignalPipe(std::initializer_list<int> numbers, Times times, QObject *parent = nullptr);
    ~SignalPipe() override;

    /// Whether this number has ever arrived at a pipe, even if no event loop has run since.
    static bool HasArrived(int number);

Q_SIGNALS:
    void Received(); ///< from the event loop; several that came close together are one

private:
    void Empty();

    std::vector<int> m_numbers;
    int m_ends[2] = {-1, -1};
};

/// Makes the process end tidily: SIGINT, SIGTERM, SIGHUP and SIGPIPE emit Requested(). A second
/// SIGINT or SIGTERM ends the process at once. At most one object at a time.
class QuitSignals : public QObject
{
    Q_OBJECT

public:
    explicit QuitSignals(QObject *parent = nullptr);

    static bool IsRequested();

Q_SIGNALS:
    void Requested(); ///< from the event loop

private:
    SignalPipe m_requests;
    SignalPipe
        m_losses; ///< of the terminal, or of who read the output: they may come several times
};

} // namespace ClockPlayer
