// studio/files: what the player of a wall says in its status file about the program that was sent.
#pragma once

#include <QByteArray>
#include <QDateTime>

namespace ClockStudio {

struct WallStatus
{
    enum class State {
        Unknown,    ///< no readable status
        Plays,      ///< the current release is on the wall
        PlaysOther, ///< something else is
        Notice,     ///< a notice is on the wall instead of a program
        Outdated    ///< the status is too old: the player is not running
    };

    State state = State::Unknown;
    QString notice;    ///< its code
    QDateTime written; ///< when the status was written
};

/// Reads what StatusCommand writes: a line with the digest of the current release's program, then
/// the status.
WallStatus ReadWallStatus(const QByteArray &output, const QDateTime &now);

/// The status as a sentence for the user.
QString StatusText(const WallStatus &word);

} // namespace ClockStudio
