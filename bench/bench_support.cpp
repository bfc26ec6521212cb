#include "bench_support.h"

#include "calendar/device_clock.h"
#include "glyph/draw_source_image.h"

#include <QDateTime>

#include <algorithm>

using Lw::HNodeClock::Attribute;
using Lw::HNodeClock::HClockNode;
using Lw::HNodeClock::Key;

namespace bench {

namespace {

constexpr long long kStart = 1709632800000LL; // 2024-03-05 10:00:00 UTC
constexpr long long kSecondsStepped = 3600;

long long g_second = 0;

long long SteppedNow()
{
    return kStart + g_second * 1000;
}

long long LeanNow()
{
    benchmark::DoNotOptimize(QDateTime::currentMSecsSinceEpoch());
    return SteppedNow();
}

long long PlainNow()
{
    benchmark::DoNotOptimize(QDateTime::currentDateTime().toUTC());
    return SteppedNow();
}

constexpr Attribute kFonts[] = {
    Attribute::AnalogAMPMFName,  Attribute::AnalogTopTextFName, Attribute::AnalogDateFName,
    Attribute::AnalogWeekFName,  Attribute::HourScaleFName,     Attribute::DigitalTopTextFName,
    Attribute::DigitalDateFName, Attribute::DigitalTimeFName,   Attribute::DigitalWeekFName,
};

constexpr Attribute kSizes[] = {
    Attribute::AnalogAMPMFSize,  Attribute::AnalogTopTextFSize, Attribute::AnalogDateFSize,
    Attribute::AnalogWeekFSize,  Attribute::HourScaleFSize,     Attribute::DigitalTopTextFSize,
    Attribute::DigitalDateFSize, Attribute::DigitalTimeFSize,   Attribute::DigitalWeekFSize,
};

} // namespace

std::unique_ptr<HClockNode> NewNode(int clockType, QSize size, int points)
{
    auto node = std::make_unique<HClockNode>();
    node->InitData();
    node->SetSize(size);
    node->SetAttribute(Key(Attribute::ClockType), clockType, false);
    for (const Attribute font : kFonts)
        node->SetAttribute(Key(font), QStringLiteral("DejaVu Sans"), false);
    // Four rows fit the height: a point is 4/3 pixels, and a line is 1.2 times the font size.
    if (points == 0)
        points = std::max(6, std::min(size.height() / 8, size.width() / 12));
    for (const Attribute fontSize : kSizes)
        node->SetAttribute(Key(fontSize), points, false);
    return node;
}

void MakeGlyphs(HClockNode *node)
{
    Lw::HNodeClock::DrwSourceIMage().DrawClockSourceImage(node);
}

SteppedTime::SteppedTime(ClockRead clockRead)
{
    g_second = 0;
    clock_set_time_source(clockRead == ClockRead::Lean ? &LeanNow : &PlainNow);
}

SteppedTime::~SteppedTime()
{
    clock_set_time_source(nullptr);
}

void SteppedTime::Step()
{
    g_second = (g_second + 1) % kSecondsStepped;
}

CountsPerIteration::CountsPerIteration(benchmark::State &state, QSize frame)
    : m_state(state), m_before(CountsNow())
{
    if (!frame.isEmpty())
        SetFrameBytes(4LL * frame.width() * frame.height());
}

CountsPerIteration::~CountsPerIteration()
{
    const ProcessCounts now = CountsNow();
    const auto put = [this](const char *name, auto count) {
        m_state.counters[name] =
            benchmark::Counter(static_cast<double>(count), benchmark::Counter::kAvgIterations);
    };
    put("allocations", now.allocations - m_before.allocations);
    put("allocated_bytes", now.bytes - m_before.bytes);
    put("frame_sized", now.frameSized - m_before.frameSized);
    put("files_opened", now.filesOpened - m_before.filesOpened);
    put("user_us", now.userMicroseconds - m_before.userMicroseconds);
}

} // namespace bench
