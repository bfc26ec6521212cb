// The state of a frame drawer, shared by the files that draw one kind of clock each.
#pragma once

#include "calendar/clock_time.h"
#include "compose/draw_clock_classify_image.h"
#include "display/draw_display_image.h"
#include "display/frame_memory.h"
#include "display/frame_painter.h"
#include "display/opaque_view.h"
#include "display/resting_hand.h"
#include "display/row_placement.h"
#include "display/stamp.h"
#include "display/text_rows.h"

#include <QPainter>

#include <array>
#include <memory>
#include <optional>

namespace Lw::HNodeClock {

class DrawDisplayImage::Private
{
public:
    /// What nothing is drawn on.
    static QColor KeyColour();
    /// Whether an image of that size can be drawn at all: within the bounds of frames.
    static bool Drawable(const QSize &size);
    /// A new image of the drawer's format filled with the key colour; null where not drawable.
    QImage NewImage(const QSize &size, const QColor &keyColour) const;
    /// Makes the other of the two frames the current one, so that a frame that is still held by
    /// the consumer is never copied. The frame is replaced by a new one filled with the key colour
    /// when it is null, of another size, or still held; it stays null where it cannot be made.
    void PrepareFrame(const QSize &size);
    void TakeFields(const DisplayedFields &fields);
    void RecordStartTime();
    /// Where the frame may differ from the spare, which was the frame before it.
    QRegion ChangesSinceSpare() const;
    int Number(Attribute attribute) { return node->GetAttributeToInt(Key(attribute)); }

    QPointer<HClockNode> node;
    DrawClockClassifyImage composer;
    QPainter painter; // goes before the composer

    DisplayedFields now {0, 0, 0, 0, 0, -1, 0}; ///< Gregorian, and twenty-four hours, in every mode
    int millisecond = 0;                        ///< of the device's clock
    int frameWidth = 0;
    QString dateText; ///< yyyy/MM/dd

    int startCounter = 0;
    std::unique_ptr<QTime> startTime; ///< of the second frame; null before it
    int lastSecondDrawn = -1;
    int repeatedSeconds = 0; ///< analog frames that showed the second of the frame before

    Rows rows; ///< top edges of the text rows

    QImage frame; ///< the frame of this moment
    OpaqueView frameView;
    QImage spare; ///< the frame before: the next one is drawn over it once nobody holds it
    OpaqueView spareView;
    bool frameRedrawn = false;  ///< with the last call; else the same frame was given again
    bool lastForgotten = false; ///< for this frame: its damage is all of it
    bool forgetLast = true;     ///< the same, for the next frame
    QImage::Format imageFormat = QImage::Format_ARGB32;

    // Digital clock.
    void DrawDigitalFrame();
    /// As the layout of that many rows; nothing without a node.
    void LayOutDigitalRows(int count, int space);
    void DrawDigital(const DigitalSettings &settings);
    std::array<FrameContents, 2> digitalFrames;         ///< what the frame and the spare hold
    FrameContents *digitalContents = &digitalFrames[0]; ///< of the frame
    FrameContents *digitalSpareContents = &digitalFrames[1];

    // Analog clock.
    QImage dialCache; ///< marks, numerals, badge and texts: what the hands are drawn over
    QDate dialDate;   ///< the device's date when the dial was drawn
    QString dialTimeAP;
    FrameMemory dialFrames; ///< the frames over the dial
    TextRows dialTexts;     ///< the texts on the dial
    Stamp minuteStamp;
    Stamp capStamp;

    // Picture clock.
    void LayHourHand(double degrees); ///< onto the background
    /// Makes the frame the background with the hour hand turned that far, or the key colour where
    /// there is no background of its size. Returns whether the hour hand is in the frame now.
    bool RestoreBackground(double hourDegrees);
    QPixmap hourPicture;
    QPixmap minutePicture;
    QPixmap secondPicture;
    QPixmap centrePicture;
    QImage pictureBackground; ///< the scaled dial and the hour hand: what the others lie over
    RestingHand pictureHour;
    QSize pictureSize;              ///< the background's size, or the one it could not be made in
    std::optional<int> pictureType; ///< of the background; none before the first frame
    FrameMemory pictureFrames;      ///< the frames over the background
};

} // namespace Lw::HNodeClock
