#include "wall_target.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QSettings>

namespace ClockStudio {

namespace {

const QString kGroup = QStringLiteral("targets");
constexpr int kMaxStatus = 1 << 20; // bytes of a status file

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::WallTarget", text);
}

/// Quotes a word for a shell.
QString Quoted(QString word)
{
    return QLatin1Char('\'') + word.replace(QLatin1Char('\''), QStringLiteral("'\\''"))
        + QLatin1Char('\'');
}

/// BatchMode: ssh must not prompt, as there is no terminal. A host that is seen for the first time
/// is remembered, one whose key has changed is refused.
QStringList SshOptions(const WallTarget &target)
{
    QStringList options {QStringLiteral("-o"), QStringLiteral("BatchMode=yes"),
                         QStringLiteral("-o"), QStringLiteral("ConnectTimeout=10"),
                         QStringLiteral("-o"), QStringLiteral("StrictHostKeyChecking=accept-new")};
    if (!target.Port().isEmpty())
        options += {QStringLiteral("-p"), target.Port()};
    if (!target.key.isEmpty())
        options += {QStringLiteral("-i"), target.key};
    return options;
}

/// A command that runs a shell script on the target's computer.
ToolCommand ScriptAt(const WallTarget &target, const QString &script)
{
    if (!target.IsRemote())
        return {QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script}};
    return {QStringLiteral("ssh"),
            SshOptions(target) << QStringLiteral("--") << target.Login() << script};
}

/// The words of a command as rsync splits it: a quote within quotes is doubled.
QString SshForRsync(const WallTarget &target)
{
    QString command = QStringLiteral("ssh");
    for (QString option : SshOptions(target))
        command +=
            QStringLiteral(" '%1'").arg(option.replace(QLatin1Char('\''), QLatin1String("''")));
    return command;
}

QString ReleasePath(const QString &release)
{
    return QLatin1String(kReleases) + QLatin1Char('/') + release;
}

/// The path of an incomplete release; hidden, so that ls does not list it.
QString PartPath(const QString &release)
{
    return ReleasePath(QStringLiteral(".%1.part").arg(release));
}

/// A script in the target's folder.
ToolCommand ScriptInFolder(const WallTarget &target, const QString &script)
{
    return ScriptAt(target, QStringLiteral("cd -- %1 && %2").arg(Quoted(target.folder), script));
}

/// Creates the new link beside the old one and renames it over it, so that a link exists at all
/// times.
QString SwapScript(const QString &release)
{
    return QStringLiteral("ln -sfn -- %1 .%2.new && mv -T -- .%2.new %2")
        .arg(Quoted(ReleasePath(release)), QLatin1String(kCurrentLink));
}

/// Files unchanged since the current release are hard-linked instead of sent.
ToolCommand CopyCommand(const WallTarget &target, const QString &exportFolder,
                        const QString &release)
{
    QStringList arguments {
        QStringLiteral("--recursive"),
        QStringLiteral("--checksum"),
        QStringLiteral("--perms"),
        QStringLiteral("--chmod=D755,F644"),
        QStringLiteral("--protect-args"),
        QStringLiteral("--info=progress2"),
        QStringLiteral("--exclude=.*"),
        QStringLiteral("--link-dest=../../%1/").arg(QLatin1String(kCurrentLink))};
    if (target.IsRemote())
        arguments += {QStringLiteral("-e"), SshForRsync(target)};
    const QString folder = QStringLiteral("%1/%2/").arg(target.folder, PartPath(release));
    arguments += {QStringLiteral("--"), exportFolder + QLatin1Char('/'),
                  target.IsRemote() ? target.Login() + QLatin1Char(':') + folder : folder};
    return {QStringLiteral("rsync"), arguments};
}

} // namespace

QString WallTarget::Login() const
{
    return host.section(QLatin1Char(':'), 0, 0);
}

QString WallTarget::Port() const
{
    return host.section(QLatin1Char(':'), 1);
}

QVector<WallTarget> KnownTargets()
{
    QSettings settings;
    QVector<WallTarget> targets;
    const int count = settings.beginReadArray(kGroup);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const auto text = [&settings](const char *key) {
            return settings.value(QLatin1String(key)).toString();
        };
        targets.append({text("name"), text("host"), text("folder"), text("key"), text("status")});
    }
    settings.endArray();
    return targets;
}

void SaveTargets(const QVector<WallTarget> &targets)
{
    QSettings settings;
    settings.remove(kGroup);
    settings.beginWriteArray(kGroup, targets.size());
    for (int i = 0; i < targets.size(); ++i) {
        settings.setArrayIndex(i);
        settings.setValue(QStringLiteral("name"), targets[i].name);
        settings.setValue(QStringLiteral("host"), targets[i].host);
        settings.setValue(QStringLiteral("folder"), targets[i].folder);
        settings.setValue(QStringLiteral("key"), targets[i].key);
        settings.setValue(QStringLiteral("status"), targets[i].statusFile);
    }
    settings.endArray();
}

QString TargetFault(const WallTarget &target)
{
    static const QRegularExpression host(QStringLiteral(
        R"(\A(?:[A-Za-z0-9_][A-Za-z0-9_.-]*@)?[A-Za-z0-9][A-Za-z0-9.-]*(?::[0-9]{1,5})?\z)"));
    if (target.name.trimmed().isEmpty())
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallTarget", "The wall needs a name."));
    if (target.IsRemote() && !host.match(target.host).hasMatch())
        return Translated(QT_TRANSLATE_NOOP(
            "ClockStudio::WallTarget",
            "Enter the host as operator@wall.example or operator@wall.example:22."));
    const auto isPath = [](const QString &text) {
        return text.startsWith(QLatin1Char('/')) && !text.contains(QLatin1Char('\n'));
    };
    if (!isPath(target.folder))
        return Translated(
            QT_TRANSLATE_NOOP("ClockStudio::WallTarget", "The folder must be an absolute path."));
    if (!target.statusFile.isEmpty() && !isPath(target.statusFile))
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallTarget",
                                            "The status file must be an absolute path."));
    return {};
}

QVector<ToolCommand> SendCommands(const WallTarget &target, const QString &exportFolder,
                                  const QString &release)
{
    const QString part = PartPath(release);
    return {
        ScriptAt(
            target,
            QStringLiteral("mkdir -p -- %1").arg(Quoted(target.folder + QLatin1Char('/') + part))),
        CopyCommand(target, exportFolder, release),
        ScriptInFolder(target,
                       QStringLiteral("mv -T -- %1 %2 && %3")
                           .arg(Quoted(part), Quoted(ReleasePath(release)), SwapScript(release)))};
}

ToolCommand DiscardCommand(const WallTarget &target, const QString &release)
{
    return ScriptInFolder(target, QStringLiteral("rm -rf -- %1").arg(Quoted(PartPath(release))));
}

ToolCommand PlayCommand(const WallTarget &target, const QString &release)
{
    return ScriptInFolder(
        target,
        QStringLiteral("test -d %1 && %2").arg(Quoted(ReleasePath(release)), SwapScript(release)));
}

ToolCommand ListCommand(const WallTarget &target)
{
    return ScriptInFolder(target,
                          QStringLiteral("ls -1 -- %1 && { readlink -- %2 || true; }")
                              .arg(QLatin1String(kReleases), QLatin1String(kCurrentLink)));
}

ReleaseList ReleasesIn(const QString &listed)
{
    ReleaseList list;
    const QString link = ReleasePath({});
    for (const QString &line : listed.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line.startsWith(link))
            list.current = line.mid(link.size());
        else
            list.releases.prepend(line);
    }
    return list;
}

ToolCommand StatusCommand(const WallTarget &target)
{
    return ScriptInFolder(target,
                          QStringLiteral("sha256sum <%1/program.xml && head -c %2 -- %3")
                              .arg(QLatin1String(kCurrentLink))
                              .arg(kMaxStatus)
                              .arg(Quoted(target.statusFile)));
}

} // namespace ClockStudio
