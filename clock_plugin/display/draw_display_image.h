// Draws the frames of one clock: analog, digital or picture, once a second.
//
// draw_display_image.cpp has the dispatch and the time step; analog_clock.h, digital_clock.h and
// picture_clock.h are the faces that draw.
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
/// does not read them; they are for anyone who does.
extern CLOCK_EXPORT QPoint hourHand[3];
extern CLOCK_EXPORT QPoint minuteHand[3];
extern CLOCK_EXPORT QPoint secondHand[3];

/// What needs the node does nothing when it is gone. A frame is made by DrawClockDisplayImage; the
/// other operations are its steps, in the order in which it takes them. All lengths are pixels.
class CLOCK_EXPORT DrawDisplayImage : public QObject
{
    Q_OBJECT

public:
    /// The node is not owned; null is a node that is gone.
    explicit DrawDisplayImage(HClockNode *node);
    ~DrawDisplayImage() override;

    /// Loads the node's glyph images again, after they were regenerated. Null does nothing.
    void ReLoadSourceFile(HClockNode *node);
    /// The frame of this moment, the node's size, filled with the key colour where nothing is
    /// drawn. A node that is gone, or of no known clock type, gives the last frame.
    QImage DrawClockDisplayImage();
    /// Where the frame that DrawClockDisplayImage gave last may differ from the one it gave before
    /// that, in pixels of the frame: all of it where that is not known, nothing where the same
    /// frame was given again. Worked out when asked for.
    Q_DECL_HIDDEN QRegion FrameDamage() const;
    /// Makes the damage of the next frame all of it.
    Q_DECL_HIDDEN void ForgetLastFrame();
    /// Reads the device's clock and works out what the clock shows, by its node's zone, adjustment
    /// and daylight saving. All drawing is of this reading until the next call.
    void CalculateTimeZone();
    /// The readings of the second call of CalculateTimeZone and of the last; untouched before the
    /// second.
    void GetTime(QTime &start, QTime &now);
    QColor GetColorKey();            ///< what the host treats as transparent
    QColor ReturnQcolor(int colour); ///< 0x00BBGGRR, always opaque

    // Analog clock.
    /// Works out the top edges of the text rows, which are measured for it. Draws nothing.
    void GetAngDisplayArea();
    /// Draws the frame: a copy of the dial, hands over it. The text rows go onto the dial after
    /// that, so they show from the next frame on. The dial is redrawn only when the device's date,
    /// the node's size or the half of the day has changed.
    void DrawAnalogClock();
    void DrawAnalogClockDial(); ///< marks and numerals, onto the dial that DrawAnalogClock made
    /// The AM/PM mark, likewise, where Analog_AMPM_d is 1.
    void DrawAnalogClock_AMPM();
    void DrawAnalogClockPoint(); ///< the hands, onto the frame; sets the hand size too
    /// The text rows whose flag is 1, onto the dial, at the top edges worked out last.
    void DrawAnalogText();
    /// Fills the three outlines above, for a dial of that many pixels across.
    void SetHandSize(int size);

    // Digital clock.
    /// Works out the top edges of the rows whose flag is not 0, by their number and DigitalSpace.
    void GetDigitalDisplayArea();
    /// The same for one number of rows, the gap between two being that many pixels, or negative.
    /// Two, three and four do nothing where the node has another number of rows; one and five
    /// place all five, whatever their flags.
    void Computations1Count();
    void Computations2Count(int space);
    void Computations3Count(int space);
    void Computations4Count(int space);
    void Computations5Count(int space);
    /// Draws the frame: the elements whose flag is 1, on one line or at the top edges worked out
    /// last.
    void DrawDigitalClock();

    // Picture clock.
    /// Loads the pictures of the hands and of the style that PictrueClockType names. What cannot be
    /// read is left out. Forces an analog dial redraw.
    void InitClockTypePixmap();
    /// Draws the frame: dial and hands. Loads the pictures again when style or size has changed.
    void DrawPixmapClock();

private:
    class Q_DECL_HIDDEN Private;
    QScopedPointer<Private> d;
};

} // namespace Lw::HNodeClock
