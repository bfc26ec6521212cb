// What a piece of a program's run took of the process, and its report line by line.
#pragma once

#include "process_counts.h"

namespace bench {

/// What the process has taken since it began.
struct Taken
{
    ProcessCounts counts = CountsNow();
    double processor; ///< milliseconds of this thread
    long wakeUps;

    Taken();
};

/// Processor time of all threads.
double ProcessMilliseconds();

/// Prints "NAME: NUMBER".
void Print(const char *name, double number);

/// Prints the difference of each count, per second.
void Print(const Taken &begun, const Taken &ended, int presentations, int seconds);

} // namespace bench
