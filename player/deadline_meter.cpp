#include "deadline_meter.h"

#include "calendar/time_units.h"
#include "instant.h"

#include <algorithm>
#include <cmath>

namespace ClockPlayer {

using namespace ClockStage;

namespace {

using Lw::HNodeClock::kMillisecondsPerSecond;

// If the system clock and the monotonic one differ by more than this (milliseconds) between two
// frames, it counts as stepped.
constexpr double kStep = 250;

QString Line(const QString &name, const Spread &spread)
{
    if (spread.IsEmpty())
        return QStringLiteral("%1 ms: none").arg(name);
    const auto text = [](double number) { return QString::number(number, 'f', 2); };
    return QStringLiteral("%1 ms: minimum %2, median %3, 99th percentile %4, maximum %5")
        .arg(name, text(spread.Minimum()), text(spread.Median()), text(spread.Percentile(99)),
             text(spread.Maximum()));
}

} // namespace

void Spread::Add(double number)
{
    m_minimum = IsEmpty() ? number : std::min(m_minimum, number);
    m_maximum = IsEmpty() ? number : std::max(m_maximum, number);
    if (m_kept.size() < kKept) {
        m_kept.append(number);
        return;
    }
    m_kept[m_oldest] = number;
    m_oldest = (m_oldest + 1) % kKept;
}

double Spread::Percentile(int percent) const
{
    if (IsEmpty())
        return 0;
    QVector<double> sorted = m_kept;
    const int rank = static_cast<int>(std::ceil(sorted.size() * qBound(0, percent, 100) / 100.0));
    const auto place = sorted.begin() + std::max(rank, 1) - 1;
    std::nth_element(sorted.begin(), place, sorted.end());
    return *place;
}

void DeadlineMeter::AddDrawn(double milliseconds)
{
    ++m_frames;
    m_drawing.Add(milliseconds);
}

void DeadlineMeter::AddPresented(const PresentedFrame &frame)
{
    AddDrawn(frame.drawing);
    const std::optional<PresentedFrame> last = m_last;
    const bool follows = last && FollowsOn(frame);
    m_last = frame;
    if (!last)
        return;
    if (!follows) {
        ++m_clockSteps;
        return;
    }
    const qint64 second = WholeSecond(frame.instant);
    const qint64 passed = (second - WholeSecond(last->instant)) / kMillisecondsPerSecond;
    if (passed < 1) {
        ++m_repeatedPresentations;
        return;
    }
    m_missedSeconds += passed - 1;
    const double sinceSecond = double(frame.instant - second) / frame.speed;
    m_lateness.Add(sinceSecond + frame.presented - frame.begun);
}

bool DeadlineMeter::FollowsOn(const PresentedFrame &frame) const
{
    const double expected = (frame.begun - m_last->begun) * frame.speed;
    return std::abs(double(frame.instant - m_last->instant) - expected) < kStep * frame.speed;
}

QStringList DeadlineMeter::Report() const
{
    return {
        QStringLiteral("frames: %1, missed seconds: %2, clock steps: %3, second presentations: %4")
            .arg(m_frames)
            .arg(m_missedSeconds)
            .arg(m_clockSteps)
            .arg(m_repeatedPresentations),
        Line(QStringLiteral("drawing"), m_drawing), Line(QStringLiteral("lateness"), m_lateness)};
}

} // namespace ClockPlayer
