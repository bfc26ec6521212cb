// bench/: clock_bench: benchmarks of frames, glyphs and checks. Needs no display; writes glyph
// images to a temporary directory.
#include "happconfig.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    const QGuiApplication application(argc, argv);
    const QTemporaryDir directory;
    if (!directory.isValid())
        return 1;
    Lw::HAppConfig::SetClockOutputPath(directory.filePath(QStringLiteral("glyphs")));
    Lw::HAppConfig::SetTempProgramImagePath(directory.filePath(QStringLiteral("temporary")));
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
