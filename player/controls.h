// The keys of the window: what each one does, and what people are told of them. Pure.
#pragma once

#include <QString>
#include <Qt>
#include <QtGlobal>

#include <optional>

namespace ClockPlayer {

enum class Control {
    Pause,     ///< or go on
    Step,      ///< to another instant
    Now,       ///< back to the present
    NextClock, ///< the clock that the status tells of
    Stats,     ///< of the deadline meter, to standard error
    Status,    ///< shown within the window, or no longer
    Help,      ///< the same of the keys
    Quit,
};

struct Command
{
    Control control;
    qint64 step; ///< milliseconds
};

/// What a pressed key (Qt::Key) with its modifiers asks for.
std::optional<Command> CommandOf(int key, Qt::KeyboardModifiers modifiers);

/// One line a key.
QString KeysText();

} // namespace ClockPlayer
