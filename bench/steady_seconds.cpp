// bench/: clock_seconds: draws seconds of one clock as a player does. The seconds after the caches
// are filled are drawn by DrawSteadySeconds(), so that valgrind can count them without the start,
// which varies from run to run.
#include "bench_support.h"

#include "calendar/device_clock.h"
#include "display/draw_display_image.h"
#include "happconfig.h"

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int kFirstSeconds = 70; // a minute, and what is composed when it changes

bool DrawSeconds(Lw::HNodeClock::DrawDisplayImage &drawer, bench::SteppedTime &time, int seconds)
{
    QImage shown;
    for (int i = 0; i < seconds; ++i) {
        const Lw::HNodeClock::HeldInstant held;
        shown = drawer.DrawClockDisplayImage();
        time.Step();
    }
    return !shown.isNull();
}

// The length of the environment moves the stack. Qt blends buffers on its stack with other
// instructions if they are not aligned for its vectors, so the stack is aligned here.
__attribute__((noinline)) bool DrawSteadySeconds(Lw::HNodeClock::DrawDisplayImage &drawer,
                                                 bench::SteppedTime &time, int seconds)
{
    alignas(64) char aligned[64] = {};
    benchmark::DoNotOptimize(aligned);
    return DrawSeconds(drawer, time, seconds);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 5) {
        std::fputs("usage: clock_seconds TYPE WIDTH HEIGHT SECONDS\n", stderr);
        return 2;
    }
    const QTemporaryDir directory;
    Lw::HAppConfig::SetClockOutputPath(directory.path());

    const QSize size(arguments[2].toInt(), arguments[3].toInt());
    const auto node = bench::NewNode(arguments[1].toInt(), size);
    bench::MakeGlyphs(node.get());
    bench::SteppedTime time;
    Lw::HNodeClock::DrawDisplayImage drawer(node.get());
    const bool isDrawn = DrawSeconds(drawer, time, kFirstSeconds)
        && DrawSteadySeconds(drawer, time, arguments[4].toInt());
    return isDrawn ? 0 : 1;
}
