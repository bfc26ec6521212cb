// studio/window: the window that brings everything together.
// Everything that menus, tool bar and keys do, in one table each for the window's menus.
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
    bool needsChoice = false; ///< of one clock at least
};

/// Adds commands to a menu, in their order.
QVector<QAction *> AddCommands(QMenu &menu, const QVector<Command> &commands);

/// Commands and their keys, as pairs; those that have keys.
QVector<QPair<QString, QString>> KeysOf(const QList<QAction *> &actions);

} // namespace ClockStudio
