#include "time_digits.h"

#include "calendar/time_units.h"

#include <algorithm>
#include <numeric>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr int kHours = 24;
// Shown as two equal non-zero digits, so every digit piece differs from that of 00.
constexpr int kOtherDigits = 11;

QVector<bool> Differing(const Element &one, const Element &other)
{
    QVector<bool> differs;
    for (int i = 0; i < one.Count(); ++i)
        differs.append(i >= other.Count() || one.At(i) != other.At(i));
    return differs;
}

HourClass &ClassOf(std::vector<HourClass> &classes, const Element &time)
{
    const auto same = [&time](const HourClass &hours) {
        return hours.hourTimes.front().Size() == time.Size();
    };
    const auto known = std::find_if(classes.begin(), classes.end(), same);
    if (known != classes.end())
        return *known;
    classes.emplace_back();
    return classes.back();
}

void TakeApart(HourClass &hours, ClockScene &scene, qint64 midnight)
{
    const auto timeAt = [&](int minute, int second) {
        const int inDay =
            hours.hours.front() * kSecondsPerHour + minute * kSecondsPerMinute + second;
        return scene.TimeAt(midnight + inDay * kMillisecondsPerSecond);
    };
    for (int number = 0; number < kSecondsPerMinute; ++number) {
        hours.minuteTimes.push_back(timeAt(number, 0));
        hours.secondTimes.push_back(timeAt(0, number));
    }
    const Element &full = hours.hourTimes.front();
    hours.ofMinute = Differing(full, hours.minuteTimes[kOtherDigits]);
    hours.ofSecond = Differing(full, hours.secondTimes[kOtherDigits]);
    for (int i = 0; i < full.Count(); ++i)
        hours.ofHour.append(!hours.ofMinute[i] && !hours.ofSecond[i]);
}

} // namespace

std::vector<HourClass> HourClassesOf(ClockScene &scene, qint64 midnight)
{
    std::vector<HourClass> classes;
    for (int hour = 0; hour < kHours; ++hour) {
        const Element &time =
            scene.TimeAt(midnight + hour * kSecondsPerHour * kMillisecondsPerSecond);
        HourClass &hours = ClassOf(classes, time);
        hours.hours.push_back(hour);
        hours.hourTimes.push_back(time);
    }
    for (HourClass &hours : classes)
        TakeApart(hours, scene, midnight);
    return classes;
}

int TimeMeasure::Max() const
{
    const auto max = [](const std::vector<int> &numbers) {
        return *std::max_element(numbers.begin(), numbers.end());
    };
    return kind == Sum ? max(hours) + max(minutes) + max(seconds)
                       : std::max({max(hours), max(minutes), max(seconds)});
}

int TimeMeasure::At(std::size_t hour, int minute, int second) const
{
    const int ofHour = hours[hour];
    const int ofMinute = minutes[static_cast<std::size_t>(minute)];
    const int ofSecond = seconds[static_cast<std::size_t>(second)];
    return kind == Sum ? ofHour + ofMinute + ofSecond : std::max({ofHour, ofMinute, ofSecond});
}

TimeMeasure Measure(const HourClass &hours, TimeMeasure::Kind kind,
                    const std::function<int(const Element &, const QVector<bool> &)> &measure)
{
    TimeMeasure all;
    all.kind = kind;
    for (const Element &time : hours.hourTimes)
        all.hours.push_back(measure(time, hours.ofHour));
    for (const Element &time : hours.minuteTimes)
        all.minutes.push_back(measure(time, hours.ofMinute));
    for (const Element &time : hours.secondTimes)
        all.seconds.push_back(measure(time, hours.ofSecond));
    return all;
}

namespace {

// Calls look(second of the day, its measure) for each second in order until it returns true.
template<typename Look>
void ForEachSecond(const HourClass &hours, const TimeMeasure &measure, int from, int end, Look look)
{
    for (std::size_t i = 0; i < hours.hours.size(); ++i) {
        const int begin = hours.hours[i] * kSecondsPerHour;
        const int last = std::min(end, begin + kSecondsPerHour);
        for (int second = std::max(from, begin); second < last; ++second) {
            const int inHour = second - begin;
            if (look(second, measure.At(i, inHour / kSecondsPerMinute, inHour % kSecondsPerMinute)))
                return;
        }
    }
}

} // namespace

int FirstSecond(const HourClass &hours, const TimeMeasure &measure, int least, int from, int end)
{
    int first = -1;
    ForEachSecond(hours, measure, from, end, [&](int second, int value) {
        first = value >= least ? second : -1;
        return first >= 0;
    });
    return first;
}

int MaxWithin(const HourClass &hours, const TimeMeasure &measure, int from, int end)
{
    int max = 0;
    ForEachSecond(hours, measure, from, end, [&](int, int value) {
        max = std::max(max, value);
        return false;
    });
    return max;
}

} // namespace ClockFit
