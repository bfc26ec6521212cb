// display/frames/: paints text rows onto a retained picture (the dial) every second, on top of what
// it already shows.
//
// Each painting makes a translucent row a little denser, until nothing changes any more. From then
// on (for opaque rows immediately) the same rows are not repainted.
#pragma once

#include "display/frames/placements.h"

#include <QImage>
#include <QRegion>

namespace Lw::HNodeClock {

class TextRows
{
public:
    /// Paints the rows in their order and returns where the picture changed. Empty rows are
    /// skipped; a null picture is left alone.
    QRegion Paint(QImage &picture, const Placements &rows);

private:
    ShownPlacements m_painted;
    qint64 m_settledKey = 0; // cache key of the picture once repainting no longer changes it
};

} // namespace Lw::HNodeClock
