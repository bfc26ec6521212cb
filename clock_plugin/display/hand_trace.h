// Which pixels of an image the hands may have touched, row by row, so that a second later exactly
// these are taken from the picture without hands.
#pragma once

#include <QImage>
#include <QPolygonF>
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
    /// Whether a pixel belongs to the trace.
    bool Contains(const QPoint &pixel) const;

private:
    struct Span
    {
        int y;
        int left;
        int right; // the first pixel beyond
    };
    static Span SpanOf(const QPolygonF &outline, int y, int width);

    QVector<Span> m_spans;
};

} // namespace Lw::HNodeClock
