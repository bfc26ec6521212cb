// studio/files: the targets that programs are sent to: folders on this or another computer.
#pragma once

#include "tool_run.h"

#include <QString>
#include <QVector>

namespace ClockStudio {

struct WallTarget
{
    QString name;       ///< display name
    QString host;       ///< "user@host" or "user@host:port"; empty for a folder on this computer
    QString folder;     ///< on the host, where the releases are
    QString key;        ///< SSH private key file; empty for ssh's default
    QString statusFile; ///< the player's status file on the host; empty for none

    bool IsRemote() const { return !host.isEmpty(); }
    QString Login() const; ///< the host without the port
    QString Port() const;  ///< empty for ssh's own choice
};

/// In the target's folder: one subfolder per release, and the link to the release being played.
inline constexpr char kReleases[] = "releases";
inline constexpr char kCurrentLink[] = "current";

QVector<WallTarget> KnownTargets();
void SaveTargets(const QVector<WallTarget> &targets);

/// What is wrong with a target; empty if valid. Hosts and folders are passed to other programs,
/// so nothing that these could misinterpret is accepted.
QString TargetFault(const WallTarget &target);

/// The commands that copy an export to a target as a release and then play it. Until the copy is
/// complete, it has a hidden name that ListCommand does not list.
QVector<ToolCommand> SendCommands(const WallTarget &target, const QString &exportFolder,
                                  const QString &release);
/// The command that removes what an interrupted transfer left behind.
ToolCommand DiscardCommand(const WallTarget &target, const QString &release);
/// The command that switches to a release already on the target.
ToolCommand PlayCommand(const WallTarget &target, const QString &release);
/// The command whose output ReleasesIn parses.
ToolCommand ListCommand(const WallTarget &target);
/// The command whose output ReadWallStatus parses. Only for a target with a status file.
ToolCommand StatusCommand(const WallTarget &target);

struct ReleaseList
{
    QStringList releases; ///< newest first
    QString current;      ///< the one that plays; empty for none
};

ReleaseList ReleasesIn(const QString &listed);

} // namespace ClockStudio
