// display/: the private state of DrawDisplayImage: the three faces and what they share.
#pragma once

#include "display/analog_clock.h"
#include "display/clock_face.h"
#include "display/digital_clock.h"
#include "display/draw_display_image.h"
#include "display/picture_clock.h"

#include <QTime>

#include <memory>
#include <optional>

namespace Lw::HNodeClock {

class DrawDisplayImage::Private
{
public:
    void TakeFields(const DisplayedFields &fields);
    void RecordStartTime();
    void DrawDigitalFrame();
    /// Where the frame differs from the previous one, according to the face that drew both.
    QRegion Changes() const;

    /// Faces are created lazily: a clock rarely uses more than one.
    AnalogFace &Analog() { return Made(analog); }
    DigitalFace &Digital() { return Made(digital); }
    PictureFace &Picture() { return Made(picture); }

    SharedByFaces shared;
    std::unique_ptr<AnalogFace> analog;
    std::unique_ptr<DigitalFace> digital;
    std::unique_ptr<PictureFace> picture;

    QString dateText;     ///< the displayed date as yyyy/MM/dd; diagnostics, for a debugger
    int millisecond = 0;  ///< of the device's clock
    int startCounter = 0; ///< calls of CalculateTimeZone before the start time was recorded
    std::optional<QTime> startTime;

private:
    template<class Face>
    Face &Made(std::unique_ptr<Face> &face)
    {
        if (!face)
            face = std::make_unique<Face>(shared);
        return *face;
    }
};

} // namespace Lw::HNodeClock
