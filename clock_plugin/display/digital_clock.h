// display/: the face of a digital clock: up to five elements on one line or in rows.
#pragma once

#include "display/clock_face.h"
#include "display/frames/frame_contents.h"
#include "display/row_placement.h"

#include <array>
#include <optional>

namespace Lw::HNodeClock {

class DigitalFace
{
public:
    explicit DigitalFace(SharedByFaces &shared) : m_shared(shared) { }
    Q_DISABLE_COPY(DigitalFace)

    /// Places the rows with the layout for `count` rows and a gap of `space` pixels.
    void PlaceRows(const DigitalSettings &settings, int count, int space);
    /// Places the rows as the settings say.
    void PlaceRows(const DigitalSettings &settings);
    void Draw(const DigitalSettings &settings);
    /// Where the frame differs from the previous one; nullopt if either was not drawn by this face.
    std::optional<QRegion> Changes() const;

private:
    SharedByFaces &m_shared;
    std::array<FrameContents, 2> m_contents; // of the frame and of the one before it
    bool m_secondIsCurrent = false;          // whether the second is of the frame
};

} // namespace Lw::HNodeClock
