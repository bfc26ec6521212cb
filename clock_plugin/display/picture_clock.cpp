// The picture clock: a dial picture of a chosen style, and hand pictures that all styles share.
#include "compose/glyph_reading.h"
#include "display/draw_display_image_p.h"
#include "display/style_pictures.h"

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

// The face that the hand pictures are laid out on, in units around its centre.
constexpr int kFace = 300;
constexpr QRect kHourPlace(-12, -65, 24, 70);
constexpr QRect kMinutePlace(-10, -85, 20, 90);
constexpr QRect kSecondPlace(-5, -110, 10, 110);
constexpr QRect kCentrePlace(-10, -10, 20, 20);

// A picture stretched into its place on the face and turned clockwise about the centre.
struct TurnedPicture
{
    const QPixmap &picture;
    double degrees;
    QRect place;
};

// The face's units around its centre, in pixels of an image.
QTransform FaceOn(const QSize &size)
{
    const double scale = std::min(size.height(), size.width()) / static_cast<double>(kFace);
    QTransform face;
    face.translate(size.width() / 2, size.height() / 2);
    face.scale(scale, scale);
    return face;
}

void Begin(QPainter &painter, QImage &image)
{
    painter.begin(&image);
    painter.setWorldTransform(FaceOn(image.size()));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
}

// Paints with the face's units around its centre; returns an outline around the touched pixels.
QVector<QPolygonF> Paint(QPainter &painter, const TurnedPicture &part)
{
    if (part.picture.isNull())
        return {};
    const QTransform upright = painter.worldTransform();
    painter.rotate(part.degrees);
    painter.drawPixmap(part.place, part.picture);
    const QPolygonF touched = painter.transform().map(QPolygonF(QRectF(part.place)));
    painter.setWorldTransform(upright);
    return {touched};
}

QRect BoxAround(const TurnedPicture &part, const QSize &size)
{
    constexpr int kMargin = 2;
    QTransform turned = FaceOn(size);
    turned.rotate(part.degrees);
    return turned.mapRect(QRectF(part.place))
        .toAlignedRect()
        .adjusted(-kMargin, -kMargin, kMargin, kMargin);
}

} // namespace

void DrawDisplayImage::InitClockTypePixmap()
{
    if (!d->node)
        return;
    const QString folder = StyleFolder();
    d->hourPicture = ReadPixmapFile(folder + QLatin1String(kHourPicture));
    d->minutePicture = ReadPixmapFile(folder + QLatin1String(kMinutePicture));
    d->secondPicture = ReadPixmapFile(folder + QLatin1String(kSecondPicture));
    d->centrePicture = ReadPixmapFile(folder + QLatin1String(kCentrePicture));
    d->dialTimeAP.clear(); // an analog dial that is drawn later is drawn anew

    const QSize size = d->node->Size();
    d->pictureSize = QSize(d->frameWidth, size.height());
    d->pictureBackground = d->NewImage(d->pictureSize, GetColorKey());
    const int side = std::min(size.width(), size.height());
    const QImage dial = ReadImageFile(folder + DialPicture(d->Number(Attribute::PictrueClockType)));
    if (d->pictureBackground.isNull() || dial.isNull() || !Private::Drawable(QSize(side, side)))
        return;
    const QImage scaled = dial.scaled(side, side, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    if (scaled.isNull()) {
        d->pictureBackground = QImage(); // out of memory: tried again with the next frame
        return;
    }
    d->painter.begin(&d->pictureBackground);
    d->painter.drawImage((size.width() - side) / 2, (d->pictureSize.height() - side) / 2, scaled);
    d->painter.end();
}

// The hour hand moves once a minute, so it lies on the background.
void DrawDisplayImage::Private::LayHourHand(double degrees)
{
    if (pictureHour.Lies(pictureBackground, degrees))
        return;
    const TurnedPicture hand = {hourPicture, degrees, kHourPlace};
    const qint64 keyBefore = pictureBackground.cacheKey();
    const QRect box = BoxAround(hand, pictureBackground.size());
    const QRegion changed =
        pictureHour.Lay(pictureBackground, degrees, box, [this, &hand](QImage &image) {
            Begin(painter, image);
            Paint(painter, hand);
            painter.end();
        });
    pictureFrames.BackgroundChanged(keyBefore, pictureBackground, changed);
}

bool DrawDisplayImage::Private::RestoreBackground(double hourDegrees)
{
    if (pictureBackground.size() != frame.size()) {
        frame.fill(KeyColour());
        return false;
    }
    LayHourHand(hourDegrees);
    pictureFrames.Restore(frame, pictureBackground);
    return pictureHour.Lies(pictureBackground, hourDegrees);
}

void DrawDisplayImage::DrawPixmapClock()
{
    if (!d->node)
        return;
    const QSize size = d->node->Size();
    const int type = d->Number(Attribute::PictrueClockType);
    const QSize wanted(d->frameWidth, size.height());
    const bool lacksMemory = d->pictureBackground.isNull() && Private::Drawable(wanted);
    if (d->pictureType != type || d->pictureSize != wanted || lacksMemory) {
        InitClockTypePixmap();
        d->pictureType = type;
    }
    d->PrepareFrame(size);
    if (d->frame.isNull())
        return;

    const DisplayedFields &now = d->now;
    const TurnedPicture hour = {d->hourPicture, (now.hour + now.minute / 60.0) * 30, kHourPlace};
    const TurnedPicture others[] = {
        {d->minutePicture, (now.minute + now.second / 60.0) * 6, kMinutePlace},
        {d->secondPicture, now.second * 6.0, kSecondPlace},
        {d->centrePicture, 0, kCentrePlace},
    };
    const bool hourLies = d->RestoreBackground(hour.degrees);
    FrameMemory::Painting painting(d->pictureFrames, d->frame);
    Begin(d->painter, d->frame);
    if (!hourLies)
        painting.Covers(Paint(d->painter, hour));
    for (const TurnedPicture &part : others)
        painting.Covers(Paint(d->painter, part));
    d->painter.end();
}

} // namespace Lw::HNodeClock
