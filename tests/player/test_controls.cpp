#include "controls.h"

#include <QtTest>

using namespace ClockPlayer;

Q_DECLARE_METATYPE(ClockPlayer::Control)

class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void Keys_data();
    void Keys();
    void NoCommands_data();
    void NoCommands();
    void EveryKeyIsTold();
};

void TestControls::Keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shifted");
    QTest::addColumn<Control>("control");
    QTest::addColumn<qint64>("step");
    const auto row = [](const char *name, int key, bool shifted, Control control, qint64 step) {
        QTest::newRow(name) << key << shifted << control << step;
    };
    row("second", Qt::Key_Right, false, Control::Step, 1000);
    row("second back", Qt::Key_Left, false, Control::Step, -1000);
    row("minute", Qt::Key_Up, false, Control::Step, 60000);
    row("minute back", Qt::Key_Down, false, Control::Step, -60000);
    row("hour", Qt::Key_Right, true, Control::Step, 3600000);
    row("hour back", Qt::Key_Left, true, Control::Step, -3600000);
    row("day", Qt::Key_Up, true, Control::Step, 86400000);
    row("day back", Qt::Key_Down, true, Control::Step, -86400000);
    row("pause", Qt::Key_Space, false, Control::Pause, 0);
    row("now", Qt::Key_N, false, Control::Now, 0);
    row("now, with a capital", Qt::Key_N, true, Control::Now, 0);
    row("next clock", Qt::Key_Tab, false, Control::NextClock, 0);
    row("statistics", Qt::Key_S, false, Control::Stats, 0);
    row("status", Qt::Key_O, false, Control::Status, 0);
    row("help", Qt::Key_H, false, Control::Help, 0);
    row("quit", Qt::Key_Q, false, Control::Quit, 0);
    row("escape", Qt::Key_Escape, false, Control::Quit, 0);
}

void TestControls::Keys()
{
    QFETCH(int, key);
    QFETCH(bool, shifted);
    QFETCH(Control, control);
    QFETCH(qint64, step);
    const Qt::KeyboardModifiers modifiers = shifted ? Qt::ShiftModifier : Qt::NoModifier;
    // Arrows may also be those of the keypad.
    for (const Qt::KeyboardModifiers &more : {modifiers, modifiers | Qt::KeypadModifier}) {
        const std::optional<Command> command = CommandOf(key, more);
        QVERIFY(command.has_value());
        QCOMPARE(command->control, control);
        QCOMPARE(command->step, step);
    }
}

void TestControls::NoCommands_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("another key") << int(Qt::Key_X) << int(Qt::NoModifier);
    QTest::newRow("Shift alone") << int(Qt::Key_Shift) << int(Qt::ShiftModifier);
    QTest::newRow("with Control") << int(Qt::Key_Q) << int(Qt::ControlModifier);
    QTest::newRow("with Alt") << int(Qt::Key_Right) << int(Qt::AltModifier);
    QTest::newRow("with Meta") << int(Qt::Key_Up) << int(Qt::MetaModifier | Qt::ShiftModifier);
}

void TestControls::NoCommands()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QVERIFY(!CommandOf(key, Qt::KeyboardModifiers(modifiers)));
}

void TestControls::EveryKeyIsTold()
{
    const QStringList lines = KeysText().split('\n');
    for (const char *key : {"Space", "Right, Left", "Up, Down", "Shift+Right, Left",
                            "Shift+Up, Down", "N", "Tab", "O", "S", "H", "Q, Escape"}) {
        const QString name = QString::fromLatin1(key) + "  ";
        const auto tells = [&name](const QString &line) {
            return line.startsWith(name) && line.trimmed().size() > name.size();
        };
        QCOMPARE(std::count_if(lines.cbegin(), lines.cend(), tells), 1);
    }
    QCOMPARE(lines.size(), 11);
}

QTEST_GUILESS_MAIN(TestControls)
#include "test_controls.moc"
