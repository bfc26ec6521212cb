// studio/files: polls a wall's status until it plays what was sent.
#pragma once

#include "wall_status.h"
#include "wall_target.h"

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTimer>

namespace ClockStudio {

class WallWatch : public QObject
{
    Q_OBJECT

public:
    explicit WallWatch(QObject *parent = nullptr);
    ~WallWatch() override;

    /// Polls now and every few seconds, for a few minutes. Does nothing for a target without a
    /// status file.
    void Follow(const WallTarget &target);
    void Stop();

Q_SIGNALS:
    void StatusReceived(const ClockStudio::WallStatus &status);

private:
    void Poll();
    void ReadReply();

    WallTarget m_target;
    QProcess m_process;
    QTimer m_pollTimer;
    QElapsedTimer m_since;
};

} // namespace ClockStudio
