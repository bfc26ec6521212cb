// player/: talks to the device: asks whether its clock is set, notifies the service manager, writes
// the status file.
#pragma once

#include "failure.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace ClockPlayer {

/// Whether the kernel reports the system clock as synchronised; nullopt if the process may not
/// ask.
std::optional<bool> IsTimeSynchronised();

/// Whether the system clock is plausible: it is later than the build time, and the kernel does not
/// report it as unsynchronised.
bool IsTimeSet();

/// Sends a state to the service manager, if any: "READY=1", "WATCHDOG=1", "STATUS=...".
void NotifyService(const char *state);

/// Replaces a file atomically with a JSON object. Fails if it exists and is not a regular
/// file.
ClockProgram::MaybeFailure WriteStatus(const QString &path, const QJsonObject &status);

/// While it exists, the controlling terminal shows no text cursor and does not echo what is typed.
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
