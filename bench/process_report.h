// bench/: measures what a part of a run costs the process, and prints it line by line.
#pragma once

#include "process_counts.h"

namespace bench {

/// What the process has used since its start.
struct Usage
{
    ProcessCounts counts = CountsNow();
    double processor; ///< milliseconds of this thread
    long wakeUps;     ///< voluntary context switches of this thread

    Usage();
};

/// Processor time of all threads, in milliseconds.
double ProcessMilliseconds();

/// Prints "NAME: NUMBER".
void Print(const char *name, double number);

/// Prints the differences: per second, but frame-sized allocations and opened files in total.
void Print(const Usage &begun, const Usage &ended, int presentations, int seconds);

} // namespace bench
