// clock_seconds: draws a number of seconds of one clock as its player asks for them, and nothing
// else, so that what they cost can be counted from outside.
#include "bench_support.h"

#include "calendar/device_clock.h"
#include "display/draw_display_image.h"
#include "happconfig.h"

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <cstdio>

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
    QImage shown;
    for (int i = 0; i < arguments[4].toInt(); ++i) {
        const Lw::HNodeClock::HeldInstant held;
        shown = drawer.DrawClockDisplayImage();
        time.Step();
    }
    return shown.isNull() ? 1 : 0;
}
