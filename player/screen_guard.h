// player/: a watchdog thread that blanks the screen when no second was presented for some time: a
// clock that has stopped must not be read.
#pragma once

#include <QString>

#include <atomic>
#include <functional>
#include <thread>

namespace ClockPlayer {

class ScreenGuard
{
public:
    /// Calls `blank` on the watchdog thread once no Feed() has followed the last one for this many
    /// milliseconds; never before the first. The thread sleeps in between.
    ScreenGuard(std::function<void()> blank, int milliseconds);
    ~ScreenGuard();

    ScreenGuard(const ScreenGuard &) = delete;
    ScreenGuard &operator=(const ScreenGuard &) = delete;

    /// Restarts the timeout; call after each presented second. Costs one system call.
    void Feed();
    /// Whether it has blanked the screen since the last call, so that everything must be repainted.
    bool TakeBlanked() { return m_hasBlanked.exchange(false); }

private:
    void Watch();

    const std::function<void()> m_blank;
    const int m_milliseconds;
    const int m_timer;
    const int m_end; ///< readable when the thread is to end
    std::atomic<bool> m_hasBlanked {false};
    std::thread m_thread; // last: it uses the others
};

/// Fills a framebuffer such as /dev/fb0 with zeros. False if it cannot be opened or mapped.
bool BlankFramebuffer(const QString &device);

/// The framebuffer of a platform text such as "linuxfb:fb=/dev/fb1"; empty for other platforms.
QString FramebufferOf(const QString &platform);

} // namespace ClockPlayer
