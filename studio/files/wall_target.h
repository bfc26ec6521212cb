// studio/files: where programs come from and go to.
// The walls that programs are sent to: folders of this computer or of others.
#pragma once

#include "tool_run.h"

#include <QString>
#include <QVector>

namespace ClockStudio {

struct WallTarget
{
    QString name;   ///< what people call it
    QString host;   ///< "user@host"; empty for a folder of this computer
    QString folder; ///< on the host, where the releases are
    QString key;    ///< file with the key for ssh; empty for ssh's own choice

    bool IsRemote() const { return !host.isEmpty(); }
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

/// The commands that bring an export to a target as a release and then let it play.
QVector<ToolCommand> SendCommands(const WallTarget &target, const QString &exportFolder,
                                  const QString &release);
/// The one that lets a release play that is there already.
ToolCommand PlayCommand(const WallTarget &target, const QString &release);
/// The one that lists the releases, a line each.
ToolCommand ListCommand(const WallTarget &target);

} // namespace ClockStudio
