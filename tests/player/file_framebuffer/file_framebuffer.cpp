// Preloaded into a program, this makes an ordinary file a framebuffer of 64 x 32 pixels of 32 bits.
// SIGUSR2 stops the thread that gets it for nine seconds.
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <ctime>

#include <linux/fb.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr unsigned int kWidth = 64;
constexpr unsigned int kHeight = 32;
constexpr unsigned int kPixelBytes = 4;
constexpr time_t kStopSeconds = 9;

void Describe(fb_fix_screeninfo &fixed)
{
    fixed = {};
    fixed.type = FB_TYPE_PACKED_PIXELS;
    fixed.visual = FB_VISUAL_TRUECOLOR;
    fixed.line_length = kWidth * kPixelBytes;
    fixed.smem_len = kHeight * fixed.line_length;
}

void Describe(fb_var_screeninfo &screen)
{
    screen = {};
    screen.xres = screen.xres_virtual = kWidth;
    screen.yres = screen.yres_virtual = kHeight;
    screen.bits_per_pixel = 8 * kPixelBytes;
    screen.red = {16, 8, 0};
    screen.green = {8, 8, 0};
    screen.blue = {0, 8, 0};
}

void Stop(int)
{
    timespec left {kStopSeconds, 0};
    while (::nanosleep(&left, &left) != 0 && errno == EINTR) { }
}

[[maybe_unused]] const auto s_previous = std::signal(SIGUSR2, Stop);

} // namespace

extern "C" int ioctl(int file, unsigned long request, ...) noexcept
{
    va_list arguments;
    va_start(arguments, request);
    void *const argument = va_arg(arguments, void *);
    va_end(arguments);
    struct stat status
    { };
    const bool isFile = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    if (isFile && request == FBIOGET_FSCREENINFO)
        Describe(*static_cast<fb_fix_screeninfo *>(argument));
    else if (isFile && request == FBIOGET_VSCREENINFO)
        Describe(*static_cast<fb_var_screeninfo *>(argument));
    else
        return static_cast<int>(::syscall(SYS_ioctl, file, request, argument));
    return 0;
}
