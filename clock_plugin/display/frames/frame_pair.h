// The two frames of a drawer, drawn in turn: a consumer that holds the last one does not have it
// copied.
#pragma once

#include <QColor>
#include <QImage>
#include <QRegion>

#include <optional>

namespace Lw::HNodeClock {

class FramePair
{
public:
    /// What is not drawn on: the colour that hosts take for transparent.
    static QColor KeyColour();
    /// Whether an image of that size can be drawn at all: within the bounds of frames.
    static bool Drawable(const QSize &size);
    /// A new image of the frames' format filled with the key colour; null where not drawable.
    static QImage NewImage(const QSize &size);

    /// The frame drawn last; null before the first and where it could not be made.
    QImage &Frame() { return m_frame; }
    const QImage &Frame() const { return m_frame; }
    const QImage &FrameBefore() const { return m_spare; }

    /// Makes the other frame the one to be drawn, or a new one filled with the key colour where
    /// that is null, of another size or still held by someone.
    QImage &TakeNext(const QSize &size);

    /// For the damage of each frame: to be called before it is drawn, or not drawn again.
    void Begin();
    /// The next frame counts as different all over.
    void ForgetLast() { m_forgetLast = true; }
    enum class Difference { None, SinceFrameBefore, Everywhere };
    /// How the frame differs from the one handed over before it.
    Difference FromLast() const;

private:
    QImage m_frame;
    QImage m_spare; // the frame before: drawn over once no one else holds it
    bool m_isRedrawn = false;
    bool m_lastIsForgotten = false; // for this frame
    bool m_forgetLast = true;       // for the next
};

} // namespace Lw::HNodeClock
