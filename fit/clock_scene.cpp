#include "clock_scene.h"

#include "calendar/device_clock.h"
#include "display/row_placement.h"

namespace ClockFit {

using namespace Lw::HNodeClock;

namespace {

using Composer = ElementComposer;

Part PartOf(Row row)
{
    switch (row) {
    case Row::TopText:
        return Part::TopText;
    case Row::Date:
        return Part::Date;
    case Row::Week:
        return Part::Week;
    case Row::Time:
        return Part::Time;
    case Row::Lunar:
        break;
    }
    return Part::Lunar;
}

// The composer keeps one element for each row.
Part PartOf(const Element *element, Composer &composer)
{
    for (const Row row : kDateFirst) {
        if (&ElementIn(row, composer) == element)
            return PartOf(row);
    }
    return Part::Lunar;
}

} // namespace

ClockScene::ClockScene(HClockNode &node, const GlyphSource &source) : m_node(node)
{
    if (node.ClockType() == DigitalClock)
        m_digital.emplace(node);
    m_composer.SetUp(node, source);
}

std::vector<PlacedPart> ClockScene::TextsAt(qint64 utc)
{
    const HeldInstant held(utc);
    const Composer::FrameScope oneReading(m_composer);
    Placements placements;
    if (m_digital) {
        LayOutDigital(*m_digital, CountRows(m_digital->flags), m_digital->space, m_composer,
                      m_tops);
        placements = PlaceDigital(*m_digital, m_composer, m_tops);
    } else if (m_node.ClockType() == AnalogClock) {
        LayOutAnalog(m_node, m_composer, m_tops);
        placements = PlaceAnalog(m_node, m_composer, m_tops);
    }
    std::vector<PlacedPart> parts;
    for (const Placements::Placed &placed : placements)
        parts.push_back({PartOf(placed.element, m_composer), placed.element, placed.position});
    return parts;
}

const Element *ClockScene::TextAt(qint64 utc, Part part)
{
    for (const PlacedPart &placed : TextsAt(utc)) {
        if (placed.part == part)
            return placed.element;
    }
    return nullptr;
}

const Element &ClockScene::TimeAt(qint64 utc)
{
    const HeldInstant held(utc);
    return m_composer.Time();
}

bool ClockScene::IsMorningAt(qint64 utc)
{
    const HeldInstant held(utc);
    m_composer.UpdateReading();
    return m_composer.ShownHour() < 12;
}

} // namespace ClockFit
