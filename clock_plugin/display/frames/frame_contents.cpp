#include "display/frames/frame_contents.h"

#include "compose/piece_canvas.h"

namespace Lw::HNodeClock {

bool FrameContents::Knows(const QImage &image) const
{
    return m_imageKey != 0 && image.cacheKey() == m_imageKey;
}

bool FrameContents::Describes(const QImage &image, const Placements &placements) const
{
    return Knows(image) && m_shown.Match(placements);
}

std::optional<QRegion> FrameContents::ChangesSince(const FrameContents &before, const QImage &image,
                                                   const QImage &imageBefore) const
{
    if (!Knows(image) || !before.Knows(imageBefore))
        return std::nullopt;
    QRegion changes;
    for (const QRect &rect : m_shown.ChangesSince(before.m_shown))
        changes += rect;
    return changes;
}

void FrameContents::Draw(QImage &image, const Placements &placements, const QColor &background)
{
    const bool known = Knows(image);
    ShownPlacements::Rects rects = m_shown.Replace(placements);
    if (!known) {
        image.fill(background);
        rects = {image.rect()};
    }
    {
        PieceCanvas canvas(image);
        for (const QRect &rect : qAsConst(rects)) {
            const QRect clip = rect & image.rect();
            if (clip.isEmpty())
                continue;
            if (known)
                canvas.Fill(clip, background.rgba());
            for (const Placements::Placed &placed : placements)
                canvas.Draw(*placed.element, placed.position, clip);
        }
    }
    m_imageKey = image.cacheKey();
}

} // namespace Lw::HNodeClock
