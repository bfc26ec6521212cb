// studio/wall: makes the glyph images of one clock one by one, so that the window responds between
// them.
#pragma once

#include "image_encoder.h"

#include "glyph/draw_source_image.h"
#include "glyph/glyph_set.h"

#include <QString>
#include <QVector>

namespace ClockStudio {

/// The images are written where the clock itself writes them; it then finds them unchanged. Only in
/// the window's thread: fonts, pixmaps and the plugin's cache of images belong to it.
class ImageSlices
{
public:
    /// The node must outlive this object and keep its settings. Empty for a node whose fonts are so
    /// small that the window need not wait for its images.
    explicit ImageSlices(Lw::HNodeClock::HClockNode &node);

    bool IsDone() const { return m_next >= m_images.size(); }
    /// Writes the next image, or has it encoded first: the encoder is then busy. It must not be
    /// busy before.
    void MakeNext(ImageEncoder &encoder);

private:
    Lw::HNodeClock::HClockNode &m_node;
    QString m_id;
    Lw::HNodeClock::DrwSourceIMage m_drawer;
    QVector<Lw::HNodeClock::GlyphImage> m_images;
    int m_next = 0;
    bool m_isEncoded = false; ///< the next image was given to the encoder
};

} // namespace ClockStudio
