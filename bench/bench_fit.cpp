// bench/: the cost of checking a year: one clock, a wall of clocks, and the sizes that fit.
#include "bench_support.h"
#include "checked_clocks.h"

namespace {

using bench::CheckedClocks;
using bench::kClocksOfAWall;
using bench::kPointsOf48Pixels;

void Check(benchmark::State &state, const CheckedClocks &clocks)
{
    const bench::CountsPerIteration counts(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(clocks.Check());
}

void FitOfAClock(benchmark::State &state)
{
    Check(state,
          CheckedClocks(static_cast<int>(state.range(0)), 1, static_cast<int>(state.range(1))));
}

void FitOfAWall(benchmark::State &state)
{
    Check(state, CheckedClocks(static_cast<int>(state.range(0)), kClocksOfAWall));
}

void FitSizes(benchmark::State &state)
{
    const auto node =
        bench::NewNode(static_cast<int>(state.range(0)), QSize(128, 64), kPointsOf48Pixels);
    for (auto _ : state) {
        ClockFit::ClockCheck check(ClockFit::YearFrom(0));
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
