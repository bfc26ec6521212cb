// All times of a day that a digital clock can show, taken apart: an hour, a minute and a second are
// drawn by pieces of their own, so that 24 hours, 60 minutes and 60 seconds stand for all 86,400.
#pragma once

#include "clock_scene.h"

#include <functional>
#include <vector>

namespace ClockFit {

/// Hours whose times are equally wide, so that everything is at the same place in all of them.
struct HourClass
{
    std::vector<int> hours;
    // Which pieces of a time show what; labels and separators count to the hour.
    QVector<bool> ofHour;
    QVector<bool> ofMinute;
    QVector<bool> ofSecond;
    std::vector<Lw::HNodeClock::Element> hourTimes;   ///< of each hour: h:00:00
    std::vector<Lw::HNodeClock::Element> minuteTimes; ///< of the first hour: 0 to 59
    std::vector<Lw::HNodeClock::Element> secondTimes; ///< likewise
};

/// The classes of a digital clock that shows the time. The instant is one from which on the clock
/// shows a whole day without a change of its offset, from midnight.
std::vector<HourClass> HourClassesOf(ClockScene &scene, qint64 midnight);

/// Some number for every time of a day, made of one number for each hour of a class, each minute
/// and each second: their sum, or the largest of them.
struct TimeMeasure
{
    enum Kind { Sum, Largest };

    Kind kind = Largest;
    std::vector<int> hours; ///< in the order of the class
    std::vector<int> minutes;
    std::vector<int> seconds;

    /// No time has a larger one.
    int Most() const;
    int At(std::size_t hour, int minute, int second) const;
};

/// Measures a class by a function of an element and of its pieces that count.
TimeMeasure
Measure(const HourClass &hours, TimeMeasure::Kind kind,
        const std::function<int(const Lw::HNodeClock::Element &, const QVector<bool> &)> &measure);

/// The first second of the day, from one to before another, at which a measure is at least this
/// much; -1 where it never is.
int FirstSecond(const HourClass &hours, const TimeMeasure &measure, int least, int from, int end);
/// The most within these seconds; 0 or less where nothing is above 0.
int MostWithin(const HourClass &hours, const TimeMeasure &measure, int from, int end);

} // namespace ClockFit
