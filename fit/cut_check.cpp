// fit/: checks which parts of a clock are cut off at the edges of its visible area.
#include "clock_checks.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

constexpr std::array<Side, 4> kSides = {Side::Left, Side::Top, Side::Right, Side::Bottom};

// By how many pixels the ink extends beyond a side of the rectangle; 0 or less if it does not.
int Beyond(const QRect &ink, const QRect &visible, Side side)
{
    if (ink.isEmpty())
        return 0;
    switch (side) {
    case Side::Left:
        return visible.left() - ink.left();
    case Side::Top:
        return visible.top() - ink.top();
    case Side::Right:
        return ink.right() - visible.right();
    case Side::Bottom:
        return ink.bottom() - visible.bottom();
    }
    return 0;
}

class CutCheck
{
public:
    CutCheck(ClockYear &clock, const QRect &visible) : m_clock(clock), m_visible(visible) { }

    QVector<Cut> Run()
    {
        m_clock.ForEachState([this](const ClockYear::State &state) {
            for (const PlacedPart &text : state.texts) {
                if (text.part == Part::Time)
                    RecordTime(state, text.topLeft);
                else
                    Record(text.part, Bounds(*text.element, text.topLeft), state.utc);
            }
            Record(Part::Badge, state.isMorning ? m_morning : m_afternoon, state.utc);
            Record(Part::Numerals, m_numerals, state.utc);
            Record(Part::HourMarks, m_hourMarks, state.utc);
            Record(Part::MinuteMarks, m_minuteMarks, state.utc);
        });
        QVector<Cut> cuts;
        for (const auto &[place, worst] : m_found) {
            if (worst.max > 0)
                cuts.append({place.first,
                             place.second,
                             worst.max,
                             IsGone(place.first, worst),
                             {worst.firstUtc, {}},
                             {worst.worstUtc, {}}});
        }
        return cuts;
    }

private:
    QRect Bounds(const Element &element, const QPoint &topLeft)
    {
        return m_bounds.Of(element).translated(topLeft);
    }

    void Record(Part part, const QRect &ink, qint64 utc)
    {
        for (const Side side : kSides) {
            const int pixels = Beyond(ink, m_visible, side);
            if (pixels > 0)
                m_found[{part, side}].Record(pixels, utc);
        }
    }

    const TimeMeasure &MeasureOf(const ClockYear::State &state, const QPoint &topLeft, Side side)
    {
        const auto key = std::make_pair(std::make_pair(state.hourClass, side),
                                        std::make_pair(topLeft.x(), topLeft.y()));
        const auto known = m_measures.find(key);
        if (known != m_measures.end())
            return known->second;
        const auto beyond = [&](const Element &time, const QVector<bool> &chosen) {
            const QRect ink = m_bounds.Of(time, chosen);
            return ink.isEmpty() ? 0 : Beyond(ink.translated(topLeft), m_visible, side);
        };
        return m_measures.emplace(key, Measure(state.hours, TimeMeasure::Largest, beyond))
            .first->second;
    }

    void RecordTime(const ClockYear::State &state, const QPoint &topLeft)
    {
        for (const Side side : kSides) {
            const TimeMeasure &beyond = MeasureOf(state, topLeft, side);
            RecordTimes(m_found[{Part::Time, side}], state, beyond);
        }
    }

    // Whether the part is completely invisible at the worst instant.
    bool IsGone(Part part, const WorstCase &worst)
    {
        for (const PlacedPart &text : m_clock.Scene().TextsAt(worst.worstUtc)) {
            if (text.part == part)
                return !Bounds(*text.element, text.topLeft).intersects(m_visible);
        }
        return false;
    }

    ClockYear &m_clock;
    const QRect m_visible;
    InkBounds m_bounds;
    const QRect m_morning = m_clock.Dial().morning.Bounds();
    const QRect m_afternoon = m_clock.Dial().afternoon.Bounds();
    const QRect m_numerals = m_clock.Dial().numerals.Bounds();
    const QRect m_hourMarks = m_clock.Dial().hourMarks.Bounds();
    const QRect m_minuteMarks = m_clock.Dial().minuteMarks.Bounds();
    std::map<std::pair<Part, Side>, WorstCase> m_found;
    std::map<std::pair<std::pair<std::size_t, Side>, std::pair<int, int>>, TimeMeasure> m_measures;
};

} // namespace

QVector<Cut> CutsOf(ClockYear &clock, const QRect &visible)
{
    return CutCheck(clock, visible).Run();
}

} // namespace ClockFit
