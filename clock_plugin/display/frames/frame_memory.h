// display/frames/: tracks in two alternating frames which pixels differ from the background behind
// the hands.
//
// A frame is identified by its image's cache key, which changes whenever other code writes to the
// image or replaces it: such a frame is unknown and is restored completely.
#pragma once

#include "display/frames/cached_shape.h"
#include "display/frames/spans.h"

#include <QImage>
#include <QRegion>

#include <array>
#include <optional>

namespace Lw::HNodeClock {

class FrameMemory
{
    struct Known;

public:
    /// Restores the background, with its top left at `place`, and the key colour around it: by
    /// copying what differs if the frame is known, all of it if not. Hands have to stay within
    /// the background. Does nothing if either image is null or their formats differ.
    void Restore(QImage &frame, const QImage &background, const QPoint &place = QPoint());

    /// Exists while hands are painted onto a frame. An unknown frame stays unknown.
    class Painting
    {
    public:
        Painting(FrameMemory &memory, QImage &frame);
        ~Painting();
        Q_DISABLE_COPY(Painting)
        void Blend(const CachedShape &shape);
        /// Records that a painter painted within this outline, in pixels of the frame.
        void RecordPainted(const QPolygonF &outline);

    private:
        QImage &m_frame;
        Known *m_known;
    };

    /// Records that the background changed only within `area` since it had the key `keyBefore`. If
    /// the key is not the known one, all frames are forgotten.
    void BackgroundChanged(qint64 keyBefore, const QImage &background, const QRegion &area);

    /// Where a frame may differ from the previous one; nullopt if either is unknown.
    std::optional<QRegion> ChangesSince(const QImage &before, const QImage &frame) const;

private:
    static constexpr int kMaxParts = 8;

    struct Known
    {
        Spans &NextPart();
        bool Has(const Spans &part) const;
        QRegion PartsMissingIn(const Known &other) const;

        qint64 key = 0; // of the frame; 0 is no frame
        QRegion stale;  // where the background changed since it was copied
        int count = 0;
        std::array<Spans, kMaxParts> parts; // the first count of them are painted on the frame
    };
    Known *Find(const QImage &frame);
    const Known *Find(const QImage &frame) const;
    void Forget();

    std::array<Known, 2> m_known; // most recently used first
    qint64 m_backgroundKey = 0;
    QPoint m_place; // of the background
};

} // namespace Lw::HNodeClock
