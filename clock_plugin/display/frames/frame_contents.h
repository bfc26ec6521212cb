// display/frames/: draws placed elements into a frame, repainting only what differs from its known
// contents.
#pragma once

#include "display/frames/placements.h"

#include <QColor>
#include <QImage>
#include <QRegion>

#include <optional>

namespace Lw::HNodeClock {

/// Records what an image shows. Images are identified by their cache key, which changes with every
/// write: an image modified elsewhere is unknown.
class FrameContents
{
public:
    bool Describes(const QImage &image, const Placements &placements) const;
    /// Makes the image, which must be detached, show the placements on the background and nothing
    /// else. Parts that are known to be unchanged are not redrawn.
    void Draw(QImage &image, const Placements &placements, const QColor &background);

    /// Where an image with these contents may differ from an earlier one with the contents
    /// `before`; nullopt if either image is unknown.
    std::optional<QRegion> ChangesSince(const FrameContents &before, const QImage &image,
                                        const QImage &imageBefore) const;

private:
    bool Knows(const QImage &image) const;

    qint64 m_imageKey = 0;
    ShownPlacements m_shown;
};

} // namespace Lw::HNodeClock
