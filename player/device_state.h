// player/: what the player says about itself to the device: its clock, the service manager, the
// status.
#pragma once

#include "failure.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace ClockPlayer {

/// Whether the kernel says that the system's clock is synchronised; nothing where it must not be
/// asked.
std::optional<bool> IsTimeSynchronised();

/// Whether the system's clock can be right: it is after this build, and the kernel does not say
/// that it is unsynchronised.
bool IsTimeSet();

/// Tells the service manager, where one started the process: "READY=1", "WATCHDOG=1", "STATUS=...".
void NotifyService(const char *state);

/// Replaces a file with a JSON object, whole or not at all. What is not an ordinary file fails.
ClockProgram::MaybeFailure WriteStatus(const QString &path, const QJsonObject &status);

/// Hides the text cursor of the console that the process was started on, and what is typed there,
/// as long as one lives.
class QuietConsole
{
public:
    QuietConsole();
    ~QuietConsole();

    QuietConsole(const QuietConsole &) = delete;
    QuietConsole &operator=(const QuietConsole &) = delete;

private:
    int m_terminal; ///< -1: none
};

} // namespace ClockPlayer
