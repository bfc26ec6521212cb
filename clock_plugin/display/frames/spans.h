// display/frames/: the pixels of an image that a painted shape may have changed: one run per row. A
// second later only these are restored from the background.
#pragma once

#include <QImage>
#include <QPolygonF>
#include <QRect>
#include <QRegion>
#include <QVector>

namespace Lw::HNodeClock {

/// How far around its outline painting a shape may change pixels: antialiasing, and the rounding of
/// edges.
constexpr int kPaintMargin = 2;

/// All pixels that painting a shape with this outline may change.
inline QRect BoxAround(const QPolygonF &outline)
{
    return outline.boundingRect().toAlignedRect().adjusted(-kPaintMargin, -kPaintMargin,
                                                           kPaintMargin, kPaintMargin);
}

class Spans
{
public:
    struct Row
    {
        quint16 left;
        quint16 right; ///< the first pixel beyond; equal to left in an empty row
    };

    /// Removes all rows; the next row added is row `top`. Keeps the memory if it is not shared.
    void Clear(int top);
    void AddRow(int left, int right);
    /// Sets the spans to the pixels that painting a polygon onto an image of this size may change.
    void Set(const QPolygonF &outline, const QSize &image);

    bool IsEmpty() const { return m_rows.isEmpty(); }
    int Top() const { return m_top; }
    const QVector<Row> &Rows() const { return m_rows; }
    int Bytes() const { return Count() * int(sizeof(Row)); }
    /// Whether this is an implicitly shared copy of `other`; compares pointers only.
    bool IsCopyOf(const Spans &other) const
    {
        return m_rows.constData() == other.m_rows.constData();
    }
    /// A region of few rectangles that contains the spans.
    QRegion Region() const;
    /// Copies the spans' pixels that are inside `source`, an image of the target's format with 32
    /// bits per pixel, whose top left is at `place` in the target. `target` is the target's first
    /// byte, `targetLine` its bytes per line.
    void Copy(const QImage &source, const QPoint &place, uchar *target, int targetLine) const;

private:
    int Count() const { return static_cast<int>(m_rows.size()); }

    int m_top = 0;
    QVector<Row> m_rows;
};

} // namespace Lw::HNodeClock
