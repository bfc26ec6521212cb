// fit/: splits the times of a day into hours, minutes and seconds. A digital clock draws each with
// its own pieces, so 24 hours, 60 minutes and 60 seconds cover all 86,400 times.
#pragma once

#include "clock_scene.h"

#include <functional>
#include <vector>

namespace ClockFit {

/// Hours whose times have the same size, and hence the same positions.
struct HourClass
{
    std::vector<int> hours;
    // Which pieces of a time belong to the hour, minute or second; labels and separators belong to
    // the hour.
    QVector<bool> ofHour;
    QVector<bool> ofMinute;
    QVector<bool> ofSecond;
    std::vector<Lw::HNodeClock::Element> hourTimes;   ///< of each hour: h:00:00
    std::vector<Lw::HNodeClock::Element> minuteTimes; ///< of the first hour: 0 to 59
    std::vector<Lw::HNodeClock::Element> secondTimes; ///< likewise
};

/// The classes of a digital clock that shows the time. `midnight` is the instant of a midnight
/// after which the clock shows a whole day without a change of its offset.
std::vector<HourClass> HourClassesOf(ClockScene &scene, qint64 midnight);

/// A number for every time of a day, composed from one number per hour of a class, per minute and
/// per second: their sum, or the largest of them.
struct TimeMeasure
{
    enum Kind { Sum, Largest };

    Kind kind = Largest;
    std::vector<int> hours; ///< in the order of the class
    std::vector<int> minutes;
    std::vector<int> seconds;

    /// An upper bound over all times.
    int Max() const;
    int At(std::size_t hour, int minute, int second) const;
};

/// Measures a class with a function of an element and a selection of its pieces.
TimeMeasure
Measure(const HourClass &hours, TimeMeasure::Kind kind,
        const std::function<int(const Lw::HNodeClock::Element &, const QVector<bool> &)> &measure);

/// The first second of the day in [from, end) at which the measure is at least `least`; -1 if there
/// is none.
int FirstSecond(const HourClass &hours, const TimeMeasure &measure, int least, int from, int end);
/// The largest measure in [from, end); 0 if none is above 0.
int MaxWithin(const HourClass &hours, const TimeMeasure &measure, int from, int end);

} // namespace ClockFit
