#include "allocation_count.h"

#include <atomic>
#include <cstdlib>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)

namespace {

std::atomic<long long> s_allocations {0};

} // namespace

// The C library calls whatever allocator the program brings, and offers its own by these names.
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);

void *malloc(std::size_t size)
{
    s_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    s_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}

void *realloc(void *block, std::size_t size)
{
    s_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(block, size);
}
}

long long AllocationCount()
{
    return s_allocations.load(std::memory_order_relaxed);
}

#else

long long AllocationCount()
{
    return 0;
}

#endif
