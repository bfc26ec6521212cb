// studio/files: where programs come from and go to.
// The walls that programs are sent to: folders of this computer or of others.
#pragma once

#include "tool_run.h"

#include <QString>
#include <QVector>

namespace ClockStudio {

struct WallTarget
{
    QString name;       ///< what people call it
    QString host;       ///< "user@host" or "user@host:port"; empty for a folder of this computer
    QString folder;     ///< on the host, where the releases are
    QString key;        ///< file with the key for ssh; empty for ssh's own choice
    QString statusFile; ///< on the host, of the player that plays the wall; empty for none

    bool IsRemote() const { return !host.isEmpty(); }
    QString Login() const; ///< the host without the port
    QString Port() const;  ///< empty for ssh's own choice
};

/// In the target's folder: the releases, each in a folder of its own, and the link to the one that
/// plays.
inline constexpr char kReleases[] = "releases";
inline constexpr char kCurrentLink[] = "current";

QVector<WallTarget> KnownTargets();
void KeepTargets(const QVector<WallTarget> &targets);

/// Why a target cannot be one; empty where it can. Hosts and folders are given to other programs,
/// so nothing that those would take for something else is let through.
QString TargetFault(const WallTarget &target);

/// The commands that bring an export to a target as a release and then let it play. Until all of it
/// is there it is under a name that lists leave out.
QVector<ToolCommand> SendCommands(const WallTarget &target, const QString &exportFolder,
                                  const QString &release);
/// The one that removes what a sending that was broken off left.
ToolCommand DiscardCommand(const WallTarget &target, const QString &release);
/// The one that lets a release play that is there already.
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
