// What a check of a year costs: one clock, a wall of clocks, and the sizes that fit.
#include "bench_support.h"

#include "fit.h"

#include <vector>

using namespace ClockFit;

namespace {

constexpr QSize kArea(512, 256);
constexpr int kPointsOf48Pixels = 36;
constexpr int kClocksOfAWall = 64;
constexpr qint64 kBegin = Q_INT64_C(1709632800000); // 2024-03-05 10:00:00 UTC

// Nothing is remembered from one iteration to the next.
void FitOfAClock(benchmark::State &state)
{
    const auto node =
        bench::NewNode(static_cast<int>(state.range(0)), kArea, static_cast<int>(state.range(1)));
    const bench::CountsPerIteration counts(state);
    for (auto _ : state) {
        ClockCheck check(YearFrom(kBegin));
        benchmark::DoNotOptimize(check.Check(*node).cuts.size());
    }
}

// No two clocks have one size.
void FitOfAWall(benchmark::State &state)
{
    std::vector<std::unique_ptr<Lw::HNodeClock::HClockNode>> nodes;
    for (int clock = 0; clock < kClocksOfAWall; ++clock)
        nodes.push_back(bench::NewNode(static_cast<int>(state.range(0)), kArea,
                                       kPointsOf48Pixels - clock % 24));
    for (auto _ : state) {
        ClockCheck check(YearFrom(kBegin));
        for (const auto &node : nodes)
            benchmark::DoNotOptimize(check.Check(*node).cuts.size());
    }
}

void FitSizes(benchmark::State &state)
{
    const auto node =
        bench::NewNode(static_cast<int>(state.range(0)), QSize(128, 64), kPointsOf48Pixels);
    for (auto _ : state) {
        ClockCheck check(YearFrom(kBegin));
        benchmark::DoNotOptimize(ShrunkSizes(check, *node).factor);
    }
}

} // namespace

BENCHMARK(FitOfAClock)
    ->ArgNames({"type", "points"})
    ->ArgsProduct({{bench::kAnalog, bench::kDigital}, {12, kPointsOf48Pixels}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FitOfAWall)
    ->ArgName("type")
    ->Arg(bench::kAnalog)
    ->Arg(bench::kDigital)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FitSizes)
    ->ArgName("type")
    ->Arg(bench::kAnalog)
    ->Arg(bench::kDigital)
    ->Unit(benchmark::kMillisecond);
