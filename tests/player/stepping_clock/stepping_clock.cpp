// Preloaded into a program, this shifts what it is told of the system's clock by the milliseconds
// that stand, as a 64-bit number, in the file named by STEPPING_CLOCK. The file may change at any
// time; the steady clocks are left alone.
#include <cstdint>
#include <cstdlib>
#include <ctime>

#include <fcntl.h>
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

} // namespace

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
