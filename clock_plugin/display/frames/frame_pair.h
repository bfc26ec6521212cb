// display/frames/: double buffering: two frames drawn alternately, so that drawing need not copy a
// frame that a consumer still holds.
#pragma once

#include <QColor>
#include <QImage>
#include <QRegion>

#include <optional>

namespace Lw::HNodeClock {

class FramePair
{
public:
    /// The background colour, which hosts treat as transparent.
    static QColor KeyColour();
    /// Whether a frame of this size is allowed: not empty and within kFrameBytes.
    static bool Drawable(const QSize &size);
    /// A new image of the frames' format filled with the key colour; null where not drawable.
    static QImage NewImage(const QSize &size);

    /// The frame drawn last; null before the first and where it could not be made.
    QImage &Frame() { return m_frame; }
    const QImage &Frame() const { return m_frame; }
    const QImage &FrameBefore() const { return m_spare; }

    /// Swaps the frames and returns the one to draw: a new one filled with the key colour if it is
    /// null, of another size or still held elsewhere.
    QImage &TakeNext(const QSize &size);

    /// Call before each frame, whether or not it is redrawn; used for the damage.
    void Begin();
    /// The next frame is treated as completely changed.
    void ForgetLast() { m_forgetLast = true; }
    enum class Difference { None, SinceFrameBefore, Everywhere };
    /// How the frame differs from the one handed over before it.
    Difference DifferenceFromLast() const;

private:
    QImage m_frame;
    QImage m_spare; // the frame before: drawn over once no one else holds it
    bool m_isRedrawn = false;
    bool m_lastIsForgotten = false; // for this frame
    bool m_forgetLast = true;       // for the next
};

} // namespace Lw::HNodeClock
