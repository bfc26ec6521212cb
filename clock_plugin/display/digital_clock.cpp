#include "display/digital_clock.h"

#include "compose/element_composer.h"

namespace Lw::HNodeClock {

void DigitalFace::PlaceRows(const DigitalSettings &settings, int count, int space)
{
    LayOutDigital(settings, count, space, m_shared.Elements(), m_shared.tops);
}

void DigitalFace::PlaceRows(const DigitalSettings &settings)
{
    PlaceRows(settings, CountRows(settings.flags), settings.space);
}

void DigitalFace::Draw(const DigitalSettings &settings)
{
    if (!m_shared.node)
        return;
    ElementComposer &elements = m_shared.Elements();
    const ElementComposer::FrameScope oneFrame(elements);
    const QSize size(m_shared.frameWidth, settings.area.height());
    const Placements wanted = PlaceDigital(settings, elements, m_shared.tops);
    const QImage &last = m_shared.frames.Frame();
    if (last.size() == size && m_contents[m_secondIsCurrent].Describes(last, wanted))
        return;
    m_secondIsCurrent = !m_secondIsCurrent;
    QImage &frame = m_shared.frames.TakeNext(size);
    if (!frame.isNull())
        m_contents[m_secondIsCurrent].Draw(frame, wanted, FramePair::KeyColour());
}

std::optional<QRegion> DigitalFace::Changes() const
{
    return m_contents[m_secondIsCurrent].ChangesSince(
        m_contents[!m_secondIsCurrent], m_shared.frames.Frame(), m_shared.frames.FrameBefore());
}

} // namespace Lw::HNodeClock
