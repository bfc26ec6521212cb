// Frames: a steady second of each kind of clock beside the least that a frame of its size can cost.
#include "bench_support.h"

#include "calendar/device_clock.h"
#include "display/draw_display_image.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>

#include <cstring>
#include <utility>
#include <vector>

using Lw::HNodeClock::DrawDisplayImage;
using Lw::HNodeClock::HeldReading;

namespace {

QSize Area(const benchmark::State &state)
{
    return QSize(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
}

void SetFrameBytes(benchmark::State &state)
{
    state.SetBytesProcessed(state.iterations() * state.range(0) * state.range(1) * 4);
}

// The player keeps the frame that it shows until it is given the next one.
void PlayFrames(benchmark::State &state, int clockType)
{
    const auto node = bench::NewNode(clockType, Area(state));
    bench::MakeGlyphs(node.get());
    bench::SteppedTime time;
    DrawDisplayImage drawer(node.get());
    QImage shown;
    for (int i = 0; i < 3; ++i) {
        shown = drawer.DrawClockDisplayImage();
        time.Step();
    }
    const bench::AllocationsPerIteration allocations(state);
    for (auto _ : state) {
        time.Step();
        const HeldReading held;
        shown = drawer.DrawClockDisplayImage();
        benchmark::DoNotOptimize(shown.constBits());
    }
    SetFrameBytes(state);
}

void DigitalSecond(benchmark::State &state)
{
    PlayFrames(state, bench::kDigital);
}

void AnalogSecond(benchmark::State &state)
{
    PlayFrames(state, bench::kAnalog);
}

void PictureSecond(benchmark::State &state)
{
    const QString dial =
        QCoreApplication::applicationDirPath() + "/../image/ClockType/picbutton1.png";
    if (!QFileInfo::exists(dial))
        state.SkipWithError("no style pictures beside the program's directory");
    else
        PlayFrames(state, bench::kPicture);
}

void KeyColourFill(benchmark::State &state)
{
    QImage image(Area(state), QImage::Format_ARGB32);
    for (auto _ : state) {
        image.fill(QColor(1, 2, 1));
        benchmark::DoNotOptimize(image.constBits());
        benchmark::ClobberMemory();
    }
    SetFrameBytes(state);
}

void FrameCopy(benchmark::State &state)
{
    const auto bytes = static_cast<std::size_t>(state.range(0) * state.range(1) * 4);
    const std::vector<unsigned char> from(bytes, 1);
    std::vector<unsigned char> to(bytes);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), bytes);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
    SetFrameBytes(state);
}

// A new drawer: glyph images are loaded, every element is composed, a whole frame is drawn.
void DigitalFromNothing(benchmark::State &state)
{
    const auto node = bench::NewNode(bench::kDigital, Area(state));
    bench::MakeGlyphs(node.get());
    const bench::SteppedTime time;
    const bench::AllocationsPerIteration allocations(state);
    for (auto _ : state) {
        DrawDisplayImage drawer(node.get());
        const QImage frame = drawer.DrawClockDisplayImage();
        benchmark::DoNotOptimize(frame.constBits());
    }
    SetFrameBytes(state);
}

void Sizes(benchmark::internal::Benchmark *frames)
{
    using Size = std::pair<int, int>;
    for (const auto &[width, height] : {Size(64, 32), Size(128, 64), Size(256, 128), Size(512, 256),
                                        Size(1024, 512), Size(1920, 1080)}) {
        frames->Args({width, height});
    }
    frames->ArgNames({"width", "height"});
}

} // namespace

BENCHMARK(DigitalSecond)->Apply(Sizes);
BENCHMARK(AnalogSecond)->Apply(Sizes);
BENCHMARK(PictureSecond)->Apply(Sizes);
BENCHMARK(KeyColourFill)->Apply(Sizes);
BENCHMARK(FrameCopy)->Apply(Sizes);
BENCHMARK(DigitalFromNothing)->Apply(Sizes);
