#include "wall_watch.h"

namespace ClockStudio {

namespace {

constexpr int kInterval = 2000; // milliseconds
constexpr int kPatience =
    180'000; // milliseconds; longer than the interval at which players write their status

} // namespace

WallWatch::WallWatch(QObject *parent) : QObject(parent)
{
    m_again.setSingleShot(true);
    m_again.setInterval(kInterval);
    connect(&m_again, &QTimer::timeout, this, &WallWatch::Ask);
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &WallWatch::Take);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Take();
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
    Ask();
}

void WallWatch::Stop()
{
    m_again.stop();
    m_process.blockSignals(true);
    m_process.kill();
    m_process.waitForFinished();
    m_process.blockSignals(false);
}

void WallWatch::Ask()
{
    const ToolCommand command = StatusCommand(m_target);
    m_process.start(command.program, command.arguments, QIODevice::ReadOnly);
}

void WallWatch::Take()
{
    const WallStatus status =
        ReadWallStatus(m_process.readAllStandardOutput(), QDateTime::currentDateTimeUtc());
    if (status.state != WallStatus::State::Plays && !m_since.hasExpired(kPatience))
        m_again.start();
    emit Heard(status);
}

} // namespace ClockStudio
