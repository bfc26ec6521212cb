// What the benchmarks share: nodes that are ready to be drawn, and a time that they step.
#pragma once

#include "process_counts.h"

#include "clock_node.h"

#include <QSize>

#include <benchmark/benchmark.h>

#include <memory>

namespace bench {

constexpr int kAnalog = 0;
constexpr int kDigital = 1;
constexpr int kPicture = 2;

/// A clock with its defaults, a fixed font, and no glyph images yet. Without a size in points the
/// font suits the area.
std::unique_ptr<Lw::HNodeClock::HClockNode> NewNode(int clockType, QSize size, int points = 0);

/// Writes the node's glyph images and records them on it.
void MakeGlyphs(Lw::HNodeClock::HClockNode *node);

/// How the device's clock is asked for each reading, before the stepped time is answered instead.
enum class Asking {
    Lean,  ///< the milliseconds since 1970, as the plugin asks
    Plain, ///< the local date and time, converted to UTC
};

/// The plugin's time stands at 2024-03-05 10:00:00 UTC while one lives, and Step moves it on by a
/// second within that hour, so that no date changes.
class SteppedTime
{
public:
    explicit SteppedTime(Asking asking = Asking::Lean);
    ~SteppedTime();
    SteppedTime(const SteppedTime &) = delete;
    SteppedTime &operator=(const SteppedTime &) = delete;
    void Step();
};

/// Puts what an iteration took of the process beside its time: allocations, their bytes, how many
/// were as large as a frame, files opened, and processor time outside the kernel.
class CountsPerIteration
{
public:
    explicit CountsPerIteration(benchmark::State &state, QSize frame = QSize());
    ~CountsPerIteration();
    CountsPerIteration(const CountsPerIteration &) = delete;
    CountsPerIteration &operator=(const CountsPerIteration &) = delete;

private:
    benchmark::State &m_state;
    ProcessCounts m_before;
};

} // namespace bench
