// bench/: counts the allocations and opened files of the process, if the C library is glibc and no
// sanitizer is used; otherwise these counts stay 0.
#pragma once

struct ProcessCounts
{
    long long allocations = 0;
    long long bytes = 0;      ///< allocated, whether or not freed since
    long long frameSized = 0; ///< allocations of at least the size set by SetFrameBytes()
    long long filesOpened = 0;
    double userMicroseconds = 0; ///< time outside the kernel, so without file access
};

/// Since the process began.
ProcessCounts CountsNow();

/// From now on, allocations of at least this many bytes count as frame-sized.
void SetFrameBytes(long long bytes);

/// Bytes of the heap in use.
long long HeapInUse();
