#include "clock_year.h"

#include "clock_parts.h"

#include "calendar/time_units.h"

#include <algorithm>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr int kHours = 24;

} // namespace

ClockYear::ClockYear(HClockNode &node, const GlyphSource &source, const Year &year)
    : m_scene(node, source), m_dial(DialInkOf(node, source)), m_stretches(StretchesOf(node, year))
{
    GroupHours(node);
}

// Only the time of a digital clock and the badge of an analog one depend on the hour.
void ClockYear::GroupHours(HClockNode &node)
{
    const qint64 midnight = MidnightOf(m_stretches);
    if (node.ClockType() == DigitalClock && node.Digital_Time_d() != 0) {
        m_classes = HourClassesOf(m_scene, midnight);
        m_isMorning.assign(m_classes.size(), true);
        return;
    }
    const bool hasBadge =
        node.ClockType() == AnalogClock && NumberOf(node, Attribute::Analog_AMPM_d) == 1;
    m_classes.resize(hasBadge ? 2 : 1);
    m_isMorning = {true};
    if (hasBadge)
        m_isMorning.push_back(false);
    for (int hour = 0; hour < kHours; ++hour) {
        const bool isMorning =
            m_scene.IsMorningAt(midnight + hour * kSecondsPerHour * kMillisecondsPerSecond);
        m_classes[hasBadge && !isMorning ? 1 : 0].hours.push_back(hour);
    }
}

int ClockYear::FirstSecondOf(const HourClass &hours, const Stretch &stretch)
{
    for (const int hour : hours.hours) {
        const int second = std::max(stretch.firstSecond, hour * kSecondsPerHour);
        if (second < std::min(stretch.EndSecond(), (hour + 1) * kSecondsPerHour))
            return second;
    }
    return -1;
}

void RecordTimes(WorstCase &found, const ClockYear::State &state, const TimeMeasure &measure)
{
    if (measure.Max() <= 0 || found.Covers(measure.Max(), state.stretch.begin))
        return;
    const int from = state.stretch.firstSecond;
    const int end = state.stretch.EndSecond();
    const int max = MaxWithin(state.hours, measure, from, end);
    if (max > 0)
        found.Record(max, state.stretch.At(FirstSecond(state.hours, measure, 1, from, end)),
                     state.stretch.At(FirstSecond(state.hours, measure, max, from, end)));
}

} // namespace ClockFit
