#include "display/picture_clock.h"

#include "compose/picture_file.h"
#include "display/style_pictures.h"
#include "image_bounds.h"

#include <algorithm>

namespace Lw::HNodeClock {

namespace {

// The side of the face in units; the places of the pictures are relative to its centre.
constexpr int kFace = 300;
constexpr QRect kHourPlace(-12, -65, 24, 70);
constexpr QRect kMinutePlace(-10, -85, 20, 90);
constexpr QRect kSecondPlace(-5, -110, 10, 110);
constexpr QRect kCentrePlace(-10, -10, 20, 20);

// The face's units around its centre, in pixels of an image.
QTransform FaceOn(const QSize &size)
{
    const double scale = std::min(size.height(), size.width()) / static_cast<double>(kFace);
    QTransform face;
    face.translate(size.width() / 2, size.height() / 2);
    face.scale(scale, scale);
    return face;
}

// The painter must use the face's units.
void PaintTurned(QPainter &painter, const QPixmap &picture, double degrees, const QRect &place)
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.rotate(degrees);
    painter.drawPixmap(place, picture);
}

} // namespace

// Before the first frame, which always loads the pictures, the host is only asked for what they
// depend on: hosts may rely on being asked at construction.
void PictureFace::LoadPictures()
{
    const QSize size = m_shared.Size();
    const int style = m_shared.Number(Attribute::PictrueClockType);
    if (!m_style)
        return;
    const QString folder = StyleFolder();
    m_hour = ReadPixmapFile(folder + QLatin1String(kHourPicture));
    m_minute = ReadPixmapFile(folder + QLatin1String(kMinutePicture));
    m_second = ReadPixmapFile(folder + QLatin1String(kSecondPicture));
    m_centre = ReadPixmapFile(folder + QLatin1String(kCentrePicture));

    m_size = QSize(m_shared.frameWidth, size.height());
    // Clamped, as a host's size may be any number; beyond the bounds nothing is drawn.
    const int side = qBound(0, std::min(size.width(), size.height()), kImageSide + 1);
    const QRect dial((size.width() - side) / 2, (m_size.height() - side) / 2, side, side);
    DrawBackground(dial, folder + DialPicture(style));
}

// The background covers only the part of the frame that the dial and the hands reach.
void PictureFace::DrawBackground(const QRect &dial, const QString &file)
{
    constexpr int kAround = 2 * kPaintMargin;
    const QRect part = dial.adjusted(-kAround, -kAround, kAround, kAround)
        & QRect(QPoint(0, 0), FramePair::Drawable(m_size) ? m_size : QSize());
    m_place = part.topLeft();
    m_background = FramePair::NewImage(part.size());
    const QImage picture = ReadImageFile(file);
    if (m_background.isNull() || picture.isNull() || !FramePair::Drawable(dial.size()))
        return;
    const QImage scaled =
        picture.scaled(dial.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
    if (scaled.isNull()) {
        m_background = QImage(); // out of memory: retried with the next frame
        return;
    }
    m_shared.painter.begin(&m_background);
    m_shared.painter.drawImage(dial.topLeft() - m_place, scaled);
    m_shared.painter.end();
}

bool PictureFace::NeedsPictures()
{
    const QSize wanted(m_shared.frameWidth, m_shared.Size().height());
    const bool lacksMemory = m_background.isNull() && FramePair::Drawable(wanted);
    const int style = m_shared.Number(Attribute::PictrueClockType);
    const bool hasChanged = m_style != style || m_size != wanted;
    m_style = style;
    return hasChanged || lacksMemory;
}

void PictureFace::Restore(QImage &frame)
{
    if (m_size == frame.size() && !m_background.isNull())
        m_memory.Restore(frame, m_background, m_place);
    else
        frame.fill(FramePair::KeyColour());
}

void PictureFace::Draw()
{
    const QSize size = m_shared.Size();
    if (!m_shared.node)
        return;
    QImage &frame = m_shared.frames.TakeNext(size);
    if (frame.isNull())
        return;
    Restore(frame);

    const DisplayedFields &now = m_shared.now;
    FrameMemory::Painting painting(m_memory, frame);
    m_shared.painter.begin(&frame);
    PaintCached({m_hour, (now.hour + now.minute / 60.0) * 30, kHourPlace}, m_hourCache, 0,
                painting);
    // The minute hand has 3600 positions: too many to cache.
    Paint({m_minute, (now.minute + now.second / 60.0) * 6, kMinutePlace}, painting);
    PaintCached({m_second, now.second * 6.0, kSecondPlace}, m_secondCache, now.second, painting);
    PaintCached({m_centre, 0, kCentrePlace}, m_centreCache, 0, painting);
    m_shared.painter.end();
}

void PictureFace::Paint(const TurnedPicture &part, FrameMemory::Painting &painting)
{
    if (part.picture.isNull())
        return;
    const QTransform face = FaceOn(m_shared.frames.Frame().size());
    m_shared.painter.setWorldTransform(face);
    PaintTurned(m_shared.painter, part.picture, part.degrees, part.place);
    painting.RecordPainted(m_shared.painter.transform().map(QPolygonF(QRectF(part.place))));
}

// The hour hand is the lowest part, so its shape is cached together with the background under it.
void PictureFace::PaintCached(const TurnedPicture &part, HandCache &cache, int position,
                              FrameMemory::Painting &painting)
{
    if (part.picture.isNull())
        return;
    const bool isLowest = &cache == &m_hourCache;
    QImage &frame = m_shared.frames.Frame();
    HandCache::CacheKey key;
    key.append(frame.width());
    key.append(frame.height());
    key.append(part.picture.cacheKey());
    if (isLowest) {
        key.append(m_background.cacheKey());
        key.append(qRound(part.degrees * 2)); // it moves by half a degree
    }
    const CachedShape *const shape = cache.At(key, position, CacheLimit(frame.size()), [&] {
        const CachedShape painted = CachedPicture(part);
        if (!isLowest || !painted.IsMade())
            return painted;
        painted.Blend(frame.bits(), frame.bytesPerLine());
        return painted.AsShownOn(frame);
    });
    if (shape)
        painting.Blend(*shape);
    else
        Paint(part, painting);
}

CachedShape PictureFace::CachedPicture(const TurnedPicture &part)
{
    const QSize size = m_shared.frames.Frame().size();
    const QTransform face = FaceOn(size);
    QTransform turned = face;
    turned.rotate(part.degrees);
    const QRect box = BoxAround(turned.map(QPolygonF(QRectF(part.place))));
    return CachePicture(box & QRect(QPoint(0, 0), size), [&](QPainter &painter) {
        painter.setWorldTransform(face);
        PaintTurned(painter, part.picture, part.degrees, part.place);
    });
}

} // namespace Lw::HNodeClock
