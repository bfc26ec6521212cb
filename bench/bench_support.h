// What the benchmarks share: nodes that are ready to be drawn, and a time that they step.
#pragma once

#include "clock_node.h"

#include <QSize>

#include <benchmark/benchmark.h>

#include <memory>

namespace bench {

constexpr int kAnalog = 0;
constexpr int kDigital = 1;
constexpr int kPicture = 2;

/// A clock with its defaults, a fixed font that suits the area, and no glyph images yet.
std::unique_ptr<Lw::HNodeClock::HClockNode> NewNode(int clockType, QSize size);

/// Writes the node's glyph images and records them on it.
void MakeGlyphs(Lw::HNodeClock::HClockNode *node);

/// The plugin's time stands at 2024-03-05 10:00:00 UTC while one lives, and Step moves it on by a
/// second within that hour, so that no date changes.
class SteppedTime
{
public:
    SteppedTime();
    ~SteppedTime();
    SteppedTime(const SteppedTime &) = delete;
    SteppedTime &operator=(const SteppedTime &) = delete;
    void Step();
};

/// Puts the allocations an iteration took beside its time.
class AllocationsPerIteration
{
public:
    explicit AllocationsPerIteration(benchmark::State &state);
    ~AllocationsPerIteration();
    AllocationsPerIteration(const AllocationsPerIteration &) = delete;
    AllocationsPerIteration &operator=(const AllocationsPerIteration &) = delete;

private:
    benchmark::State &m_state;
    long long m_before;
};

} // namespace bench
