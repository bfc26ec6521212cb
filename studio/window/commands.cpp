#include "commands.h"

namespace ClockStudio {

QVector<QAction *> AddCommands(QMenu &menu, const QVector<Command> &commands)
{
    QVector<QAction *> actions;
    for (const Command &command : commands) {
        if (command.text.isEmpty()) {
            menu.addSeparator();
            continue;
        }
        QAction *const action = menu.addAction(command.text);
        action->setShortcuts(command.keys.toList());
        action->setProperty("needsSelection", command.needsSelection);
        QObject::connect(action, &QAction::triggered, action, command.act);
        actions.append(action);
    }
    return actions;
}

QVector<QPair<QString, QString>> KeysOf(const QList<QAction *> &actions)
{
    QVector<QPair<QString, QString>> keys;
    for (const QAction *const action : actions) {
        const QString text = QString(action->text()).remove(QLatin1Char('&'));
        if (!action->shortcut().isEmpty())
            keys.append({text, action->shortcut().toString(QKeySequence::NativeText)});
    }
    return keys;
}

} // namespace ClockStudio
