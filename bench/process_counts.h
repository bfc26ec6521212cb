// What the process asked its C library for, where the library lets itself be asked (glibc, and no
// sanitizer); elsewhere all counts stay 0.
#pragma once

struct ProcessCounts
{
    long long allocations = 0;
    long long bytes = 0;      ///< allocated, whether or not given back since
    long long frameSized = 0; ///< allocations of at least the size set
    long long filesOpened = 0;
    double userMicroseconds = 0; ///< processor time outside the kernel: without file access
};

/// Since the process began.
ProcessCounts CountsNow();

/// From now on, allocations of so many bytes count as frame-sized.
void SetFrameBytes(long long bytes);

/// Bytes of the heap in use.
long long HeapInUse();
