#include "display/frame_memory.h"

#include <algorithm>
#include <cstring>

namespace Lw::HNodeClock {

namespace {

// All bytes are written through a pointer taken once: the frame is not shared, so nothing is
// copied, and its key changes once.
void CopyAll(const QImage &source, uchar *target)
{
    const qint64 bytes = static_cast<qint64>(source.bytesPerLine()) * source.height();
    std::memcpy(target, source.constBits(), static_cast<std::size_t>(bytes));
}

void CopyRegion(const QImage &source, const QRegion &region, uchar *target)
{
    const int pixel = source.depth() / 8;
    const qint64 line = source.bytesPerLine();
    for (const QRect &rect : region &source.rect()) {
        qint64 offset = rect.top() * line + rect.left() * pixel;
        const auto bytes = static_cast<std::size_t>(rect.width() * pixel);
        for (int y = 0; y < rect.height(); ++y, offset += line)
            std::memcpy(target + offset, source.constBits() + offset, bytes);
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

void FrameMemory::Restore(QImage &frame, const QImage &background)
{
    if (frame.isNull() || frame.size() != background.size()
        || frame.format() != background.format())
        return;
    if (background.cacheKey() != m_backgroundKey)
        Forget();
    m_backgroundKey = background.cacheKey();

    Known *known = Find(frame);
    uchar *pixels = frame.bits();
    if (known) {
        CopyRegion(background, known->stale, pixels);
        known->hands.Copy(background, pixels);
    } else {
        known = &m_known.back();
        CopyAll(background, pixels);
    }
    known->key = frame.cacheKey();
    known->stale = QRegion();
    known->hands.Clear();
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

// The hands on both frames, and where the background changed since the frame before was drawn.
std::optional<QRegion> FrameMemory::ChangesSince(const QImage &before, const QImage &frame) const
{
    const Known *const knownBefore = Find(before);
    const Known *const known = Find(frame);
    if (!knownBefore || !known)
        return std::nullopt;
    return knownBefore->stale + knownBefore->hands.Region() + known->hands.Region();
}

FrameMemory::Painting::Painting(FrameMemory &memory, QImage &frame)
    : m_frame(frame), m_known(memory.Find(frame))
{ }

FrameMemory::Painting::~Painting()
{
    if (m_known)
        m_known->key = m_frame.cacheKey();
}

void FrameMemory::Painting::Covers(const QVector<QPolygonF> &outlines)
{
    if (!m_known)
        return;
    for (const QPolygonF &outline : outlines)
        m_known->hands.Add(outline, m_frame.size());
}

} // namespace Lw::HNodeClock
