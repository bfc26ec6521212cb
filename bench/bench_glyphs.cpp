// bench/: glyph images: drawn by the generator, loaded by the composer.
#include "bench_support.h"

#include "compose/draw_clock_classify_image.h"
#include "display/draw_display_image.h"
#include "glyph/draw_source_image.h"
#include "glyph/glyph_cache.h"
#include "glyph/glyph_file.h"

#include "happconfig.h"

#include <QBuffer>
#include <QDir>
#include <QPair>
#include <QPixmap>
#include <QVector>

#include <vector>

using Lw::HNodeClock::Attribute;
using Lw::HNodeClock::DrawClockClassifyImage;
using Lw::HNodeClock::DrawDisplayImage;
using Lw::HNodeClock::DrwSourceIMage;
using Lw::HNodeClock::Durability;
using Lw::HNodeClock::GlyphCache;
using Lw::HNodeClock::Key;
using Lw::HNodeClock::ReadSmallFile;
using Lw::HNodeClock::WriteImageFile;

namespace {

constexpr QSize kArea(256, 128);
constexpr int kPointsOf16Pixels = 12; // at 96 pixels per inch
constexpr int kPointsOf48Pixels = 36;

std::unique_ptr<Lw::HNodeClock::HClockNode> NodeOf(const benchmark::State &state)
{
    return bench::NewNode(static_cast<int>(state.range(0)), kArea,
                          static_cast<int>(state.range(1)));
}

// The cache is empty, but the files already hold the right bytes.
void GlyphGeneration(benchmark::State &state)
{
    const auto node = NodeOf(state);
    const bench::CountsPerIteration counts(state);
    for (auto _ : state) {
        GlyphCache::Shared().Forget();
        DrwSourceIMage().DrawClockSourceImage(node.get());
    }
}

void GlyphGenerationUnchanged(benchmark::State &state)
{
    const auto node = NodeOf(state);
    bench::MakeGlyphs(node.get());
    const bench::CountsPerIteration counts(state);
    for (auto _ : state)
        DrwSourceIMage().DrawClockSourceImage(node.get());
}

// The date's colour changes with each iteration, to a value that it did not have before.
void GlyphGenerationDateColour(benchmark::State &state)
{
    const auto node = NodeOf(state);
    bench::MakeGlyphs(node.get());
    int colour = 0;
    const bench::CountsPerIteration counts(state);
    for (auto _ : state) {
        ++colour;
        for (const Attribute key : {Attribute::DigitalDateColor, Attribute::AnalogDateColor})
            node->SetAttribute(Key(key), colour, false);
        DrwSourceIMage().DrawClockSourceImage(node.get());
    }
}

void EmptyOutput()
{
    const QDir directory(Lw::HAppConfig::ClockOutputPath());
    for (const QString &name : directory.entryList(QDir::Files))
        QFile::remove(directory.filePath(name));
}

std::vector<std::unique_ptr<Lw::HNodeClock::HClockNode>> EqualNodes(const benchmark::State &state)
{
    std::vector<std::unique_ptr<Lw::HNodeClock::HClockNode>> nodes;
    for (int i = 0; i < static_cast<int>(state.range(2)); ++i) {
        nodes.push_back(NodeOf(state));
        nodes.back()->SetAttribute(Key(Attribute::Id), 1000 + i, false);
    }
    return nodes;
}

// For clocks that differ only in their Ids, into an empty directory. The counts include emptying
// it.
void GlyphGenerationAlike(benchmark::State &state)
{
    const auto nodes = EqualNodes(state);
    const bench::CountsPerIteration counts(state);
    for (auto _ : state) {
        state.PauseTiming();
        EmptyOutput();
        GlyphCache::Shared().Forget();
        state.ResumeTiming();
        for (const auto &node : nodes)
            DrwSourceIMage().DrawClockSourceImage(node.get());
    }
}

// The lower bound for GlyphGenerationAlike: the files are only created.
void GlyphFilesCreated(benchmark::State &state)
{
    const auto nodes = EqualNodes(state);
    QVector<QPair<QString, QByteArray>> files;
    for (const auto &node : nodes) {
        bench::MakeGlyphs(node.get());
        for (const Lw::FileRecord &record : node->FileRecords())
            files.append({record.path, ReadSmallFile(record.path)});
    }
    const bench::CountsPerIteration counts(state);
    for (auto _ : state) {
        state.PauseTiming();
        EmptyOutput();
        state.ResumeTiming();
        for (const auto &file : qAsConst(files))
            WriteImageFile(file.first, file.second, Durability::Ordinary);
    }
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

// Loading, and everything else that the first frame needs.
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

void SetsOfClocks(benchmark::internal::Benchmark *sets)
{
    sets->ArgNames({"type", "points", "clocks"});
    for (const int clocks : {1, 64})
        sets->Args({bench::kDigital, kPointsOf48Pixels, clocks});
    sets->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(GlyphGeneration)->Apply(Sets);
BENCHMARK(GlyphGenerationUnchanged)->Apply(Sets);
BENCHMARK(GlyphGenerationDateColour)->Apply(Sets);
BENCHMARK(GlyphGenerationAlike)->Apply(SetsOfClocks);
BENCHMARK(GlyphFilesCreated)->Apply(SetsOfClocks);
BENCHMARK(GlyphSetEncoded)->Apply(Sets);
BENCHMARK(GlyphLoading)->Apply(Sets);
BENCHMARK(FirstFrame)->Apply(Sets);
