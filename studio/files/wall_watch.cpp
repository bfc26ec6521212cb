#include "wall_watch.h"

namespace ClockStudio {

namespace {

constexpr int kInterval = 2000; // milliseconds
constexpr int kPollingTime =
    180'000; // milliseconds; longer than the interval at which players write their status

} // namespace

WallWatch::WallWatch(QObject *parent) : QObject(parent)
{
    m_pollTimer.setSingleShot(true);
    m_pollTimer.setInterval(kInterval);
    connect(&m_pollTimer, &QTimer::timeout, this, &WallWatch::Poll);
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &WallWatch::ReadReply);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ReadReply();
    });
}

WallWatch::~WallWatch()
{
    Stop();
}

void WallWatch::Follow(const WallTarget &target)
{
    Stop();
    m_target = target;
    if (m_target.statusFile.isEmpty())
        return;
    m_since.start();
    Poll();
}

void WallWatch::Stop()
{
    m_pollTimer.stop();
    m_process.blockSignals(true);
    m_process.kill();
    m_process.waitForFinished();
    m_process.blockSignals(false);
}

void WallWatch::Poll()
{
    const ToolCommand command = StatusCommand(m_target);
    m_process.start(command.program, command.arguments, QIODevice::ReadOnly);
}

void WallWatch::ReadReply()
{
    const WallStatus status =
        ReadWallStatus(m_process.readAllStandardOutput(), QDateTime::currentDateTimeUtc());
    if (status.state != WallStatus::State::Plays && !m_since.hasExpired(kPollingTime))
        m_pollTimer.start();
    emit StatusReceived(status);
}

} // namespace ClockStudio
