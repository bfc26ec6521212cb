// display/: DrawDisplayImage: state, dispatch to a face, and time step. The drawing is in the files
// of the faces.
#include "display/draw_display_image.h"

#include "calendar/clock_time.h"
#include "calendar/device_clock.h"
#include "compose/element_composer.h"
#include "display/draw_display_image_p.h"

namespace Lw::HNodeClock {

DrawDisplayImage::DrawDisplayImage(HClockNode *node) : d(new Private)
{
    d->shared.node = node;
    d->shared.frameWidth = node ? node->Size().width() : 0;
    ReLoadSourceFile(d->shared.node);
}

DrawDisplayImage::~DrawDisplayImage() = default;

void DrawDisplayImage::ReLoadSourceFile(HClockNode *node)
{
    d->shared.composer.InitParameters(node);
}

QImage DrawDisplayImage::DrawClockDisplayImage()
{
    SharedByFaces &shared = d->shared;
    shared.frames.Begin();
    if (!shared.node)
        return shared.frames.Frame();
    const HeldInstant oneInstant;
    const ElementComposer::FrameScope oneFrame(shared.Elements());
    shared.frameWidth = shared.Size().width();
    CalculateTimeZone();
    switch (shared.Number(&HClockNode::ClockType)) {
    case AnalogClock:
        GetAngDisplayArea();
        DrawAnalogClock();
        break;
    case DigitalClock:
        d->DrawDigitalFrame();
        break;
    case PictureClock:
        DrawPixmapClock();
        break;
    default:
        break;
    }
    return shared.frames.Frame();
}

QRegion DrawDisplayImage::FrameDamage() const
{
    const FramePair &frames = d->shared.frames;
    const QRect whole = frames.Frame().rect();
    switch (frames.DifferenceFromLast()) {
    case FramePair::Difference::None:
        return QRegion();
    case FramePair::Difference::SinceFrameBefore:
        return d->Changes() & whole;
    case FramePair::Difference::Everywhere:
        break;
    }
    return whole;
}

void DrawDisplayImage::ForgetLastFrame()
{
    d->shared.frames.ForgetLast();
}

void DrawDisplayImage::CalculateTimeZone()
{
    if (!d->shared.node)
        return;
    const HeldInstant oneInstant;
    d->TakeFields(d->shared.Elements().UpdateReading().GregorianFields());
    d->millisecond = LocalMillisecond();
    d->RecordStartTime();
}

void DrawDisplayImage::GetTime(QTime &start, QTime &now)
{
    if (!d->startTime)
        return;
    const DisplayedFields &last = d->shared.now;
    start = *d->startTime;
    now = QTime(last.hour, last.minute, last.second, d->millisecond);
}

QColor DrawDisplayImage::GetColorKey()
{
    return FramePair::KeyColour();
}

QColor DrawDisplayImage::ReturnQcolor(int colour)
{
    return ColourOf(colour);
}

void DrawDisplayImage::Private::TakeFields(const DisplayedFields &fields)
{
    const DisplayedFields &last = shared.now;
    const bool isSameDay =
        fields.day == last.day && fields.month == last.month && fields.year == last.year;
    if (!isSameDay)
        dateText = FormatAscii(QDate(fields.year, fields.month, fields.day), "yyyy/MM/dd");
    shared.now = fields;
}

// The start time is that of the second call after construction; it is never replaced.
void DrawDisplayImage::Private::RecordStartTime()
{
    const DisplayedFields &now = shared.now;
    if (!startTime && ++startCounter == 2)
        startTime = QTime(now.hour, now.minute, now.second, millisecond);
}

QRegion DrawDisplayImage::Private::Changes() const
{
    std::optional<QRegion> changes;
    if (digital)
        changes = digital->Changes();
    if (!changes && analog)
        changes = analog->Changes();
    if (!changes && picture)
        changes = picture->Changes();
    return changes.value_or(shared.frames.Frame().rect());
}

// Analog clock.

void DrawDisplayImage::GetAngDisplayArea()
{
    if (d->shared.node)
        d->Analog().PlaceRows();
}

void DrawDisplayImage::DrawAnalogClock()
{
    if (d->shared.node)
        d->Analog().Draw();
}

void DrawDisplayImage::DrawAnalogClockDial()
{
    if (d->shared.node)
        d->Analog().DrawDial();
}

void DrawDisplayImage::DrawAnalogClock_AMPM()
{
    if (d->shared.node)
        d->Analog().DrawBadge();
}

void DrawDisplayImage::DrawAnalogClockPoint()
{
    if (d->shared.node)
        d->Analog().DrawHands();
}

void DrawDisplayImage::DrawAnalogText()
{
    if (d->shared.node)
        d->Analog().DrawTexts();
}

void DrawDisplayImage::SetHandSize(int size)
{
    if (d->shared.node)
        FillHandTriangles(size);
}

// Digital clock.

// The settings are read once for both steps.
void DrawDisplayImage::Private::DrawDigitalFrame()
{
    if (!shared.node)
        return;
    const DigitalSettings settings(*shared.node);
    Digital().PlaceRows(settings);
    Digital().Draw(settings);
}

void DrawDisplayImage::GetDigitalDisplayArea()
{
    if (d->shared.node)
        d->Digital().PlaceRows(DigitalSettings(*d->shared.node));
}

void DrawDisplayImage::Computations1Count()
{
    if (d->shared.node)
        d->Digital().PlaceRows(DigitalSettings(*d->shared.node), 1, 0);
}

void DrawDisplayImage::Computations2Count(int space)
{
    if (d->shared.node)
        d->Digital().PlaceRows(DigitalSettings(*d->shared.node), 2, space);
}

void DrawDisplayImage::Computations3Count(int space)
{
    if (d->shared.node)
        d->Digital().PlaceRows(DigitalSettings(*d->shared.node), 3, space);
}

void DrawDisplayImage::Computations4Count(int space)
{
    if (d->shared.node)
        d->Digital().PlaceRows(DigitalSettings(*d->shared.node), 4, space);
}

void DrawDisplayImage::Computations5Count(int space)
{
    if (d->shared.node)
        d->Digital().PlaceRows(DigitalSettings(*d->shared.node), 5, space);
}

void DrawDisplayImage::DrawDigitalClock()
{
    if (d->shared.node)
        d->Digital().Draw(DigitalSettings(*d->shared.node));
}

// Picture clock.

void DrawDisplayImage::InitClockTypePixmap()
{
    if (!d->shared.node)
        return;
    d->Picture().LoadPictures();
    if (d->analog)
        d->analog->InvalidateDial();
}

void DrawDisplayImage::DrawPixmapClock()
{
    if (!d->shared.node)
        return;
    if (d->Picture().NeedsPictures())
        InitClockTypePixmap();
    d->Picture().Draw();
}

} // namespace Lw::HNodeClock
