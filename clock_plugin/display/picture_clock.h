// display/: the face of a picture clock: a dial picture of the chosen style, and hand pictures that
// all styles share.
#pragma once

#include "display/clock_face.h"
#include "display/frames/frame_memory.h"
#include "display/frames/hand_cache.h"

#include <QPixmap>

#include <optional>

namespace Lw::HNodeClock {

class PictureFace
{
public:
    explicit PictureFace(SharedByFaces &shared) : m_shared(shared) { }
    Q_DISABLE_COPY(PictureFace)

    /// Whether the pictures must be (re)loaded: style or size has changed, or memory ran out
    /// before.
    bool NeedsPictures();
    void LoadPictures(); ///< does nothing before the first NeedsPictures()
    void Draw();
    /// Where the frame differs from the previous one; nullopt if either was not drawn by this face.
    std::optional<QRegion> Changes() const
    {
        return m_memory.ChangesSince(m_shared.frames.FrameBefore(), m_shared.frames.Frame());
    }

private:
    // A picture scaled to its place on the face and rotated clockwise about the centre.
    struct TurnedPicture
    {
        const QPixmap &picture;
        double degrees;
        QRect place;
    };

    void DrawBackground(const QRect &dial, const QString &file);
    void Restore(QImage &frame);
    void Paint(const TurnedPicture &part, FrameMemory::Painting &painting);
    void PaintCached(const TurnedPicture &part, HandCache &cache, int position,
                     FrameMemory::Painting &painting);
    CachedShape CachedPicture(const TurnedPicture &part);

    SharedByFaces &m_shared;
    QPixmap m_hour;
    QPixmap m_minute;
    QPixmap m_second;
    QPixmap m_centre;
    QImage m_background;        // the scaled dial
    QPoint m_place;             // of the background in a frame
    QSize m_size;               // of the frames that the background is for
    std::optional<int> m_style; // style last drawn; nullopt before the first frame
    FrameMemory m_memory;
    HandCache m_hourCache;
    HandCache m_secondCache {60};
    HandCache m_centreCache;
};

} // namespace Lw::HNodeClock
