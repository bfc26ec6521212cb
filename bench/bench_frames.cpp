// bench/: a second of each kind of clock, compared with the least that a frame of its size can
// cost, with a simple renderer of the same pixels, and with a careful program that uses Qt's own
// drawing.
#include "bench_support.h"
#include "plain_clocks.h"
#include "plain_digital.h"

#include "calendar/clock_time.h"
#include "calendar/device_clock.h"
#include "compose/draw_clock_classify_image.h"
#include "compose/element_composer.h"
#include "display/draw_display_image.h"
#include "display/frames/frame_contents.h"
#include "display/style_pictures.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QPainter>

#include <cstring>
#include <utility>
#include <vector>

using Lw::HNodeClock::Attribute;
using Lw::HNodeClock::DrawDisplayImage;
using Lw::HNodeClock::FormatAscii;
using Lw::HNodeClock::Key;

namespace {

QSize Area(const benchmark::State &state)
{
    return QSize(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
}

QDateTime Shown()
{
    return QDateTime::fromMSecsSinceEpoch(Lw::HNodeClock::UtcMilliseconds(), Qt::UTC);
}

constexpr int kFirstSeconds = 61; // a minute, in which each position of the second hand is cached

// Measures frames after the first minute. Like the player, it holds a frame until the next one.
template<typename Frame>
void MeasureFrames(benchmark::State &state, bench::SteppedTime &time, Frame frame)
{
    QImage shown;
    for (int i = 0; i < kFirstSeconds; ++i) {
        shown = frame();
        time.Step();
    }
    const bench::CountsPerIteration counts(state, Area(state));
    for (auto _ : state) {
        time.Step();
        shown = frame();
        benchmark::DoNotOptimize(shown.constBits());
    }
}

void PlayClock(benchmark::State &state, int clockType)
{
    const auto node = bench::NewNode(clockType, Area(state));
    bench::MakeGlyphs(node.get());
    bench::SteppedTime time;
    DrawDisplayImage drawer(node.get());
    MeasureFrames(state, time, [&drawer] { return drawer.DrawClockDisplayImage(); });
}

bool HasStylePictures(benchmark::State &state)
{
    const bool exists =
        QFileInfo::exists(Lw::HNodeClock::StyleFolder() + Lw::HNodeClock::DialPicture(1));
    if (!exists)
        state.SkipWithError("no style pictures next to the program's directory");
    return exists;
}

void DigitalSecond(benchmark::State &state)
{
    PlayClock(state, bench::kDigital);
}

void AnalogSecond(benchmark::State &state)
{
    PlayClock(state, bench::kAnalog);
}

void PictureSecond(benchmark::State &state)
{
    if (HasStylePictures(state))
        PlayClock(state, bench::kPicture);
}

// A clock that shows hours and minutes, within one minute.
void DigitalUnchanged(benchmark::State &state)
{
    const auto node = bench::NewNode(bench::kDigital, Area(state));
    node->SetAttribute(Key(Attribute::DigitalTimeType), 1, false);
    bench::MakeGlyphs(node.get());
    const bench::SteppedTime time;
    DrawDisplayImage drawer(node.get());
    QImage shown = drawer.DrawClockDisplayImage();
    const bench::CountsPerIteration counts(state, Area(state));
    for (auto _ : state) {
        shown = drawer.DrawClockDisplayImage();
        benchmark::DoNotOptimize(shown.constBits());
    }
}

// A frame with unknown contents: filled, and every element drawn.
void DigitalFull(benchmark::State &state)
{
    const auto node = bench::NewNode(bench::kDigital, Area(state));
    bench::MakeGlyphs(node.get());
    const bench::SteppedTime time;
    Lw::HNodeClock::DrawClockClassifyImage composer;
    composer.InitParameters(node.get());
    Lw::HNodeClock::ElementComposer &elements = composer.Elements();
    const Lw::HNodeClock::ElementComposer::FrameScope oneFrame(elements);
    Lw::HNodeClock::Placements rows;
    int top = 0;
    for (const auto *element :
         {&elements.TopText(), &elements.Date(), &elements.Week(), &elements.Time()}) {
        rows.Add(*element, {Area(state).width() / 2 - element->Width() / 2, top});
        top += element->Height();
    }
    QImage image(Area(state), QImage::Format_ARGB32);
    const bench::CountsPerIteration counts(state, Area(state));
    for (auto _ : state) {
        Lw::HNodeClock::FrameContents unknown;
        unknown.Draw(image, rows, QColor(1, 2, 1));
        benchmark::DoNotOptimize(image.constBits());
    }
}

void PlainDigitalSecond(benchmark::State &state)
{
    const auto node = bench::NewNode(bench::kDigital, Area(state));
    bench::MakeGlyphs(node.get());
    bench::SteppedTime time(bench::ClockRead::Plain);
    PlainDigitalClock plain(*node);
    MeasureFrames(state, time,
                  [&plain] { return plain.Frame(PlainDigitalClock::Gregorian(Shown())); });
}

void PlayPlain(benchmark::State &state, int clockType)
{
    const auto node = bench::NewNode(clockType, Area(state));
    bench::MakeGlyphs(node.get());
    bench::SteppedTime time(bench::ClockRead::Plain);
    PlainClock plain(node.get());
    MeasureFrames(state, time, [&plain] { return plain.Frame(); });
}

void PlainAnalogSecond(benchmark::State &state)
{
    PlayPlain(state, bench::kAnalog);
}

void PlainPictureSecond(benchmark::State &state)
{
    if (HasStylePictures(state))
        PlayPlain(state, bench::kPicture);
}

// Date, weekday and time as lines of text on a premultiplied image, with a font created once.
void QtTextSecond(benchmark::State &state)
{
    const QSize area = Area(state);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qMax(8, area.height() / 6));
    font.setStyleStrategy(QFont::NoAntialias);
    QImage frames[2] = {QImage(area, QImage::Format_ARGB32_Premultiplied),
                        QImage(area, QImage::Format_ARGB32_Premultiplied)};
    int next = 0;
    bench::SteppedTime time;
    MeasureFrames(state, time, [&] {
        QImage &frame = frames[next ^= 1];
        const QDateTime now = Shown();
        frame.fill(QColor(1, 2, 1));
        QPainter painter(&frame);
        painter.setFont(font);
        painter.setPen(Qt::white);
        const int line = area.height() / 4;
        const QString texts[] = {FormatAscii(now, "yyyy/MM/dd"), FormatAscii(now, "dddd"),
                                 FormatAscii(now, "hh:mm:ss")};
        for (int i = 0; i < 3; ++i)
            painter.drawText(QRect(0, i * line, area.width(), line), Qt::AlignCenter, texts[i]);
        painter.end();
        return std::as_const(frame);
    });
}

// Sixty marks and three hands on a premultiplied image, antialiased.
void QtDialSecond(benchmark::State &state)
{
    const QSize area = Area(state);
    const double radius = qMin(area.width(), area.height()) / 2.0;
    QImage frames[2] = {QImage(area, QImage::Format_ARGB32_Premultiplied),
                        QImage(area, QImage::Format_ARGB32_Premultiplied)};
    int next = 0;
    bench::SteppedTime time;
    MeasureFrames(state, time, [&] {
        QImage &frame = frames[next ^= 1];
        const QTime now = Shown().time();
        frame.fill(QColor(1, 2, 1));
        QPainter painter(&frame);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(area.width() / 2.0, area.height() / 2.0);
        painter.setPen(Qt::white);
        for (int i = 0; i < 60; ++i) {
            painter.drawLine(QPointF(0, -radius), QPointF(0, -radius * (i % 5 ? 0.96 : 0.9)));
            painter.rotate(6);
        }
        painter.setPen(Qt::NoPen);
        const double angles[] = {(now.hour() + now.minute() / 60.0) * 30, now.minute() * 6.0,
                                 now.second() * 6.0};
        const double lengths[] = {0.45, 0.65, 0.85};
        for (int i = 0; i < 3; ++i) {
            painter.save();
            painter.rotate(angles[i]);
            painter.setBrush(i == 2 ? Qt::red : Qt::white);
            painter.drawRect(
                QRectF(-radius / 27, -radius * lengths[i], radius / 13.5, radius * lengths[i]));
            painter.restore();
        }
        painter.end();
        return std::as_const(frame);
    });
}

void KeyColourFill(benchmark::State &state)
{
    QImage image(Area(state), QImage::Format_ARGB32);
    for (auto _ : state) {
        image.fill(QColor(1, 2, 1));
        benchmark::DoNotOptimize(image.constBits());
        benchmark::ClobberMemory();
    }
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

BENCHMARK(KeyColourFill)->Apply(Sizes);
BENCHMARK(FrameCopy)->Apply(Sizes);
BENCHMARK(DigitalSecond)->Apply(Sizes);
BENCHMARK(DigitalUnchanged)->Apply(Sizes);
BENCHMARK(DigitalFull)->Apply(Sizes);
BENCHMARK(PlainDigitalSecond)->Apply(Sizes);
BENCHMARK(QtTextSecond)->Apply(Sizes);
BENCHMARK(AnalogSecond)->Apply(Sizes);
BENCHMARK(PlainAnalogSecond)->Apply(Sizes);
BENCHMARK(QtDialSecond)->Apply(Sizes);
BENCHMARK(PictureSecond)->Apply(Sizes);
BENCHMARK(PlainPictureSecond)->Apply(Sizes);
