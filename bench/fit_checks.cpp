// bench/: clock_fit_checks: checks a year of some clocks and nothing else, so that valgrind can
// count the instructions (scripts/check-instructions).
#include "checked_clocks.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: clock_fit_checks TYPE CLOCKS\n", stderr);
        return 2;
    }
    const bench::CheckedClocks clocks(arguments[1].toInt(), arguments[2].toInt());
    std::printf("%d\n", clocks.Check());
    return 0;
}
