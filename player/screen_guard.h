// player/: blanks the screen when no more seconds come, from a thread of its own: a clock that
// stands still must not be read.
#pragma once

#include <QString>

#include <atomic>
#include <functional>
#include <thread>

namespace ClockPlayer {

class ScreenGuard
{
public:
    /// Calls the function, on its thread, when Feed() was not called for so long. The thread sleeps
    /// between.
    ScreenGuard(std::function<void()> blank, int milliseconds);
    ~ScreenGuard();

    ScreenGuard(const ScreenGuard &) = delete;
    ScreenGuard &operator=(const ScreenGuard &) = delete;

    /// A second was presented. Costs one call of the system.
    void Feed();
    /// Whether it has blanked the screen since the last call: all of it must be painted again.
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

/// Fills a framebuffer such as /dev/fb0 with zeros. Returns whether there was one.
bool BlankFramebuffer(const QString &device);

/// The framebuffer of a platform text such as "linuxfb:fb=/dev/fb1"; empty for other platforms.
QString FramebufferOf(const QString &platform);

} // namespace ClockPlayer
