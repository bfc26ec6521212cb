// The analog clock: a dial that is drawn rarely, the hands over it every second, and text rows that
// are drawn onto the dial, so that a frame shows them from the next second on.
#include "calendar/device_clock.h"
#include "compose/element_composer.h"
#include "compose/glyph_reading.h"
#include "display/analog_geometry.h"
#include "display/analog_painting.h"
#include "display/draw_display_image_p.h"
#include "display/row_placement.h"
#include "glyph/glyph_set.h"

#include "happconfig.h"

#include <algorithm>

namespace Lw::HNodeClock {

QPoint hourHand[3];
QPoint minuteHand[3];
QPoint secondHand[3];

namespace {

struct HandRow
{
    Hand hand;
    Attribute type;
    Attribute colour;
};

// In the order of painting: the second hand lies above the others.
constexpr HandRow kHands[] = {
    {Hand::Hour, Attribute::HourRectType, Attribute::HourHandColor},
    {Hand::Minute, Attribute::MinuteRectType, Attribute::MinuteHandColor},
    {Hand::Second, Attribute::SecondRectType, Attribute::SecondHandColor},
};

// The host's image format that asks for smooth hands.
bool Antialiasing()
{
    return HAppConfig::instance()->RenderImageFormat() == QImage::Format_ARGB32;
}

} // namespace

void DrawDisplayImage::SetHandSize(int size)
{
    if (!d->node)
        return;
    const HandTriangles triangles = TrianglesFor(size);
    std::copy(triangles.hour.begin(), triangles.hour.end(), hourHand);
    std::copy(triangles.minute.begin(), triangles.minute.end(), minuteHand);
    std::copy(triangles.second.begin(), triangles.second.end(), secondHand);
}

void DrawDisplayImage::DrawAnalogClock()
{
    if (!d->node)
        return;
    const QSize size = d->node->Size();
    d->PrepareFrame(size);
    const bool dialIsOld = d->dialCache.isNull() || d->dialDate != LocalDate()
        || d->dialCache.size() != size || d->composer.GetTimeAP() != d->dialTimeAP;
    if (dialIsOld) {
        d->dialCache = d->NewImage(size, GetColorKey());
        DrawAnalogClockDial();
        DrawAnalogClock_AMPM();
        // A copy leaves the paint engine, which takes its memory, behind.
        const QImage lean = d->dialCache.copy();
        if (!lean.isNull())
            d->dialCache = lean;
        d->dialDate = LocalDate();
    }
    if (!d->dialCache.isNull())
        d->dialFrames.Restore(d->frame, d->dialCache);
    else if (!d->frame.isNull())
        d->frame.fill(GetColorKey());
    DrawAnalogClockPoint();
    DrawAnalogText();
}

void DrawDisplayImage::DrawAnalogClockDial()
{
    if (!d->node || d->dialCache.isNull())
        return;
    MarkStyle style;
    style.hourScale = d->Number(Attribute::HourScaleType);
    style.minuteScale = d->Number(Attribute::MinuteScaleType);
    style.hourColour = ReturnQcolor(d->Number(Attribute::HourScaleColor));
    style.minuteColour = ReturnQcolor(d->Number(Attribute::MinuteScaleColor));
    const bool numerals = style.hourScale == TwelveNumerals || style.hourScale == FourNumerals;
    const double radius = DialRadius(d->dialCache.size());

    d->painter.begin(&d->dialCache);
    d->painter.setRenderHint(QPainter::Antialiasing, false);
    d->painter.translate(Centre(d->dialCache.size()));
    PaintMarks(d->painter, radius, style);
    if (numerals) {
        const QString strip = d->node->GetFirstFile(GlyphKey(Glyph::HourhandNumber));
        PaintNumerals(d->painter, style.hourScale, radius, ReadPixmapFile(strip), GetColorKey());
    }
    d->painter.end();
}

void DrawDisplayImage::DrawAnalogClock_AMPM()
{
    if (!d->node)
        return;
    d->dialTimeAP = d->composer.GetTimeAP();
    if (d->Number(Attribute::Analog_AMPM_d) != 1 || d->dialCache.isNull())
        return;
    const Glyph glyph = d->dialTimeAP == QLatin1String("AM") ? Glyph::AnalogAM : Glyph::AnalogPM;
    const QPixmap badge = ReadPixmapFile(d->node->GetFirstFile(GlyphKey(glyph)));
    if (badge.isNull())
        return;
    d->painter.begin(&d->dialCache);
    d->painter.drawPixmap(BadgePlace(d->node->Size(), badge.size()), badge);
    d->painter.end();
}

void DrawDisplayImage::DrawAnalogClockPoint()
{
    if (!d->node)
        return;
    const QSize size = d->node->Size();
    SetHandSize(std::min(size.width(), size.height()));
    if (d->now.second == d->lastSecondDrawn)
        ++d->repeatedSeconds;
    d->lastSecondDrawn = d->now.second;
    if (d->frame.isNull())
        return;

    const double radius = HandRadius(d->frame.size());
    FrameMemory::Painting painting(d->dialFrames, d->frame);
    d->painter.begin(&d->frameView.Of(d->frame));
    d->painter.setRenderHint(QPainter::Antialiasing, Antialiasing());
    d->painter.translate(Centre(d->frame.size()));
    bool anyArrow = false;
    for (const HandRow &row : kHands) {
        const int type = d->Number(row.type);
        const double angle = HandAngle(row.hand, d->now.hour, d->now.minute, d->now.second);
        const HandShape shape = ShapeOf(row.hand, type, radius);
        const QColor colour = ReturnQcolor(d->Number(row.colour));
        // The minute hand stays for a minute; the others move every second.
        painting.Covers(row.hand == Hand::Minute
                            ? StampHand(d->painter, d->minuteStamp, shape, angle, colour)
                            : PaintHand(d->painter, shape, angle, colour));
        anyArrow = anyArrow || type == ArrowHand;
    }
    painting.Covers(StampCentreCap(d->painter, d->capStamp, CentreCap(radius, anyArrow),
                                   ReturnQcolor(d->Number(Attribute::SecondHandColor))));
    d->painter.end();
}

void DrawDisplayImage::GetAngDisplayArea()
{
    if (d->node)
        LayOutAnalog(*d->node, d->composer.Elements(), d->rows);
}

void DrawDisplayImage::DrawAnalogText()
{
    if (!d->node || d->dialCache.isNull())
        return;
    const Placements rows = PlaceAnalog(*d->node, d->composer.Elements(), d->rows);
    const qint64 keyBefore = d->dialCache.cacheKey();
    const QRegion changed = d->dialTexts.Paint(d->dialCache, rows);
    d->dialFrames.BackgroundChanged(keyBefore, d->dialCache, changed);
}

} // namespace Lw::HNodeClock
