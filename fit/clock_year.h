// fit/: enumerates all states of one clock in a year: every combination of texts and positions,
// leaving out the digits of the time; records the worst of them.
#pragma once

#include "clock_scene.h"
#include "dial_ink.h"
#include "time_digits.h"

namespace ClockFit {

class ClockYear
{
public:
    ClockYear(Lw::HNodeClock::HClockNode &node, const Lw::HNodeClock::GlyphSource &source,
              const Year &year);

    struct State
    {
        const Stretch &stretch;
        const HourClass &hours; ///< the hours of the stretch that this state covers
        std::size_t hourClass;  ///< index of `hours`
        qint64 utc;             ///< the first instant of the state, UTC milliseconds
        bool isMorning;         ///< whether the badge shows AM
        const std::vector<PlacedPart> &texts;
    };

    /// Calls visit(state) for every state in order of stretches. The time's digits are those at
    /// state.utc.
    template<typename Visit>
    void ForEachState(Visit visit)
    {
        for (const Stretch &stretch : m_stretches) {
            for (std::size_t i = 0; i < m_classes.size(); ++i) {
                const int second = FirstSecondOf(m_classes[i], stretch);
                if (second < 0)
                    continue;
                const qint64 utc = stretch.At(second);
                const std::vector<PlacedPart> texts = m_scene.TextsAt(utc);
                visit(State {stretch, m_classes[i], i, utc, m_isMorning[i], texts});
            }
        }
    }

    ClockScene &Scene() { return m_scene; }
    const DialInk &Dial() const { return m_dial; }

private:
    void GroupHours(Lw::HNodeClock::HClockNode &node);
    /// The first second of the stretch that is in the hours of the class; -1 for none.
    static int FirstSecondOf(const HourClass &hours, const Stretch &stretch);

    ClockScene m_scene;
    DialInk m_dial;
    QVector<Stretch> m_stretches;
    std::vector<HourClass> m_classes;
    std::vector<bool> m_isMorning;
};

/// The first and the worst instant of a value that varies over a year.
struct WorstCase
{
    int max = 0; ///< 0 until a value above 0 is recorded
    qint64 firstUtc = 0;
    qint64 worstUtc = 0;

    /// Ignores values of 0 or less. Instants may come in any order.
    void Record(int value, qint64 utc) { Record(value, utc, utc); }
    /// Records a value reached at `worst`, and the instant `first` of the first value above 0.
    void Record(int value, qint64 first, qint64 worst)
    {
        if (value <= 0)
            return;
        if (max == 0 || first < firstUtc)
            firstUtc = first;
        if (value > max || (value == max && worst < worstUtc))
            worstUtc = worst;
        max = qMax(max, value);
    }
    /// Whether no value up to `value` at `utc` or later can change the result.
    bool Covers(int value, qint64 utc) const { return max >= value && worstUtc < utc; }
};

/// Adds the times of a state to a worst case: the largest measure within its hours and stretch,
/// when it is first reached, and when the measure is first above 0.
void RecordTimes(WorstCase &found, const ClockYear::State &state, const TimeMeasure &measure);

} // namespace ClockFit
