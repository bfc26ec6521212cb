// Preloaded into a program, this shifts what it is told of the system's clock by the milliseconds
// in the file named by STEPPING_CLOCK, a 64-bit number. The file may change at any time; its timers
// on the system's clock are then cancelled, as the kernel does. Monotonic clocks are left alone.
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <thread>

#include <fcntl.h>
#include <sys/eventfd.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

// Seconds have 64 bits here; see the top of the build.
#ifdef SYS_clock_gettime64
constexpr long kClockCall = SYS_clock_gettime64;
#else
constexpr long kClockCall = SYS_clock_gettime;
#endif

const volatile std::int64_t *MapOffset()
{
    const char *const path = std::getenv("STEPPING_CLOCK");
    const int file = path ? ::open(path, O_RDONLY | O_CLOEXEC) : -1;
    if (file < 0)
        return nullptr;
    void *const memory = ::mmap(nullptr, sizeof(std::int64_t), PROT_READ, MAP_SHARED, file, 0);
    ::close(file);
    return memory == MAP_FAILED ? nullptr : static_cast<const std::int64_t *>(memory);
}

std::int64_t OffsetMilliseconds()
{
    static const volatile std::int64_t *const offset = MapOffset();
    return offset ? *offset : 0;
}

// Makes the descriptor readable whenever the clock is shifted.
void TellSteps(int descriptor)
{
    for (std::int64_t last = OffsetMilliseconds();;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        if (OffsetMilliseconds() != last && ::eventfd_write(descriptor, 1) == 0)
            last = OffsetMilliseconds();
    }
}

} // namespace

// The program only ever asks the timers on this clock whether they were cancelled.
extern "C" int timerfd_create(clockid_t clock, int flags) noexcept
{
    if (clock != CLOCK_REALTIME)
        return static_cast<int>(::syscall(SYS_timerfd_create, clock, flags));
    const int descriptor = ::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
    std::thread(TellSteps, descriptor).detach();
    return descriptor;
}

extern "C" int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const long result = ::syscall(kClockCall, clock, time);
    if (result == 0 && clock == CLOCK_REALTIME) {
        const std::int64_t shifted =
            time->tv_sec * 1000000000LL + time->tv_nsec + OffsetMilliseconds() * 1000000LL;
        time->tv_sec = static_cast<std::time_t>(shifted / 1000000000LL);
        time->tv_nsec = static_cast<long>(shifted % 1000000000LL);
    }
    return static_cast<int>(result);
}

extern "C" int gettimeofday(timeval *time, void *) noexcept
{
    timespec now {};
    const int result = clock_gettime(CLOCK_REALTIME, &now);
    time->tv_sec = now.tv_sec;
    time->tv_usec = now.tv_nsec / 1000;
    return result;
}

extern "C" std::time_t time(std::time_t *result) noexcept
{
    timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result)
        *result = now.tv_sec;
    return now.tv_sec;
}
