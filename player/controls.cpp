#include "controls.h"

#include "calendar/time_units.h"

#include <QStringList>

namespace ClockPlayer {

namespace {

constexpr qint64 kSecond = Lw::HNodeClock::kMillisecondsPerSecond;
constexpr qint64 kMinute = Lw::HNodeClock::kMillisecondsPerMinute;
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = Lw::HNodeClock::kMillisecondsPerDay;

struct KeyRow
{
    int key;
    bool isShifted; ///< arrow keys only; other keys ignore Shift
    Command command;
    const char *name; ///< null: listed in the row above
    const char *meaning;
};

// clang-format off
constexpr KeyRow kKeys[] = {
    {Qt::Key_Space, false, {Control::Pause, 0}, "Space", "pause or resume the clocks' time"},
    {Qt::Key_Right, false, {Control::Step, kSecond}, "Right, Left", "a second forward, back"},
    {Qt::Key_Left, false, {Control::Step, -kSecond}, nullptr, nullptr},
    {Qt::Key_Up, false, {Control::Step, kMinute}, "Up, Down", "a minute forward, back"},
    {Qt::Key_Down, false, {Control::Step, -kMinute}, nullptr, nullptr},
    {Qt::Key_Right, true, {Control::Step, kHour}, "Shift+Right, Left", "an hour forward, back"},
    {Qt::Key_Left, true, {Control::Step, -kHour}, nullptr, nullptr},
    {Qt::Key_Up, true, {Control::Step, kDay}, "Shift+Up, Down", "24 hours forward, back"},
    {Qt::Key_Down, true, {Control::Step, -kDay}, nullptr, nullptr},
    {Qt::Key_N, false, {Control::Now, 0}, "N", "return to the system's time"},
    {Qt::Key_Tab, false, {Control::NextClock, 0}, "Tab", "show the status of the next clock"},
    {Qt::Key_O, false, {Control::Status, 0}, "O", "show or hide the status in the window"},
    {Qt::Key_S, false, {Control::Stats, 0}, "S", "print the deadline statistics"},
    {Qt::Key_H, false, {Control::Help, 0}, "H", "show or hide these keys"},
    {Qt::Key_Q, false, {Control::Quit, 0}, "Q, Escape", "quit"},
    {Qt::Key_Escape, false, {Control::Quit, 0}, nullptr, nullptr},
};
// clang-format on

constexpr int kNameWidth = 19;

bool IsArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

std::optional<Command> CommandOf(int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return std::nullopt;
    const bool isShifted = IsArrow(key) && modifiers.testFlag(Qt::ShiftModifier);
    for (const KeyRow &row : kKeys) {
        if (row.key == key && row.isShifted == isShifted)
            return row.command;
    }
    return std::nullopt;
}

QString KeysText()
{
    QStringList lines;
    for (const KeyRow &row : kKeys) {
        if (row.name)
            lines.append(QString::fromLatin1(row.name).leftJustified(kNameWidth)
                         + QLatin1String(row.meaning));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace ClockPlayer
