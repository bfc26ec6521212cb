#include "display/frames/frame_pair.h"

#include "image_bounds.h"

#include "happconfig.h"
#include "key_colour.h"

#include <utility>

namespace Lw::HNodeClock {

QColor FramePair::KeyColour()
{
    return Lw::HAppConfig::IntToColor(kKeyColour);
}

bool FramePair::Drawable(const QSize &size)
{
    return WithinBounds(size, kFrameBytes);
}

QImage FramePair::NewImage(const QSize &size)
{
    if (!Drawable(size))
        return QImage();
    QImage image(size, QImage::Format_ARGB32);
    image.fill(KeyColour());
    return image;
}

QImage &FramePair::TakeNext(const QSize &size)
{
    m_isRedrawn = true;
    std::swap(m_frame, m_spare);
    if (m_frame.isNull() || m_frame.size() != size || !m_frame.isDetached())
        m_frame = NewImage(size);
    return m_frame;
}

void FramePair::Begin()
{
    m_lastIsForgotten = std::exchange(m_forgetLast, false);
    m_isRedrawn = false;
}

FramePair::Difference FramePair::DifferenceFromLast() const
{
    if (m_lastIsForgotten || (m_isRedrawn && m_frame.size() != m_spare.size()))
        return Difference::Everywhere;
    return m_isRedrawn ? Difference::SinceFrameBefore : Difference::None;
}

} // namespace Lw::HNodeClock
