// One clock through a year: every state in which its texts are somewhere else or say something
// else, without the digits of the time.
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
        const HourClass &hours; ///< the seconds of the stretch that count are in these
        std::size_t hourClass;  ///< its number
        qint64 utc;             ///< the first such instant
        bool isMorning;         ///< for the badge
        const std::vector<PlacedPart> &texts;
    };

    /// Calls visit(state), stretch by stretch. Digits of the time are those of the first instant.
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
    /// Of the stretch, in the hours of the class; -1 for none.
    static int FirstSecondOf(const HourClass &hours, const Stretch &stretch);

    ClockScene m_scene;
    DialInk m_dial;
    QVector<Stretch> m_stretches;
    std::vector<HourClass> m_classes;
    std::vector<bool> m_isMorning;
};

} // namespace ClockFit
