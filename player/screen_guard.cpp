#include "screen_guard.h"

#include <QFile>
#include <QStringList>

#include <cstring>

#include <fcntl.h>
#include <linux/fb.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace ClockPlayer {

ScreenGuard::ScreenGuard(std::function<void()> blank, int milliseconds)
    : m_blank(std::move(blank)), m_milliseconds(milliseconds),
      m_timer(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
      m_end(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)), m_thread([this] { Watch(); })
{ }

ScreenGuard::~ScreenGuard()
{
    ::eventfd_write(m_end, 1);
    m_thread.join();
    ::close(m_timer);
    ::close(m_end);
}

void ScreenGuard::Feed()
{
    itimerspec time {};
    time.it_value.tv_sec = m_milliseconds / 1000;
    time.it_value.tv_nsec = m_milliseconds % 1000 * 1000000L;
    ::timerfd_settime(m_timer, 0, &time, nullptr);
}

void ScreenGuard::Watch()
{
    pollfd sources[] = {{m_timer, POLLIN, 0}, {m_end, POLLIN, 0}};
    while (::poll(sources, 2, -1) >= 0 || errno == EINTR) {
        if (sources[1].revents)
            return;
        quint64 expirations = 0;
        if (::read(m_timer, &expirations, sizeof expirations) < 0)
            continue;
        m_blank();
        m_hasBlanked = true; // last: the window is repainted once it is seen
    }
}

bool BlankFramebuffer(const QString &device)
{
    const int file = ::open(QFile::encodeName(device).constData(), O_RDWR | O_CLOEXEC);
    if (file < 0)
        return false;
    fb_fix_screeninfo fixed {};
    bool isBlank = false;
    if (::ioctl(file, FBIOGET_FSCREENINFO, &fixed) == 0) {
        void *const memory =
            ::mmap(nullptr, fixed.smem_len, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        if (memory != MAP_FAILED) {
            std::memset(memory, 0, fixed.smem_len);
            ::munmap(memory, fixed.smem_len);
            isBlank = true;
        }
    }
    ::close(file);
    return isBlank;
}

QString FramebufferOf(const QString &platform)
{
    const QStringList words = platform.split(QLatin1Char(':'));
    if (words.first() != QLatin1String("linuxfb"))
        return {};
    const QString key = QStringLiteral("fb=");
    for (const QString &word : words) {
        if (word.startsWith(key))
            return word.mid(key.size());
    }
    return QStringLiteral("/dev/fb0");
}

} // namespace ClockPlayer
