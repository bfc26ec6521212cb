// bench/: clock_studio_bench: how long the studio takes from a key to the new frame, and from its
// start to the first frame. It opens the studio's main window; needs no display.
#include "window/main_window.h"

#include "calendar/device_clock.h"
#include "catalogues.h"
#include "clock_attributes.h"
#include "time_travel.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <benchmark/benchmark.h>

#include <ctime>

using namespace ClockStudio;

namespace {

/// Digital clocks in two rows of four, further ones on top of them. `points` is the font size of
/// title and time.
QByteArray WallOf(int clocks, int points)
{
    QByteArray text = "<program width=\"256\" height=\"128\">\n";
    for (int i = 0; i < clocks; ++i) {
        text += QStringLiteral("<area x=\"%1\" y=\"%2\" width=\"64\" height=\"64\">\n"
                               "<clock type=\"digital\" timezone=\"+01:00\">\n"
                               "<title value=\"Hall %3\" fontSize=\"%4\"/><date fontSize=\"12\"/>"
                               "<week fontSize=\"12\"/><time fontSize=\"%4\" color=\"#ff%5\"/>\n"
                               "</clock></area>\n")
                    .arg(i % 4 * 64)
                    .arg(i / 4 % 2 * 64)
                    .arg(i)
                    .arg(points)
                    .arg(i + 4096, 4, 16, QLatin1Char('0'))
                    .toUtf8();
    }
    return text + "</program>\n";
}

/// Processor time of the window's thread in milliseconds.
double ProcessorTime()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

struct OpenWindow
{
    QTemporaryDir work;
    std::unique_ptr<MainWindow> window;

    explicit OpenWindow(const QByteArray &program)
    {
        QFile file(work.filePath("wall.xml"));
        if (!file.open(QFile::WriteOnly) || file.write(program) != program.size())
            qFatal("the program file cannot be written");
        file.close();
        window = std::make_unique<MainWindow>(work.filePath("recovery"));
        window->show();
        if (!window->Open(file.fileName()))
            qFatal("the program cannot be opened");
    }
    ~OpenWindow()
    {
        window->Document().History().setClean(); // no question when it closes
    }

    void WaitForClocks()
    {
        do
            QCoreApplication::processEvents();
        while (!window->Editor().Wall().IsComplete());
    }
    /// The longest that the window did not respond while clocks were made, in milliseconds of
    /// its thread's processor time.
    double LongestWait()
    {
        double longest = 0;
        do {
            const double begin = ProcessorTime();
            QCoreApplication::processEvents();
            longest = qMax(longest, ProcessorTime() - begin);
        } while (!window->Editor().Wall().IsComplete());
        return longest;
    }
};

/// From a key press in a control of the first clock to the frame that shows its effect.
void Press(benchmark::State &state, Lw::HNodeClock::Attribute attribute, Qt::Key key)
{
    OpenWindow open(WallOf(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))));
    open.WaitForClocks();
    open.window->Editor().Select({0});
    auto *const control = open.window->findChild<QWidget *>(Lw::HNodeClock::Key(attribute)
                                                            + QStringLiteral("Control"));
    control->setFocus();
    double longest = 0;
    for (auto _ : state) {
        const double begin = ProcessorTime();
        QTest::keyClick(control, key);
        longest = qMax(longest, ProcessorTime() - begin);
        longest = qMax(longest, open.LongestWait());
    }
    state.counters["longest wait, ms"] = longest;
}

void Letter(benchmark::State &state)
{
    Press(state, Lw::HNodeClock::Attribute::DigitalTopText, Qt::Key_A);
}

/// All images of the font change.
void LargerTime(benchmark::State &state)
{
    Press(state, Lw::HNodeClock::Attribute::DigitalTimeFSize, Qt::Key_Up);
}

/// From creating the window to the first frame of a wall of eight clocks.
void Start(benchmark::State &state)
{
    for (auto _ : state) {
        OpenWindow open(WallOf(8, 24));
        open.WaitForClocks();
        open.window->grab();
    }
}

void Walls(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"clocks", "points"})->Unit(benchmark::kMillisecond)->Iterations(20);
    for (const auto &wall : std::vector<std::vector<int64_t>> {{8, 36}, {64, 36}, {1, 200}})
        benchmark->Args(wall);
}

BENCHMARK(Start)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(Letter)->Apply(Walls);
BENCHMARK(LargerTime)->Apply(Walls);

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    const QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("clock-studio-bench"));
    ClockCatalogues::Install(QStringLiteral("en"));
    clock_set_time_source(ClockStage::StageTime::TellPlugin);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
