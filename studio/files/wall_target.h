// studio/files: the targets that programs are sent to: folders on this or another computer.
#pragma once

#include "tool_run.h"

#include <QString>
#include <QVector>

namespace ClockStudio {

struct WallTarget
{
    QString name;       ///< display name
    QString host;       ///< "user@host" or "user@host:port"; empty for a folder of this computer
    QString folder;     ///< on the host, where the releases are
    QString key;        ///< SSH private key file; empty for ssh's default
    QString statusFile; ///< on the host, of the player that plays the wall; empty for none

    bool IsRemote() const { return !host.isEmpty(); }
    QString Login() const; ///< the host without the port
    QString Port() const;  ///< empty for ssh's own choice
};

/// In the target's folder: one subfolder per release, and the link to the release being played.
inline constexpr char kReleases[] = "releases";
inline constexpr char kCurrentLink[] = "current";

QVector<WallTarget> KnownTargets();
void KeepTargets(const QVector<WallTarget> &targets);

/// What is wrong with a target; empty if valid. Hosts and folders are passed to other programs,
/// so nothing that these could misinterpret is accepted.
QString TargetFault(const WallTarget &target);

/// The commands that copy an export to a target as a release and then play it. Until all of it
/// is there it is under a name that lists leave out.
QVector<ToolCommand> SendCommands(const WallTarget &target, const QString &exportFolder,
                                  const QString &release);
/// The one that removes what a sending that was broken off left.
ToolCommand DiscardCommand(const WallTarget &target, const QString &release);
/// The command that switches to a release already on the target.
ToolCommand PlayCommand(const WallTarget &target, const QString &release);
/// The one that lists the releases, for ReleasesIn.
ToolCommand ListCommand(const WallTarget &target);
/// The one that writes what a WallWord is read from. Only for a target with a status file.
ToolCommand WordCommand(const WallTarget &target);

struct ReleaseList
{
    QStringList releases; ///< the last one first
    QString current;      ///< the one that plays; empty for none
};

ReleaseList ReleasesIn(const QString &listed);

} // namespace ClockStudio
