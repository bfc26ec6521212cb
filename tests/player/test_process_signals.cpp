// Signals that the process had handlers for, or ignored, before the player caught them.
#include "process_signals.h"

#include <QSignalSpy>
#include <QtTest>

#include <csignal>

using namespace ClockPlayer;

namespace {

using Handler = void (*)(int);

Handler HandlerOf(int number)
{
    struct sigaction action = {};
    ::sigaction(number, nullptr, &action);
    return action.sa_handler;
}

} // namespace

class TestProcessSignals : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void IgnoredHangUpStaysIgnored();
    void HangUpIsCaught();
    void EarlierHandlerComesBack();
};

void TestProcessSignals::cleanup()
{
    std::signal(SIGHUP, SIG_DFL);
    std::signal(SIGUSR2, SIG_DFL);
}

// As nohup starts it.
void TestProcessSignals::IgnoredHangUpStaysIgnored()
{
    std::signal(SIGHUP, SIG_IGN);
    {
        const QuitSignals quitSignals;
        QVERIFY(HandlerOf(SIGHUP) == SIG_IGN);
        QVERIFY(HandlerOf(SIGPIPE) != SIG_DFL);
    }
    QVERIFY(HandlerOf(SIGHUP) == SIG_IGN);
}

void TestProcessSignals::HangUpIsCaught()
{
    {
        const QuitSignals quitSignals;
        QSignalSpy requests(&quitSignals, &QuitSignals::Requested);
        QCOMPARE(::raise(SIGHUP), 0);
        QTRY_COMPARE(requests.count(), 1);
    }
    QVERIFY(HandlerOf(SIGHUP) == SIG_DFL);
}

void TestProcessSignals::EarlierHandlerComesBack()
{
    const Handler before = [](int) {};
    std::signal(SIGUSR2, before);
    {
        const SignalPipe pipe({SIGUSR2}, SignalPipe::Times::Always);
        QVERIFY(HandlerOf(SIGUSR2) != before);
    }
    QVERIFY(HandlerOf(SIGUSR2) == before);
}

QTEST_GUILESS_MAIN(TestProcessSignals)
#include "test_process_signals.moc"
