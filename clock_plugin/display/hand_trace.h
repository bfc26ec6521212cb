// Which pixels of an image the hands may have touched, a few rows at a time, so that a second later
// these and few others are taken from the picture without hands.
#pragma once

#include <QImage>
#include <QPolygonF>
#include <QRegion>
#include <QVector>

namespace Lw::HNodeClock {

class HandTrace
{
public:
    void Clear();
    /// Adds every pixel of an image of that size that painting a polygon can touch: its inside,
    /// and two pixels around for antialiasing and the rounding of edges.
    void Add(const QPolygonF &outline, const QSize &image);
    /// Copies the pixels of the trace. The target is written row by row from its first byte; both
    /// images are as large as the trace was told, and of one format.
    void Copy(const QImage &source, uchar *target) const;
    /// A region of few rectangles that has all pixels of the trace in it.
    QRegion Region() const;
    /// Whether a pixel belongs to the trace.
    bool Contains(const QPoint &pixel) const;

private:
    struct Band
    {
        int top;
        int bottom; // the first row below
        int left;
        int right; // the first pixel beyond
    };
    static Band BandOf(const QPolygonF &outline, int top, int bottom, int width);

    QVector<Band> m_bands;
};

} // namespace Lw::HNodeClock
