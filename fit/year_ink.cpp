#include "year_ink.h"

#include "clock_parts.h"

#include "compose/picture_file.h"
#include "display/analog_geometry.h"
#include "display/style_pictures.h"
#include "image_bounds.h"

#include <QPainter>

#include <algorithm>
#include <limits>

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

const QColor kInk(Qt::white);

class YearInk
{
public:
    YearInk(ClockYear &clock, const QPoint &topLeft) : m_clock(clock), m_topLeft(topLeft) { }

    std::vector<PartInk> Run()
    {
        m_clock.ForEachState([this](const ClockYear::State &state) {
            for (const PlacedPart &text : state.texts)
                TakeText(state, text);
        });
        const DialInk &dial = m_clock.Dial();
        InkMask badge = dial.morning;
        badge.Unite(dial.afternoon);
        AddStill(Part::HourMarks, dial.hourMarks);
        AddStill(Part::MinuteMarks, dial.minuteMarks);
        AddStill(Part::Numerals, dial.numerals);
        AddStill(Part::Badge, badge);
        return m_parts;
    }

    void AddStill(Part part, InkMask ink)
    {
        if (ink.Count() == 0)
            return;
        ink.MoveBy(m_topLeft);
        m_parts.push_back({part, ink, {}});
    }

    std::vector<PartInk> m_parts;

private:
    PartInk &Of(Part part)
    {
        const auto known = std::find_if(m_parts.begin(), m_parts.end(),
                                        [part](const PartInk &one) { return one.part == part; });
        if (known != m_parts.end())
            return *known;
        m_parts.push_back({part, {}, {}});
        return m_parts.back();
    }

    void TakeText(const ClockYear::State &state, const PlacedPart &text)
    {
        PartInk &part = Of(text.part);
        const QPoint topLeft = m_topLeft + text.topLeft;
        const InkMask ink = text.part == Part::Time ? AllTimes(state.hours, topLeft)
                                                    : InkMask(*text.element, topLeft);
        part.year.Unite(ink);
        if (part.days.empty() || part.days.back().begin != state.stretch.begin)
            part.days.push_back({state.stretch.begin, state.stretch.end, {}});
        part.days.back().mask.Unite(ink);
    }

    static InkMask AllTimes(const HourClass &hours, const QPoint &topLeft)
    {
        InkMask all;
        for (const auto *times : {&hours.hourTimes, &hours.minuteTimes, &hours.secondTimes}) {
            for (const Element &time : *times)
                all.Unite(InkMask(time, topLeft));
        }
        return all;
    }

    ClockYear &m_clock;
    const QPoint m_topLeft;
};

// The disc that the hands sweep over, up to the longest hand's tip.
InkMask HandsDisc(HClockNode &node)
{
    double reach = 0;
    const double radius = HandRadius(node.Size());
    for (const auto &[hand, type] : {std::make_pair(Hand::Hour, Attribute::HourRectType),
                                     std::make_pair(Hand::Minute, Attribute::MinuteRectType),
                                     std::make_pair(Hand::Second, Attribute::SecondRectType)}) {
        const HandShape shape = ShapeOf(hand, NumberOf(node, type), radius);
        for (const QPointF &point : shape.outline)
            reach = std::max(reach, -point.y());
    }
    QImage disc(node.Size(), QImage::Format_ARGB32_Premultiplied);
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    painter.setBrush(kInk);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(Centre(node.Size())), reach, reach);
    painter.end();
    return InkMask(disc, QPoint(0, 0), kInk.rgba());
}

// The dial; its hands stay within it.
InkMask PictureInk(HClockNode &node)
{
    const int style = NumberOf(node, Attribute::PictrueClockType);
    const QImage dial = ReadImageFile(StyleFolder() + DialPicture(style));
    const QSize size = node.Size();
    const int side = std::min(size.width(), size.height());
    const QPoint corner((size.width() - side) / 2, (size.height() - side) / 2);
    if (dial.isNull() || side <= 0)
        return {};
    return InkMask::OfPicture(
        dial.scaled(side, side, Qt::IgnoreAspectRatio, Qt::FastTransformation), corner);
}

} // namespace

std::vector<PartInk> YearInkOf(HClockNode &node, const GlyphSource &source, const Year &year,
                               const QPoint &topLeft)
{
    if (!WithinBounds(node.Size(), kFrameBytes))
        return {};
    ClockYear clock(node, source, year);
    YearInk ink(clock, topLeft);
    if (node.ClockType() == PictureClock) {
        ink.AddStill(Part::HourMarks, PictureInk(node));
        return ink.m_parts;
    }
    if (node.ClockType() == AnalogClock)
        ink.AddStill(Part::SecondHand, HandsDisc(node));
    return ink.Run();
}

CommonInk FirstCommon(const PartInk &one, const PartInk &other, qint64 begin)
{
    if (one.year.Common(other.year) == 0)
        return {};
    const std::vector<DayInk> always = {{begin, std::numeric_limits<qint64>::max(), {}}};
    const std::vector<DayInk> &days = one.days.empty() ? always : one.days;
    const std::vector<DayInk> &otherDays = other.days.empty() ? always : other.days;
    for (std::size_t i = 0, j = 0; i < days.size() && j < otherDays.size();) {
        const InkMask &mask = one.days.empty() ? one.year : days[i].mask;
        const InkMask &otherMask = other.days.empty() ? other.year : otherDays[j].mask;
        const bool areTogether =
            days[i].begin < otherDays[j].end && otherDays[j].begin < days[i].end;
        const int pixels = areTogether ? mask.Common(otherMask) : 0;
        if (pixels > 0)
            return {pixels, std::max(days[i].begin, otherDays[j].begin)};
        ++(days[i].end <= otherDays[j].end ? i : j);
    }
    return {};
}

} // namespace ClockFit
