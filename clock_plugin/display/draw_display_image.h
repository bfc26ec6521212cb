// display/: draws the frames of one clock (analog, digital or picture), one per second.
//
// draw_display_image.cpp dispatches to the faces and updates the time; analog_clock.h,
// digital_clock.h and picture_clock.h are the faces that draw.
#pragma once

#include "clock_export.h"
#include "clock_node.h"

#include <QColor>
#include <QDate>
#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QRegion>
#include <QScopedPointer>
#include <QString>
#include <QTime>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

class DrawClockClassifyImage;

/// The classic three-point outlines of the hands, filled by SetHandSize. The drawing of the hands
/// does not use them; they are kept for hosts that read them.
extern CLOCK_EXPORT QPoint hourHand[3];
extern CLOCK_EXPORT QPoint minuteHand[3];
extern CLOCK_EXPORT QPoint secondHand[3];

/// Functions that need the node do nothing once it is deleted. DrawClockDisplayImage() draws a
/// frame; the functions under each kind of clock are its steps. All lengths are in pixels.
class CLOCK_EXPORT DrawDisplayImage : public QObject
{
    Q_OBJECT

public:
    /// The node is not owned; null is treated like a deleted node.
    explicit DrawDisplayImage(HClockNode *node);
    ~DrawDisplayImage() override;

    /// Loads the node's glyph images again, after they were regenerated. Null does nothing.
    void ReLoadSourceFile(HClockNode *node);
    /// The current frame, in the node's size, filled with the key colour where nothing is drawn. If
    /// the node is deleted or its clock type unknown, the last frame.
    QImage DrawClockDisplayImage();
    /// Where the frame last returned by DrawClockDisplayImage() may differ from the one returned
    /// before that, in pixels of the frame: all of it if unknown, empty if the same frame was
    /// returned again. Computed lazily.
    Q_DECL_HIDDEN QRegion FrameDamage() const;
    /// The damage of the next frame will be the whole frame.
    Q_DECL_HIDDEN void ForgetLastFrame();
    /// Reads the device's clock and computes what the clock shows from its node's zone, adjustment
    /// and daylight saving. All drawing uses this reading until the next call.
    void CalculateTimeZone();
    /// `start` is the reading at the second call of CalculateTimeZone(), `now` that at the latest
    /// call. Both are left unchanged until the second call.
    void GetTime(QTime &start, QTime &now);
    QColor GetColorKey();            ///< what the host treats as transparent
    QColor ReturnQcolor(int colour); ///< 0x00BBGGRR, always opaque

    // Analog clock.
    /// Computes the top edges of the text rows. Draws nothing.
    void GetAngDisplayArea();
    /// Draws the frame: a copy of the dial with hands on it. The text rows go onto the dial after
    /// that, so they show from the next frame on. The dial is redrawn only when the device's date,
    /// the node's size or AM/PM has changed.
    void DrawAnalogClock();
    void DrawAnalogClockDial(); ///< marks and numerals, onto the dial that DrawAnalogClock created
    /// The AM/PM badge, also onto the dial, if Analog_AMPM_d is 1.
    void DrawAnalogClock_AMPM();
    void DrawAnalogClockPoint(); ///< the hands, onto the frame; sets the hand size too
    /// The text rows whose flag is 1, onto the dial, at the top edges last computed.
    void DrawAnalogText();
    /// Fills the three outlines above, for a dial `size` pixels across.
    void SetHandSize(int size);

    // Digital clock.
    /// Computes the top edges of the rows whose flag is not 0, from their count and DigitalSpace.
    void GetDigitalDisplayArea();
    /// The same for a fixed number of rows, with a gap of `space` pixels, which may be negative.
    /// Those for two, three and four rows do nothing if the node shows a different number of rows;
    /// those for one and five place all five regardless of their flags.
    void Computations1Count();
    void Computations2Count(int space);
    void Computations3Count(int space);
    void Computations4Count(int space);
    void Computations5Count(int space);
    /// Draws the frame: the elements whose flag is 1, on one line or at the top edges last
    /// computed.
    void DrawDigitalClock();

    // Picture clock.
    /// Reloads the pictures of the hands and of the style given by PictrueClockType; does nothing
    /// before the first frame of a picture clock, which loads them. Unreadable pictures are
    /// skipped. Forces an analog dial redraw.
    void InitClockTypePixmap();
    /// Draws the frame: dial and hands. Loads the pictures again when style or size has changed.
    void DrawPixmapClock();

private:
    class Q_DECL_HIDDEN Private;
    QScopedPointer<Private> d;
};

} // namespace Lw::HNodeClock
