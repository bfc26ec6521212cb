// Glyph images: made by the generator, loaded by the composer.
#include "bench_support.h"

#include "compose/draw_clock_classify_image.h"
#include "display/draw_display_image.h"
#include "glyph/draw_source_image.h"

#include <QBuffer>
#include <QPixmap>
#include <QVector>

using Lw::HNodeClock::Attribute;
using Lw::HNodeClock::DrawClockClassifyImage;
using Lw::HNodeClock::DrawDisplayImage;
using Lw::HNodeClock::DrwSourceIMage;
using Lw::HNodeClock::Key;

namespace {

constexpr QSize kArea(256, 128);
constexpr int kPointsOf16Pixels = 12; // at 96 pixels an inch
constexpr int kPointsOf48Pixels = 36;

std::unique_ptr<Lw::HNodeClock::HClockNode> NodeOf(const benchmark::State &state)
{
    return bench::NewNode(static_cast<int>(state.range(0)), kArea,
                          static_cast<int>(state.range(1)));
}

// The colour of dates and weeks changes with each run or stays: files
// that would come out as they stand may be left alone.
void Generate(benchmark::State &state, bool changing)
{
    const auto node = NodeOf(state);
    bench::MakeGlyphs(node.get());
    int colour = 0;
    const bench::CountsPerIteration counts(state);
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

// The least that making a set can cost: its images encoded as they are saved, into memory.
void GlyphSetEncoded(benchmark::State &state)
{
    const auto node = NodeOf(state);
    bench::MakeGlyphs(node.get());
    QVector<QPixmap> images;
    for (const Lw::FileRecord &record : node->FileRecords())
        images.append(QPixmap(record.path));
    const bench::CountsPerIteration counts(state);
    for (auto _ : state) {
        for (const QPixmap &image : qAsConst(images)) {
            QBuffer buffer;
            buffer.open(QBuffer::WriteOnly);
            image.save(&buffer, "png");
        }
    }
}

void GlyphLoading(benchmark::State &state)
{
    const auto node = NodeOf(state);
    bench::MakeGlyphs(node.get());
    DrawClockClassifyImage composer;
    const bench::CountsPerIteration counts(state);
    for (auto _ : state)
        composer.InitParameters(node.get());
}

// Loading, and whatever the first frame needs besides.
void FirstFrame(benchmark::State &state)
{
    const auto node = NodeOf(state);
    bench::MakeGlyphs(node.get());
    const bench::SteppedTime time;
    const bench::CountsPerIteration counts(state);
    for (auto _ : state) {
        DrawDisplayImage drawer(node.get());
        const QImage frame = drawer.DrawClockDisplayImage();
        benchmark::DoNotOptimize(frame.constBits());
    }
}

void Sets(benchmark::internal::Benchmark *sets)
{
    sets->ArgNames({"type", "points"});
    for (const int type : {bench::kAnalog, bench::kDigital}) {
        for (const int points : {kPointsOf16Pixels, kPointsOf48Pixels})
            sets->Args({type, points});
    }
    sets->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(GlyphGeneration)->Apply(Sets);
BENCHMARK(GlyphGenerationUnchanged)->Apply(Sets);
BENCHMARK(GlyphSetEncoded)->Apply(Sets);
BENCHMARK(GlyphLoading)->Apply(Sets);
BENCHMARK(FirstFrame)->Apply(Sets);
