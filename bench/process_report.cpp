#include "process_report.h"

#include <cstdio>

#include <sys/resource.h>
#include <time.h>

namespace bench {

namespace {

double Milliseconds(clockid_t clock)
{
    timespec time {};
    ::clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

} // namespace

Usage::Usage()
{
    processor = Milliseconds(CLOCK_THREAD_CPUTIME_ID);
    rusage used {};
    ::getrusage(RUSAGE_THREAD, &used);
    wakeUps = used.ru_nvcsw;
}

double ProcessMilliseconds()
{
    return Milliseconds(CLOCK_PROCESS_CPUTIME_ID);
}

void Print(const char *name, double number)
{
    std::printf("%s: %.4g\n", name, number);
}

// The counts before are not 0, which shows that counting works.
void Print(const Usage &begun, const Usage &ended, int presentations, int seconds)
{
    const ProcessCounts &from = begun.counts;
    const ProcessCounts &to = ended.counts;
    Print("presentations per second", double(presentations) / seconds);
    Print("wake-ups per second", double(ended.wakeUps - begun.wakeUps) / seconds);
    Print("processor ms per second", (ended.processor - begun.processor) / seconds);
    Print("allocations per second", double(to.allocations - from.allocations) / seconds);
    Print("bytes allocated per second", double(to.bytes - from.bytes) / seconds);
    Print("frame-sized allocations before", double(from.frameSized));
    Print("frame-sized allocations", double(to.frameSized - from.frameSized));
    Print("files opened before", double(from.filesOpened));
    Print("files opened", double(to.filesOpened - from.filesOpened));
}

} // namespace bench
