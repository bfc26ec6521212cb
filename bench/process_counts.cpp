#include "process_counts.h"

#include <atomic>
#include <climits>
#include <cstdarg>
#include <cstddef>

#include <sys/resource.h>

namespace {

double UserMicroseconds()
{
    rusage used {};
    getrusage(RUSAGE_SELF, &used);
    return 1e6 * static_cast<double>(used.ru_utime.tv_sec)
        + static_cast<double>(used.ru_utime.tv_usec);
}

} // namespace

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)

#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>

namespace {

std::atomic<long long> s_allocations {0};
std::atomic<long long> s_bytes {0};
std::atomic<long long> s_frameSized {0};
std::atomic<long long> s_filesOpened {0};
std::atomic<long long> s_frameBytes {LLONG_MAX};

void Count(std::size_t size)
{
    const auto bytes = static_cast<long long>(size);
    s_allocations.fetch_add(1, std::memory_order_relaxed);
    s_bytes.fetch_add(bytes, std::memory_order_relaxed);
    if (bytes >= s_frameBytes.load(std::memory_order_relaxed))
        s_frameSized.fetch_add(1, std::memory_order_relaxed);
}

using Open = int (*)(const char *, int, ...);

int CountedOpen(Open next, const char *path, int flags, va_list arguments)
{
    s_filesOpened.fetch_add(1, std::memory_order_relaxed);
    const auto mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    return next(path, flags, mode);
}

} // namespace

// A program may define malloc() and the like; glibc's own stay available under these names.
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);

void *malloc(std::size_t size)
{
    Count(size);
    return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    Count(count * size);
    return __libc_calloc(count, size);
}

void *realloc(void *block, std::size_t size)
{
    Count(size);
    return __libc_realloc(block, size);
}

int open(const char *path, int flags, ...)
{
    static const auto next = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "open"));
    va_list arguments;
    va_start(arguments, flags);
    const int file = CountedOpen(next, path, flags, arguments);
    va_end(arguments);
    return file;
}

// With 64-bit file offsets on a 32-bit machine, open64() is open() already.
#if !defined(_FILE_OFFSET_BITS)
int open64(const char *path, int flags, ...)
{
    static const auto next = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "open64"));
    va_list arguments;
    va_start(arguments, flags);
    const int file = CountedOpen(next, path, flags, arguments);
    va_end(arguments);
    return file;
}
#endif
}

ProcessCounts CountsNow()
{
    return {s_allocations.load(), s_bytes.load(), s_frameSized.load(), s_filesOpened.load(),
            UserMicroseconds()};
}

void SetFrameBytes(long long bytes)
{
    s_frameBytes.store(bytes);
}

long long HeapInUse()
{
#if __GLIBC__ > 2 || __GLIBC_MINOR__ >= 33
    const struct mallinfo2 info = mallinfo2();
#else
    const struct mallinfo info = mallinfo();
#endif
    return static_cast<long long>(info.uordblks) + static_cast<long long>(info.hblkhd);
}

#else

ProcessCounts CountsNow()
{
    ProcessCounts counts;
    counts.userMicroseconds = UserMicroseconds();
    return counts;
}

void SetFrameBytes(long long) { }

long long HeapInUse()
{
    return 0;
}

#endif
