// Preloaded into emulated programs, so that those that start others work there, and are harmless.
//
// Qt starts a process with a descriptor of its own where the kernel offers that, and asks the
// kernel whether it does. The emulator hands the question on but not the request, so that Qt takes
// -1 for the process it has started, and stops it: kill(-1), the end of everything that the user
// runs. Here the question is answered as the emulator should, and no other kill means that.
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <dlfcn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

template<typename Function>
Function *Next(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

// Processes that are started from here and not emulated could not load this library.
[[maybe_unused]] const int s_isForThisProcessOnly = unsetenv("LD_PRELOAD");

constexpr long kDescriptorOfAProcess = 3; // P_PIDFD, which older headers do not have

} // namespace

extern "C" long syscall(long number, ...) noexcept
{
    __builtin_va_list list;
    __builtin_va_start(list, number);
    long words[6];
    for (long &word : words)
        word = __builtin_va_arg(list, long);
    __builtin_va_end(list);
    if (number == SYS_waitid && words[0] == kDescriptorOfAProcess) {
        errno = EINVAL;
        return -1;
    }
    static const auto next = Next<long(long, ...)>("syscall");
    return next(number, words[0], words[1], words[2], words[3], words[4], words[5]);
}

extern "C" int kill(pid_t process, int signal) noexcept
{
    static const auto next = Next<int(pid_t, int)>("kill");
    if (process != -1)
        return next(process, signal);
    errno = EPERM;
    return -1;
}
