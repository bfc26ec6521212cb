// A hand that lies on the background until it moves, such as an hour hand that moves once a minute:
// painted there once, under all other hands, instead of in every frame.
#pragma once

#include <QImage>
#include <QRegion>

namespace Lw::HNodeClock {

class RestingHand
{
public:
    /// Whether the hand lies on this background, turned this far.
    bool Lies(const QImage &background, double degrees) const;

    /// Takes up the hand where it lies on this background and has paint(QImage &) paint it anew,
    /// turned this far, within a box. Returns where the background changed. Where there is no memory
    /// for what lies under the hand it lies nowhere.
    template<typename Paint>
    QRegion Lay(QImage &background, double degrees, const QRect &box, Paint paint)
    {
        QRegion changed = TakeUp(background);
        m_backgroundKey = 0;
        m_place = box & background.rect();
        m_under = m_place.isEmpty() ? QImage() : background.copy(m_place);
        if (m_under.isNull() && !m_place.isEmpty())
            return changed;
        paint(background);
        m_degrees = degrees;
        m_backgroundKey = background.cacheKey();
        return changed += m_place;
    }

private:
    QRegion TakeUp(QImage &background) const;

    qint64 m_backgroundKey = 0; // with the hand on it; 0 where it lies nowhere
    double m_degrees = 0;
    QRect m_place;
    QImage m_under; // the background without the hand, at the place
};

} // namespace Lw::HNodeClock
