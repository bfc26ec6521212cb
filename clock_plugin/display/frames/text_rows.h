// Text rows on a picture that is kept: painted over what is there, second after second.
//
// Where a row is translucent each painting makes it a little denser, until nothing changes any
// more. From then on, or at once where rows are opaque, painting the same rows again is left out.
#pragma once

#include "display/frames/placements.h"

#include <QImage>
#include <QRegion>

namespace Lw::HNodeClock {

class TextRows
{
public:
    /// Paints the rows in their order and returns where the picture changed. Empty rows and a null
    /// picture are left out.
    QRegion Paint(QImage &picture, const Placements &rows);

private:
    ShownPlacements m_painted;
    qint64 m_settledKey = 0; // of the picture that painting them again would not change
};

} // namespace Lw::HNodeClock
