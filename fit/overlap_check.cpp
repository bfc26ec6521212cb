// fit/: checks which parts of a clock are drawn over other parts.
#include "clock_checks.h"

#include <algorithm>
#include <map>
#include <utility>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

// A text other than the time, at its position, with the bounds of its ink.
struct PlacedText
{
    Part part;
    const Element *element;
    QPoint topLeft;
    QRect ink;

    InkMask Mask() const { return InkMask(*element, topLeft); }
};

class OverlapCheck
{
public:
    explicit OverlapCheck(ClockYear &clock) : m_clock(clock)
    {
        for (const bool isMorning : {false, true})
            m_under[isMorning] = clock.Dial().Under(isMorning);
    }

    QVector<Overlap> Run()
    {
        m_clock.ForEachState([this](const ClockYear::State &state) { CheckState(state); });
        QVector<Overlap> overlaps;
        for (const auto &[parts, worst] : m_found) {
            if (worst.max > 0)
                overlaps.append({parts.first,
                                 parts.second,
                                 worst.max,
                                 {worst.firstUtc, {}},
                                 {worst.worstUtc, {}}});
        }
        return overlaps;
    }

private:
    using Parts = std::pair<Part, Part>; // the lower one first

    void CheckState(const ClockYear::State &state)
    {
        CheckDial(state);
        std::vector<PlacedText> lower;
        for (const PlacedPart &text : state.texts) {
            if (text.part == Part::Time) {
                CheckTime(state, text, lower);
                continue;
            }
            const PlacedText placed = {text.part, text.element, text.topLeft,
                                       m_bounds.Of(*text.element).translated(text.topLeft)};
            CheckTextOverDial(state, placed);
            for (const PlacedText &other : lower)
                CheckPair(state, other, placed);
            lower.push_back(placed);
        }
    }

    // The badge over the marks and numerals, and the numerals over each other.
    void CheckDial(const ClockYear::State &state)
    {
        const DialInk &dial = m_clock.Dial();
        Found(Part::Numerals, Part::Numerals).Record(dial.coveredNumerals, state.utc);
        if (!m_isBadgeChecked[state.isMorning])
            RecordOverDial(state, Part::Badge, state.isMorning ? dial.morning : dial.afternoon);
        m_isBadgeChecked[state.isMorning] = true;
    }

    void CheckTextOverDial(const ClockYear::State &state, const PlacedText &text)
    {
        const InkMask &under = m_under[state.isMorning];
        if (!under.HasInkIn(text.ink))
            return;
        const InkMask mask = text.Mask();
        if (mask.Common(under) == 0)
            return;
        const DialInk &dial = m_clock.Dial();
        RecordOverDial(state, text.part, mask);
        Found(Part::Badge, text.part)
            .Record(mask.Common(state.isMorning ? dial.morning : dial.afternoon), state.utc);
    }

    void RecordOverDial(const ClockYear::State &state, Part upper, const InkMask &mask)
    {
        const DialInk &dial = m_clock.Dial();
        Found(Part::HourMarks, upper).Record(mask.Common(dial.hourMarks), state.utc);
        Found(Part::MinuteMarks, upper).Record(mask.Common(dial.minuteMarks), state.utc);
        Found(Part::Numerals, upper).Record(mask.Common(dial.numerals), state.utc);
    }

    void CheckPair(const ClockYear::State &state, const PlacedText &lower, const PlacedText &upper)
    {
        if (lower.ink.intersects(upper.ink))
            Found(lower.part, upper.part).Record(lower.Mask().Common(upper.Mask()), state.utc);
    }

    // Texts in `lower` are drawn before the time, the others after it: the lunar date, and on one
    // line date and week too.
    void CheckTime(const ClockYear::State &state, const PlacedPart &time,
                   const std::vector<PlacedText> &lower)
    {
        const QRect box = BoxOf(state).translated(time.topLeft);
        for (const PlacedPart &text : state.texts) {
            if (text.part == Part::Time)
                continue;
            const PlacedText other = {text.part, text.element, text.topLeft,
                                      m_bounds.Of(*text.element).translated(text.topLeft)};
            if (!other.ink.intersects(box))
                continue;
            const bool isBelow =
                std::any_of(lower.cbegin(), lower.cend(),
                            [&](const PlacedText &one) { return one.part == text.part; });
            RecordOverlaps(isBelow ? Found(text.part, Part::Time) : Found(Part::Time, text.part),
                           state, time.topLeft, other.Mask());
        }
    }

    void RecordOverlaps(WorstCase &found, const ClockYear::State &state, const QPoint &topLeft,
                        const InkMask &other)
    {
        const TimeMeasure common = Measure(state.hours, TimeMeasure::Sum,
                                           [&](const Element &time, const QVector<bool> &chosen) {
                                               return InkMask(time, topLeft, chosen).Common(other);
                                           });
        RecordTimes(found, state, common);
    }

    // The bounds of the ink of all times in an hour class.
    const QRect &BoxOf(const ClockYear::State &state)
    {
        QRect &box = m_boxes[state.hourClass];
        if (!box.isNull())
            return box;
        for (const auto *times :
             {&state.hours.hourTimes, &state.hours.minuteTimes, &state.hours.secondTimes}) {
            for (const Element &time : *times)
                box |= m_bounds.Of(time);
        }
        return box;
    }

    WorstCase &Found(Part lower, Part upper) { return m_found[{lower, upper}]; }

    ClockYear &m_clock;
    InkBounds m_bounds;
    std::map<bool, InkMask> m_under; ///< ink of the dial below the texts, by half of the day
    std::map<bool, bool> m_isBadgeChecked;
    std::map<std::size_t, QRect> m_boxes;
    std::map<Parts, WorstCase> m_found;
};

} // namespace

QVector<Overlap> OverlapsOf(ClockYear &clock)
{
    return OverlapCheck(clock).Run();
}

} // namespace ClockFit
