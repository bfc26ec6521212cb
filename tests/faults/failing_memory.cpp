#include "failing_memory.h"

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstdlib>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)

namespace {

std::atomic<std::size_t> s_leastBytes {SIZE_MAX};
std::atomic<int> s_requests {0};
std::atomic<int> s_nth {INT_MAX};
std::atomic<bool> s_allLater {false};

bool Fails(std::size_t bytes)
{
    if (bytes < s_leastBytes.load(std::memory_order_relaxed))
        return false;
    const int request = s_requests.fetch_add(1);
    return request == s_nth || (s_allLater && request > s_nth);
}

void *NoMemory()
{
    errno = ENOMEM;
    return nullptr;
}

} // namespace

// The C library calls the allocator that the program brings, and offers its own by these names.
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);

void *malloc(std::size_t size)
{
    return Fails(size) ? NoMemory() : __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    return Fails(count * size) ? NoMemory() : __libc_calloc(count, size);
}

void *realloc(void *block, std::size_t size)
{
    return Fails(size) ? NoMemory() : __libc_realloc(block, size);
}
}

bool FailingMemory::Available()
{
    return true;
}

void FailingMemory::Fail(std::size_t leastBytes, int nth, bool allLater)
{
    s_requests = 0;
    s_nth = nth;
    s_allLater = allLater;
    s_leastBytes = leastBytes;
}

int FailingMemory::Stop()
{
    s_leastBytes = SIZE_MAX;
    return s_requests;
}

#else

bool FailingMemory::Available()
{
    return false;
}

void FailingMemory::Fail(std::size_t, int, bool) { }

int FailingMemory::Stop()
{
    return 0;
}

#endif
