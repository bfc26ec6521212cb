// Lets the player end in good order when the system or the keyboard asks it to.
#pragma once

#include <QObject>

namespace ClockPlayer {

/// While one lives, the first interrupt or termination signal is turned into Requested(); a second
/// one ends the process at once. There may be one at a time.
class QuitSignals : public QObject
{
    Q_OBJECT

public:
    explicit QuitSignals(QObject *parent = nullptr);
    ~QuitSignals() override;

    static bool IsRequested();

Q_SIGNALS:
    void Requested(); ///< from the event loop

private:
    int m_ends[2] = {-1, -1};
};

} // namespace ClockPlayer
