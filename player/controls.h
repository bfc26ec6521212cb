// player/: the keys of the window: the command of each one, and the help text about them. Pure.
#pragma once

#include <QString>
#include <Qt>
#include <QtGlobal>

#include <optional>

namespace ClockPlayer {

enum class Control {
    Pause,     ///< or resume
    Step,      ///< to another instant
    Now,       ///< back to the present
    NextClock, ///< select the next clock for the status
    Stats,     ///< of the deadline meter, to standard error
    Status,    ///< show or hide it in the window
    Help,      ///< show or hide the list of keys
    Quit,
};

struct Command
{
    Control control;
    qint64 step; ///< milliseconds
};

/// The command of a key (Qt::Key) with its modifiers; nothing if it has none.
std::optional<Command> CommandOf(int key, Qt::KeyboardModifiers modifiers);

/// One line per key or pair of keys.
QString KeysText();

} // namespace ClockPlayer
