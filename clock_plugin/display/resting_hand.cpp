#include "display/resting_hand.h"

#include <cstring>

namespace Lw::HNodeClock {

bool RestingHand::Lies(const QImage &background, double degrees) const
{
    return m_backgroundKey != 0 && background.cacheKey() == m_backgroundKey && degrees == m_degrees;
}

QRegion RestingHand::TakeUp(QImage &background) const
{
    if (m_backgroundKey == 0 || background.cacheKey() != m_backgroundKey)
        return QRegion();
    const int pixel = background.depth() / 8;
    const auto bytes = static_cast<std::size_t>(m_place.width() * pixel);
    for (int y = 0; y < m_place.height(); ++y)
        std::memcpy(background.scanLine(m_place.top() + y) + m_place.left() * pixel,
                    m_under.constScanLine(y), bytes);
    return m_place;
}

} // namespace Lw::HNodeClock
