// studio/wall: makes the glyph images of one clock one by one, so that the window answers between
// them.
#pragma once

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
    /// The node must outlive this object and keep its settings. There is nothing to do for one
    /// whose fonts are so small that the window need not wait for its images.
    explicit ImageSlices(Lw::HNodeClock::HClockNode &node);

    bool IsDone() const { return m_next >= m_images.size(); }
    void MakeNext();

private:
    Lw::HNodeClock::HClockNode &m_node;
    Lw::HNodeClock::DrwSourceIMage m_drawer;
    QVector<Lw::HNodeClock::GlyphImage> m_images;
    QString m_topText;
    int m_next = 0;
};

} // namespace ClockStudio
