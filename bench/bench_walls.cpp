// bench/: many clocks at once, and the memory that one keeps.
#include "bench_support.h"

#include "calendar/time_units.h"
#include "display/draw_display_image.h"

#include <QImage>

#include <vector>

using Lw::HNodeClock::DrawDisplayImage;
using Lw::HNodeClock::HClockNode;

namespace {

constexpr QSize kArea(256, 128);
constexpr int kPoints = 12;

// A clock as the player keeps it: with the frame that is shown.
struct PlayedClock
{
    explicit PlayedClock(HClockNode *node) : drawer(new DrawDisplayImage(node)) { }
    void Play() { shown = drawer->DrawClockDisplayImage(); }

    std::unique_ptr<DrawDisplayImage> drawer;
    QImage shown;
};

// One iteration draws every clock.
void Wall(benchmark::State &state)
{
    const auto node = bench::NewNode(static_cast<int>(state.range(0)), kArea, kPoints);
    bench::MakeGlyphs(node.get());
    bench::SteppedTime time;
    std::vector<PlayedClock> clocks;
    for (int i = 0; i < state.range(1); ++i)
        clocks.emplace_back(node.get());
    for (int second = 0; second < 3; ++second) {
        for (PlayedClock &clock : clocks)
            clock.Play();
        time.Step();
    }
    for (auto _ : state) {
        time.Step();
        for (PlayedClock &clock : clocks)
            clock.Play();
    }
}

// The heap that a played clock takes after two minutes, without its node.
void Memory(benchmark::State &state)
{
    constexpr int kClocks = 16;
    const auto node = bench::NewNode(static_cast<int>(state.range(0)), kArea, kPoints);
    bench::MakeGlyphs(node.get());
    bench::SteppedTime time;
    for (auto _ : state) {
        PlayedClock first(node.get()); // allocates what all clocks share
        first.Play();
        const long long before = HeapInUse();
        std::vector<PlayedClock> clocks;
        for (int i = 0; i < kClocks; ++i)
            clocks.emplace_back(node.get());
        for (int second = 0; second < 120; ++second) {
            time.Step();
            for (PlayedClock &clock : clocks)
                clock.Play();
        }
        state.counters["KiB"] = static_cast<double>(HeapInUse() - before) / 1024 / kClocks;
    }
}

// How much the heap grows after so many frames as a day has. They show the same hour again and
// again.
void Growth(benchmark::State &state)
{
    const auto node = bench::NewNode(static_cast<int>(state.range(0)), kArea, kPoints);
    bench::MakeGlyphs(node.get());
    bench::SteppedTime time;
    for (auto _ : state) {
        PlayedClock clock(node.get());
        long long before = 0;
        for (long long frame = 0; frame < state.range(1); ++frame) {
            if (frame == Lw::HNodeClock::kSecondsPerDay)
                before = HeapInUse();
            time.Step();
            clock.Play();
        }
        state.counters["bytes"] = static_cast<double>(HeapInUse() - before);
    }
}

} // namespace

BENCHMARK(Wall)
    ->ArgNames({"type", "clocks"})
    ->Args({bench::kDigital, 1})
    ->Args({bench::kDigital, 64})
    ->Args({bench::kAnalog, 1})
    ->Args({bench::kAnalog, 64});
BENCHMARK(Memory)
    ->ArgName("type")
    ->Arg(bench::kDigital)
    ->Arg(bench::kAnalog)
    ->Iterations(1)
    ->Repetitions(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Growth)
    ->ArgNames({"type", "frames"})
    ->Args({bench::kDigital, 1000000})
    ->Args({bench::kAnalog, 1000000})
    ->Iterations(1)
    ->Repetitions(1)
    ->Unit(benchmark::kMillisecond);
