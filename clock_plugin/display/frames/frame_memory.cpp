#include "display/frames/frame_memory.h"

#include "display/frames/frame_pair.h"

#include <algorithm>
#include <cstring>

namespace Lw::HNodeClock {

namespace {

// All bytes are written through one pointer obtained once: the frame is not shared, so bits() does
// not detach it, and its cache key changes only once.
void CopyRegion(const QImage &source, const QPoint &place, const QRegion &region, uchar *target,
                int targetLine)
{
    const QRect whole = source.rect().translated(place);
    const QRegion shown = region.intersected(whole);
    for (const QRect &rect : shown) {
        const auto bytes = static_cast<std::size_t>(rect.width()) * sizeof(QRgb);
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            const uchar *const from = source.constScanLine(y - place.y());
            std::memcpy(reinterpret_cast<QRgb *>(target + qint64(y) * targetLine) + rect.left(),
                        reinterpret_cast<const QRgb *>(from) + rect.left() - place.x(), bytes);
        }
    }
}

} // namespace

FrameMemory::Known *FrameMemory::Find(const QImage &frame)
{
    return const_cast<Known *>(qAsConst(*this).Find(frame));
}

const FrameMemory::Known *FrameMemory::Find(const QImage &frame) const
{
    const qint64 key = frame.cacheKey();
    for (const Known &known : m_known) {
        if (key != 0 && known.key == key)
            return &known;
    }
    return nullptr;
}

void FrameMemory::Forget()
{
    m_known = {};
}

void FrameMemory::Restore(QImage &frame, const QImage &background, const QPoint &place)
{
    if (frame.isNull() || background.isNull() || frame.format() != background.format())
        return;
    if (background.cacheKey() != m_backgroundKey || place != m_place)
        Forget();
    m_backgroundKey = background.cacheKey();
    m_place = place;

    Known *known = Find(frame);
    if (!known && !background.rect().translated(place).contains(frame.rect()))
        frame.fill(FramePair::KeyColour());
    uchar *const pixels = frame.bits();
    const int line = frame.bytesPerLine();
    if (known) {
        CopyRegion(background, place, known->stale, pixels, line);
        std::for_each_n(known->parts.begin(), known->count,
                        [&](const Spans &part) { part.Copy(background, place, pixels, line); });
    } else {
        known = &m_known.back();
        CopyRegion(background, place, frame.rect(), pixels, line);
    }
    known->key = frame.cacheKey();
    known->stale = QRegion();
    known->count = 0;
    if (known != &m_known.front())
        std::swap(m_known.front(), m_known.back());
}

void FrameMemory::BackgroundChanged(qint64 keyBefore, const QImage &background, const QRegion &area)
{
    if (keyBefore != m_backgroundKey)
        Forget();
    m_backgroundKey = background.cacheKey();
    for (Known &known : m_known)
        known.stale += area;
}

// The parts that only one of the frames has, and where the background has changed since `before`
// was drawn.
std::optional<QRegion> FrameMemory::ChangesSince(const QImage &before, const QImage &frame) const
{
    const Known *const knownBefore = Find(before);
    const Known *const known = Find(frame);
    if (!knownBefore || !known)
        return std::nullopt;
    return knownBefore->stale + knownBefore->PartsMissingIn(*known)
        + known->PartsMissingIn(*knownBefore);
}

// No face paints more than kMaxParts parts; an analog clock with arrow hands has the most.
Spans &FrameMemory::Known::NextPart()
{
    Q_ASSERT(count < kMaxParts);
    return parts[static_cast<std::size_t>(count++)];
}

bool FrameMemory::Known::Has(const Spans &part) const
{
    return std::any_of(parts.begin(), parts.begin() + count,
                       [&part](const Spans &own) { return own.IsCopyOf(part); });
}

QRegion FrameMemory::Known::PartsMissingIn(const Known &other) const
{
    QRegion missing;
    std::for_each_n(parts.begin(), count, [&](const Spans &part) {
        if (!other.Has(part))
            missing += part.Region();
    });
    return missing;
}

FrameMemory::Painting::Painting(FrameMemory &memory, QImage &frame)
    : m_frame(frame), m_known(memory.Find(frame))
{ }

FrameMemory::Painting::~Painting()
{
    if (m_known)
        m_known->key = m_frame.cacheKey();
}

void FrameMemory::Painting::Blend(const CachedShape &shape)
{
    if (m_known)
        m_known->NextPart() = shape.Covered();
    shape.Blend(m_frame.bits(), m_frame.bytesPerLine());
}

void FrameMemory::Painting::RecordPainted(const QPolygonF &outline)
{
    if (m_known)
        m_known->NextPart().Set(outline, m_frame.size());
}

} // namespace Lw::HNodeClock
