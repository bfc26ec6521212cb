// Draws placed elements into a frame, and into a frame drawn before only what differs.
#pragma once

#include "display/frames/placements.h"

#include <QColor>
#include <QImage>
#include <QRegion>

#include <optional>

namespace Lw::HNodeClock {

/// Remembers what an image holds. Images are told apart by their cache key, which changes with
/// every write: an image that anybody else drew into is simply not known.
class FrameContents
{
public:
    bool Describes(const QImage &image, const Placements &placements) const;
    /// Makes the image show the placements on the background and nothing else. It must be detached.
    /// What it shows already, as this knows it, is left alone.
    void Draw(QImage &image, const Placements &placements, const QColor &background);

    /// Where an image with these contents may differ from an earlier one with the contents given;
    /// no answer where either image is unknown.
    std::optional<QRegion> ChangesSince(const FrameContents &before, const QImage &image,
                                        const QImage &imageBefore) const;

private:
    bool Knows(const QImage &image) const;

    qint64 m_imageKey = 0;
    ShownPlacements m_shown;
};

} // namespace Lw::HNodeClock
