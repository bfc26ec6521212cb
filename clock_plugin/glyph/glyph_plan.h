// glyph/: how large the glyph images of a clock will be, computed from their fonts before any is
// drawn.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSize>
#include <QString>

namespace Lw::HNodeClock {

class HClockNode;

struct PlannedImage
{
    QByteArray identity; ///< equal for images that will be equal
    QSize size;          ///< pixels
};

/// The images that a clock generates, hidden ones included, by key. Those that are empty or too
/// large to be made are left out.
QHash<QString, PlannedImage> PlannedImages(HClockNode &node);

} // namespace Lw::HNodeClock
