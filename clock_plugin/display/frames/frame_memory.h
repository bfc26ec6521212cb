// What is painted in the frames of one kind of clock: which pixels differ from the picture behind
// its hands. Two frames are drawn in turn, so two are remembered.
//
// A frame is recognised by its image's cache key, which changes whenever anyone else writes into
// the image or replaces it: such a frame is unknown, and gets the whole picture.
#pragma once

#include "display/frames/kept_shape.h"
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
    /// Makes a frame show the background with its top left at a place, and the key colour around
    /// it: by copying what differs when the frame is known, all of it when not. Hands have to stay
    /// within the background. Where one of the images is null nothing happens.
    void Restore(QImage &frame, const QImage &background, const QPoint &place = QPoint());

    /// Lives while hands are put onto a frame. An unknown frame stays unknown.
    class Painting
    {
    public:
        Painting(FrameMemory &memory, QImage &frame);
        ~Painting();
        Q_DISABLE_COPY(Painting)
        void Blend(const KeptShape &shape);
        /// A painter painted within this outline, in pixels of the frame.
        void Covers(const QPolygonF &outline);

    private:
        QImage &m_frame;
        Known *m_known;
    };

    /// The background was painted within an area, and nowhere else, since it had the key given.
    /// With any other key than the one known all frames are forgotten.
    void BackgroundChanged(qint64 keyBefore, const QImage &background, const QRegion &area);

    /// Where a frame may differ from the one drawn before it; no answer where either is unknown.
    std::optional<QRegion> ChangesSince(const QImage &before, const QImage &frame) const;

private:
    static constexpr int kMostParts = 8;

    struct Known
    {
        Spans &NextPart();
        bool Has(const Spans &part) const;
        QRegion PartsMissingIn(const Known &other) const;

        qint64 key = 0; // of the frame; 0 is no frame
        QRegion stale;  // where the background changed since it was copied
        int count = 0;
        std::array<Spans, kMostParts> parts; // the first count of them are painted on the frame
    };
    Known *Find(const QImage &frame);
    const Known *Find(const QImage &frame) const;
    void Forget();

    std::array<Known, 2> m_known; // the one used last comes first
    qint64 m_backgroundKey = 0;
    QPoint m_place; // of the background
};

} // namespace Lw::HNodeClock
