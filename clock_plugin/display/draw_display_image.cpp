// The drawer's state, the choice of the kind of clock, and the time step.
#include "display/draw_display_image.h"

#include "calendar/clock_time.h"
#include "calendar/device_clock.h"
#include "compose/element_composer.h"
#include "display/draw_display_image_p.h"
#include "glyph/glyph_set.h"
#include "image_bounds.h"

#include "happconfig.h"

#include <utility>

namespace Lw::HNodeClock {

namespace {

// Red 1, green 2, blue 1 as a stored colour: almost black, and the one colour that hosts show
// through.
constexpr int kKeyColour = 0x10201;

} // namespace

DrawDisplayImage::DrawDisplayImage(HClockNode *node) : d(new Private)
{
    d->node = node;
    if (node)
        d->frameWidth = node->Size().width();
    ReLoadSourceFile(node);
}

DrawDisplayImage::~DrawDisplayImage() = default;

void DrawDisplayImage::ReLoadSourceFile(HClockNode *node)
{
    d->composer.InitParameters(node);
}

QImage DrawDisplayImage::DrawClockDisplayImage()
{
    d->lastForgotten = std::exchange(d->forgetLast, false);
    d->frameRedrawn = false;
    if (!d->node)
        return d->frame;
    const HeldReading oneInstant;
    const ElementComposer::FrameScope oneFrame(d->composer.Elements());
    d->frameWidth = d->node->Size().width();
    CalculateTimeZone();
    switch (d->node->ClockType()) {
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
    return d->frame;
}

QRegion DrawDisplayImage::FrameDamage() const
{
    if (d->lastForgotten)
        return d->frame.rect();
    return d->frameRedrawn ? d->ChangesSinceSpare() : QRegion();
}

void DrawDisplayImage::ForgetLastFrame()
{
    d->forgetLast = true;
}

void DrawDisplayImage::CalculateTimeZone()
{
    if (!d->node)
        return;
    const HeldReading oneInstant;
    d->TakeFields(d->composer.Elements().UpdateReading().GregorianFields());
    d->millisecond = LocalMillisecond();
    d->RecordStartTime();
}

void DrawDisplayImage::GetTime(QTime &start, QTime &now)
{
    if (!d->startTime)
        return;
    start = *d->startTime;
    now = QTime(d->now.hour, d->now.minute, d->now.second, d->millisecond);
}

QColor DrawDisplayImage::GetColorKey()
{
    return Private::KeyColour();
}

QColor DrawDisplayImage::ReturnQcolor(int colour)
{
    const auto packed = static_cast<LWColor>(colour);
    return QColor(RedOf(packed), GreenOf(packed), BlueOf(packed));
}

void DrawDisplayImage::Private::TakeFields(const DisplayedFields &fields)
{
    const bool isSameDay =
        fields.day == now.day && fields.month == now.month && fields.year == now.year;
    if (!isSameDay)
        dateText = PlainText(QDate(fields.year, fields.month, fields.day), "yyyy/MM/dd");
    now = fields;
}

// The first frame after construction does not count: the start time is the second frame's, and
// never replaced.
void DrawDisplayImage::Private::RecordStartTime()
{
    if (!startTime && ++startCounter == 2)
        startTime = std::make_unique<QTime>(now.hour, now.minute, now.second, millisecond);
}

QColor DrawDisplayImage::Private::KeyColour()
{
    return Lw::HAppConfig::IntToColor(kKeyColour);
}

bool DrawDisplayImage::Private::Drawable(const QSize &size)
{
    return WithinBounds(size, kFrameBytes);
}

QImage DrawDisplayImage::Private::NewImage(const QSize &size, const QColor &keyColour) const
{
    if (!Drawable(size))
        return QImage();
    QImage image(size, imageFormat);
    image.fill(keyColour);
    return image;
}

void DrawDisplayImage::Private::PrepareFrame(const QSize &size)
{
    frameRedrawn = true;
    std::swap(frame, spare);
    std::swap(frameView, spareView);
    if (frame.isNull() || frame.size() != size || !frame.isDetached())
        frame = NewImage(size, KeyColour());
}

// A frame is known to the memory of the kind of clock that drew it, if to any.
QRegion DrawDisplayImage::Private::ChangesSinceSpare() const
{
    std::optional<QRegion> changes;
    if (frame.size() == spare.size()) {
        changes = digitalContents->ChangesSince(*digitalSpareContents, frame, spare);
        if (!changes)
            changes = dialFrames.ChangesSince(spare, frame);
        if (!changes)
            changes = pictureFrames.ChangesSince(spare, frame);
    }
    return changes.value_or(frame.rect()) & frame.rect();
}

} // namespace Lw::HNodeClock
