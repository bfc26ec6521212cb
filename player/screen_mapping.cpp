#include "screen_mapping.h"

#include <QTransform>

namespace ClockPlayer {

using namespace ClockStage;

namespace {

// A region of a picture of this size, once the picture is turned clockwise.
QRect TurnedRegion(const QRect &region, QSize size, int degrees)
{
    const int x = region.x();
    const int y = region.y();
    const int right = size.width() - x - region.width(); // what lies beyond the region
    const int below = size.height() - y - region.height();
    switch (degrees) {
    case 90:
        return {QPoint(below, x), region.size().transposed()};
    case 180:
        return {QPoint(right, below), region.size()};
    case 270:
        return {QPoint(y, right), region.size().transposed()};
    default:
        return region;
    }
}

} // namespace

ScreenMapping::ScreenMapping(const Placing &placing)
    : m_placing(placing),
      m_leds(placing.ledPitch ? std::optional(LedScreen(placing.ledPitch)) : std::nullopt)
{ }

QRect ScreenMapping::Turned(const QRect &region) const
{
    return TurnedRegion(region, m_screen, m_placing.turn);
}

QRect ScreenMapping::TurnedBack(const QRect &region) const
{
    const QSize turned = m_placing.turn % 180 ? m_screen.transposed() : m_screen;
    return TurnedRegion(region, turned, (360 - m_placing.turn) % 360);
}

QRect ScreenMapping::WindowRectOf(const QRect &region) const
{
    const QRect turned = Turned(region);
    return (m_leds ? m_leds->Magnified(turned) : turned).translated(m_placing.offset);
}

QRect ScreenMapping::ScreenRectOf(const QRect &part) const
{
    const QRect visible = (part & Whole()).translated(-m_placing.offset);
    if (visible.isEmpty())
        return {};
    return TurnedBack(m_leds ? m_leds->Reduced(visible) : visible);
}

QImage ScreenMapping::Picture(const QImage &screen, const QRect &region) const
{
    if (!m_leds && !m_placing.turn)
        return screen.copy(region);
    if (!m_placing.turn)
        return m_leds->Diodes(screen, region);
    const QImage turned = screen.copy(region).transformed(QTransform().rotate(m_placing.turn));
    return m_leds ? m_leds->Diodes(turned.convertToFormat(QImage::Format_RGB32)) : turned;
}

} // namespace ClockPlayer
