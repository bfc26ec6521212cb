// studio/window: builds menus from tables of commands.
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QMenu>

#include <functional>

namespace ClockStudio {

struct Command
{
    QString text; ///< empty for a separator
    QVector<QKeySequence> keys;
    std::function<void()> act;
    bool needsSelection = false; ///< enabled only while a clock is selected
};

/// Adds commands to a menu, in their order.
QVector<QAction *> AddCommands(QMenu &menu, const QVector<Command> &commands);

/// The commands with a shortcut, as pairs of text and keys.
QVector<QPair<QString, QString>> KeysOf(const QList<QAction *> &actions);

} // namespace ClockStudio
