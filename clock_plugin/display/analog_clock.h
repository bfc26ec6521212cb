// display/: the face of an analog clock: a dial that is redrawn rarely, the hands over it every
// second, and text rows that are drawn onto the dial after the frame, so they appear one second
// later.
#pragma once

#include "display/analog_painting.h"
#include "display/clock_face.h"
#include "display/frames/frame_memory.h"
#include "display/frames/hand_cache.h"
#include "display/frames/text_rows.h"

#include <QDate>

#include <optional>

namespace Lw::HNodeClock {

/// Fills hourHand, minuteHand and secondHand for a dial `size` pixels across.
void FillHandTriangles(int size);

class AnalogFace
{
public:
    explicit AnalogFace(SharedByFaces &shared) : m_shared(shared) { }
    Q_DISABLE_COPY(AnalogFace)

    void PlaceRows();
    void Draw();
    // The steps of drawing, in their order.
    void DrawDial();
    void DrawBadge();
    void DrawHands();
    void DrawTexts();

    void InvalidateDial() { m_dialHalf.clear(); } ///< the next frame redraws the dial
    /// Where the frame differs from the previous one; nullopt if either was not drawn by this face.
    std::optional<QRegion> Changes() const
    {
        return m_memory.ChangesSince(m_shared.frames.FrameBefore(), m_shared.frames.Frame());
    }

private:
    static constexpr int kHands = 3;

    void RefreshDial(const QSize &size);
    void CountRepeatedSecond();
    int DrawHand(int index, double radius, FrameMemory::Painting &painting);
    void PutShape(const FlatShape &shape, HandCache &cache, int position,
                  FrameMemory::Painting &painting);
    QPainter &Painter();

    SharedByFaces &m_shared;
    QImage m_dial;      // marks, numerals, badge and texts: the background of the hands
    QDate m_dialDate;   // the device's date when the dial was drawn
    QString m_dialHalf; // "AM" or "PM" at that time; empty forces a dial redraw
    TextRows m_texts;   // on the dial
    FrameMemory m_memory;
    bool m_smooth = false; // antialiased hands
    HandCache m_hands[kHands] = {HandCache(1), HandCache(1), HandCache(60)};
    HandCache m_cap;
    ColourCanvas m_canvas;
    int m_lastSecond = -1;
    // Diagnostics, for a debugger: frames that showed the same second as the previous one.
    int m_repeatedSeconds = 0;
};

} // namespace Lw::HNodeClock
