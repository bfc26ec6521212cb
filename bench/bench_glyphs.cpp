// Glyph images: made by the generator, loaded by the composer.
#include "bench_support.h"

#include "compose/draw_clock_classify_image.h"
#include "glyph/draw_source_image.h"

using Lw::HNodeClock::Attribute;
using Lw::HNodeClock::DrawClockClassifyImage;
using Lw::HNodeClock::DrwSourceIMage;
using Lw::HNodeClock::Key;

namespace {

constexpr QSize kArea(256, 128);

int ClockType(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

// The colour of dates and weeks changes with each run or stays: files
// that would come out as they stand may be left alone.
void Generate(benchmark::State &state, bool changing)
{
    const auto node = bench::NewNode(ClockType(state), kArea);
    int colour = 0;
    for (auto _ : state) {
        colour = changing ? (colour + 1) % 0x1000000 : colour;
        for (const Attribute key : {Attribute::DigitalDateColor, Attribute::AnalogDateColor,
                                    Attribute::DigitalWeekColor, Attribute::AnalogWeekColor})
            node->SetAttribute(Key(key), colour, false);
        DrwSourceIMage().DrawClockSourceImage(node.get());
    }
}

void GlyphGeneration(benchmark::State &state)
{
    Generate(state, true);
}

void GlyphGenerationUnchanged(benchmark::State &state)
{
    Generate(state, false);
}

void GlyphLoading(benchmark::State &state)
{
    const auto node = bench::NewNode(ClockType(state), kArea);
    bench::MakeGlyphs(node.get());
    DrawClockClassifyImage composer;
    const bench::AllocationsPerIteration allocations(state);
    for (auto _ : state)
        composer.InitParameters(node.get());
}

void Types(benchmark::internal::Benchmark *types)
{
    types->ArgName("type")->Arg(bench::kAnalog)->Arg(bench::kDigital);
    types->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(GlyphGeneration)->Apply(Types);
BENCHMARK(GlyphGenerationUnchanged)->Apply(Types);
BENCHMARK(GlyphLoading)->Apply(Types);
