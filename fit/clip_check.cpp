// fit/: checks which texts lose ink at the edges of their own images.
#include "clock_checks.h"

#include "display/analog_geometry.h"

#include <algorithm>
#include <map>
#include <utility>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

// The largest loss of a piece of an element.
struct Loss
{
    int pixels = 0;
    Side side = Side::Left;
    QString text;
};

class ClipCheck
{
public:
    ClipCheck(ClockYear &clock, HClockNode &node, GlyphImages &images)
        : m_clock(clock), m_node(node), m_images(images)
    { }

    QVector<Clipped> Run()
    {
        m_clock.ForEachState([this](const ClockYear::State &state) {
            for (const PlacedPart &text : state.texts) {
                if (text.part == Part::Time)
                    RecordTimes(m_found[Part::Time], state, MeasureOf(state));
                else
                    m_found[text.part].Record(LossOf(*text.element).pixels, state.utc);
            }
            RecordDial(state);
        });
        QVector<Clipped> all;
        for (const auto &[part, worst] : m_found) {
            if (worst.max > 0)
                all.append(ClippedAt(part, worst));
        }
        return all;
    }

private:
    Clipped ClippedAt(Part part, const WorstCase &worst)
    {
        const Loss first = LossAt(part, worst.firstUtc);
        const Loss most = LossAt(part, worst.worstUtc);
        return {
            part, most.side, worst.max, {worst.firstUtc, first.text}, {worst.worstUtc, most.text}};
    }

    Loss LossAt(Part part, qint64 utc)
    {
        if (part == Part::Numerals || part == Part::Badge)
            return m_dial[{part, m_clock.Scene().IsMorningAt(utc)}];
        const Element *const element = m_clock.Scene().TextAt(utc, part);
        return element ? LossOf(*element) : Loss();
    }

    Loss LossOf(const Element &element, const QVector<bool> &chosen = {})
    {
        Loss most;
        for (int i = 0; i < element.Count(); ++i) {
            const Piece &piece = element.At(i);
            const QRect shown(piece.sourceX, 0,
                              std::min<int>(piece.width, element.Width() - piece.x),
                              element.Height());
            if (chosen.isEmpty() || chosen[i])
                Take(most, piece, shown);
        }
        // Lost pieces are the last ones: of a time, those of its seconds.
        for (int i = 0; i < element.LostCount() && (chosen.isEmpty() || chosen.back()); ++i) {
            const Piece &piece = element.Lost(i);
            Take(most, piece, QRect(piece.sourceX, 0, 0, element.Height()));
        }
        return most;
    }

    void Take(Loss &most, const Piece &piece, const QRect &shown)
    {
        const QRect ink = m_images.WholeInk(piece);
        if (ink.isEmpty())
            return;
        const std::pair<Side, int> sides[] = {{Side::Left, shown.left() - ink.left()},
                                              {Side::Top, shown.top() - ink.top()},
                                              {Side::Right, ink.right() - shown.right()},
                                              {Side::Bottom, ink.bottom() - shown.bottom()}};
        for (const auto &[side, pixels] : sides) {
            if (pixels > most.pixels)
                most = {pixels, side, m_images.TextOf(piece)};
        }
    }

    const TimeMeasure &MeasureOf(const ClockYear::State &state)
    {
        const auto known = m_measures.find(state.hourClass);
        if (known != m_measures.end())
            return known->second;
        const auto loss = [this](const Element &time, const QVector<bool> &chosen) {
            return LossOf(time, chosen).pixels;
        };
        return m_measures.emplace(state.hourClass, Measure(state.hours, TimeMeasure::Largest, loss))
            .first->second;
    }

    // Numerals and badge are the same all year.
    void RecordDial(const ClockYear::State &state)
    {
        for (const Part part : {Part::Numerals, Part::Badge}) {
            const auto key = std::make_pair(part, state.isMorning);
            if (m_dial.count(key) == 0)
                m_dial[key] = part == Part::Badge ? LossOfBadge(state.isMorning) : LossOfNumerals();
            m_found[part].Record(m_dial[key].pixels, state.utc);
        }
    }

    Loss LossOfBadge(bool isMorning)
    {
        const DialInk &dial = m_clock.Dial();
        const GlyphStrip &badge = isMorning ? dial.morningBadge : dial.afternoonBadge;
        return LossOf(Element(badge));
    }

    Loss LossOfNumerals()
    {
        const GlyphStrip &digits = m_clock.Dial().digits;
        if (digits.IsNull())
            return {};
        const DigitCells cells(digits.Size());
        const int scale = m_node.GetAttributeToInt(Key(Attribute::HourScaleType));
        Loss most;
        for (const Numeral &numeral : Numerals(scale, DialRadius(m_node.Size()), cells)) {
            Element element(2LL * cells.width, cells.height);
            if (numeral.number >= 10)
                element.AddCell(digits, cells.width, 1);
            element.AddCell(digits, cells.width, numeral.number % 10);
            const Loss loss = LossOf(element);
            most = loss.pixels > most.pixels ? loss : most;
        }
        return most;
    }

    ClockYear &m_clock;
    HClockNode &m_node;
    GlyphImages &m_images;
    std::map<Part, WorstCase> m_found;
    std::map<std::size_t, TimeMeasure> m_measures;
    std::map<std::pair<Part, bool>, Loss> m_dial;
};

} // namespace

QVector<Clipped> ClippedOf(ClockYear &clock, HClockNode &node, GlyphImages &images)
{
    return ClipCheck(clock, node, images).Run();
}

} // namespace ClockFit
