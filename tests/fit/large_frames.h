// A made-up clock drawn with room for all its ink around the area.
#pragma once

#include "../display/plain_clocks.h"
#include "display/draw_display_image.h"
#include "fit.h"
#include "frame_ink.h"
#include "made_up_clocks.h"

#include <memory>

using Inks = QMap<QRgb, FrameInk>;

class LargeFrames
{
public:
    explicit LargeFrames(MadeUpClock &clock);

    /// The ink at an instant, in pixels of the area. An analog clock has no hands there.
    Inks At(qint64 utc);
    /// How many pixels of a part are drawn.
    int Shown(ClockFit::Part part, qint64 utc);
    /// How many pixels of a part there would be if no other part were drawn.
    int Uncovered(ClockFit::Part part, qint64 utc);
    /// Whether the area's own frame is what the large one has within the area.
    bool AreaIsAPart(qint64 utc);

    QRgb ColourOf(ClockFit::Part part);

private:
    QImage Frame(qint64 utc);
    QImage OwnFrame(qint64 utc);
    QImage WithoutMarks(QImage frame);
    Inks InkOfFrame(qint64 utc);
    Inks Spread(qint64 utc);
    int Alone(ClockFit::Part part, qint64 utc);

    MadeUpClock &m_clock;
    Lw::HNodeClock::HClockNode &m_node;
    const QSize m_area;
    QSize m_margin; ///< on the left and on the right, above and below
    std::unique_ptr<PlainClock> m_dial;
    std::unique_ptr<Lw::HNodeClock::DrawDisplayImage> m_large;
    std::unique_ptr<Lw::HNodeClock::DrawDisplayImage> m_own;
};
