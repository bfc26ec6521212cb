// Draws the frames of one clock: analog, digital or picture, once a second.
//
// One class in four source files: draw_display_image.cpp holds the state, the dispatch, the time
// step and the dial cache; analog_clock.cpp, digital_clock.cpp and picture_clock.cpp draw one kind
// of clock each.
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

/// Every operation does nothing when the node is gone.
class CLOCK_EXPORT DrawDisplayImage : public QObject
{
    Q_OBJECT

public:
    explicit DrawDisplayImage(HClockNode *node);
    ~DrawDisplayImage() override;

    /// Loads the node's glyph images again, after they were regenerated.
    void ReLoadSourceFile(HClockNode *node);
    /// The frame of this moment, the node's size, filled with the key colour where nothing is
    /// drawn. A node that is gone, or of no known clock type, gives the last frame.
    QImage DrawClockDisplayImage();
    void CalculateTimeZone();
    /// The time of the second frame and the time now; untouched before the second frame.
    void GetTime(QTime &start, QTime &now);
    QColor GetColorKey();            ///< what the host treats as transparent
    QColor ReturnQcolor(int colour); ///< 0x00BBGGRR, always opaque

    // Analog clock.
    void GetAngDisplayArea();
    void DrawAnalogClock();
    void DrawAnalogClockDial();
    void DrawAnalogClock_AMPM();
    void DrawAnalogClockPoint();
    void DrawAnalogText();
    void SetHandSize(int size);

    // Digital clock.
    void GetDigitalDisplayArea();
    void Computations1Count();
    void Computations2Count(int space);
    void Computations3Count(int space);
    void Computations4Count(int space);
    void Computations5Count(int space);
    void DrawDigitalClock();

    // Picture clock.
    void InitClockTypePixmap();
    void DrawPixmapClock();

private:
    class Q_DECL_HIDDEN Private;
    QScopedPointer<Private> d;
};

} // namespace Lw::HNodeClock
