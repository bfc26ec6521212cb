#include "wall_target.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QSettings>

namespace ClockStudio {

namespace {

const QString kGroup = QStringLiteral("targets");

QString Translated(const char *text)
{
    return QCoreApplication::translate("ClockStudio::WallTarget", text);
}

/// A word for a shell.
QString Quoted(QString word)
{
    return QLatin1Char('\'') + word.replace(QLatin1Char('\''), QStringLiteral("'\\''"))
        + QLatin1Char('\'');
}

/// Never asks for anything: a window has no terminal to answer in.
QStringList SshOptions(const WallTarget &target)
{
    QStringList options {QStringLiteral("-o"), QStringLiteral("BatchMode=yes"),
                         QStringLiteral("-o"), QStringLiteral("ConnectTimeout=10")};
    if (!target.key.isEmpty())
        options += {QStringLiteral("-i"), target.key};
    return options;
}

/// A shell's script where the target is.
ToolCommand ScriptAt(const WallTarget &target, const QString &script)
{
    if (!target.IsRemote())
        return {QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script}};
    return {QStringLiteral("ssh"),
            SshOptions(target) << QStringLiteral("--") << target.host << script};
}

QString SshForRsync(const WallTarget &target)
{
    QStringList words {QStringLiteral("ssh")};
    for (const QString &option : SshOptions(target))
        words.append(option.contains(QLatin1Char(' ')) ? Quoted(option) : option);
    return words.join(QLatin1Char(' '));
}

QString FolderOf(const WallTarget &target, const QString &release)
{
    return QStringLiteral("%1/%2/%3").arg(target.folder, QLatin1String(kReleases), release);
}

} // namespace

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
        targets.append({text("name"), text("host"), text("folder"), text("key")});
    }
    settings.endArray();
    return targets;
}

void KeepTargets(const QVector<WallTarget> &targets)
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
    }
    settings.endArray();
}

QString TargetFault(const WallTarget &target)
{
    static const QRegularExpression host(
        QStringLiteral(R"(\A(?:[A-Za-z0-9_][A-Za-z0-9_.-]*@)?[A-Za-z0-9][A-Za-z0-9.-]*\z)"));
    if (target.name.trimmed().isEmpty())
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallTarget", "The wall needs a name."));
    if (target.IsRemote() && !host.match(target.host).hasMatch())
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallTarget",
                                            "The host is written as in operator@wall.example."));
    if (!target.folder.startsWith(QLatin1Char('/')) || target.folder.contains(QLatin1Char('\n')))
        return Translated(QT_TRANSLATE_NOOP("ClockStudio::WallTarget",
                                            "The folder is a path that begins with /."));
    return {};
}

QVector<ToolCommand> SendCommands(const WallTarget &target, const QString &exportFolder,
                                  const QString &release)
{
    const QString folder = FolderOf(target, release);
    const ToolCommand make = ScriptAt(target, QStringLiteral("mkdir -p -- %1").arg(Quoted(folder)));
    QStringList copy {QStringLiteral("-a"), QStringLiteral("--protect-args"),
                      QStringLiteral("--exclude=.*")};
    if (target.IsRemote())
        copy += {QStringLiteral("-e"), SshForRsync(target)};
    copy += {QStringLiteral("--"), exportFolder + QLatin1Char('/'),
             (target.IsRemote() ? target.host + QLatin1Char(':') : QString()) + folder
                 + QLatin1Char('/')};
    return {make, {QStringLiteral("rsync"), copy}, PlayCommand(target, release)};
}

/// The link is made beside the old one and takes its place at once: there is always one.
ToolCommand PlayCommand(const WallTarget &target, const QString &release)
{
    const QString script =
        QStringLiteral("cd -- %1 && ln -sfn -- %2 .%3.new && mv -T -- .%3.new %3")
            .arg(Quoted(target.folder),
                 Quoted(QLatin1String(kReleases) + QLatin1Char('/') + release),
                 QLatin1String(kCurrentLink));
    return ScriptAt(target, script);
}

ToolCommand ListCommand(const WallTarget &target)
{
    return ScriptAt(
        target,
        QStringLiteral("ls -1 -- %1/%2").arg(Quoted(target.folder), QLatin1String(kReleases)));
}

} // namespace ClockStudio
