#include "device_state.h"

#include "whole_file.h"

#include <QFile>
#include <QJsonDocument>

#include <csignal>
#include <cstring>

#ifdef CLOCK_HAS_SYSTEMD
#include <systemd/sd-daemon.h>
#endif

#include <fcntl.h>
#include <sys/timex.h>
#include <termios.h>
#include <time.h>
#include <unistd.h>

namespace ClockPlayer {

using namespace ClockProgram;

namespace {

const char kHideCursor[] = "\033[?25l";
const char kShowCursor[] = "\033[?25h";

void SetEcho(int terminal, bool isOn)
{
    termios settings {};
    if (::tcgetattr(terminal, &settings) != 0)
        return;
    const auto echo = static_cast<tcflag_t>(ECHO);
    settings.c_lflag = isOn ? settings.c_lflag | echo : settings.c_lflag & ~echo;
    ::tcsetattr(terminal, TCSANOW, &settings);
}

void Write(int terminal, const char *text)
{
    if (::write(terminal, text, std::strlen(text)) < 0)
        return; // ignored: the terminal has gone
}

} // namespace

std::optional<bool> IsTimeSynchronised()
{
    timex state {};
    const int answer = ::adjtimex(&state);
    if (answer < 0)
        return std::nullopt;
    return answer != TIME_ERROR && !(state.status & STA_UNSYNC);
}

bool IsTimeSet()
{
    return ::time(nullptr) >= CLOCK_BUILD_TIME && IsTimeSynchronised().value_or(true);
}

void NotifyService(const char *state)
{
#ifdef CLOCK_HAS_SYSTEMD
    ::sd_notify(0, state);
#else
    Q_UNUSED(state)
#endif
}

MaybeFailure WriteStatus(const QString &path, const QJsonObject &status)
{
    return WriteFile(path, QJsonDocument(status).toJson(), Targets::RegularFiles);
}

QuietConsole::QuietConsole() : m_terminal(::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC))
{
    if (m_terminal < 0)
        return;
    std::signal(SIGTTOU,
                SIG_IGN); // changing the terminal from the background would stop the process
    SetEcho(m_terminal, false);
    Write(m_terminal, kHideCursor);
}

QuietConsole::~QuietConsole()
{
    if (m_terminal < 0)
        return;
    SetEcho(m_terminal, true);
    Write(m_terminal, kShowCursor);
    ::close(m_terminal);
}

} // namespace ClockPlayer
