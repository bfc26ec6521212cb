// bench/: what the benchmarks share: nodes that are ready to be drawn, a stepped time, and counts.
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

/// How the device's clock is read before the stepped time is returned, so that its cost is
/// included.
enum class ClockRead {
    Lean,  ///< as milliseconds since 1970, like the plugin
    Plain, ///< as local date and time, converted to UTC
};

/// While one exists, the plugin's time starts at 2024-03-05 10:00:00 UTC, and Step() advances it by
/// a second; after an hour it starts again, so that no date changes.
class SteppedTime
{
public:
    explicit SteppedTime(ClockRead clockRead = ClockRead::Lean);
    ~SteppedTime();
    SteppedTime(const SteppedTime &) = delete;
    SteppedTime &operator=(const SteppedTime &) = delete;
    void Step();
};

/// Adds counters per iteration to the benchmark: allocations, their bytes, how many were as large
/// as a frame, files opened, and user time. Paused time is included.
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
