#include "display/frames/spans.h"

#include <QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace Lw::HNodeClock {

namespace {

// Rows that share one span: computing more spans costs more than copying wider ones.
constexpr int kRowsAtOnce = 16;

constexpr int kPixelBytes = 4;

// Truncates a coordinate to an integer, clamped to 0 and a limit.
int Clamped(double value, int limit)
{
    return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(limit)));
}

// Widens the range from left to right by the part of an edge between two heights.
void WidenByEdge(QPointF a, QPointF b, double low, double high, double &left, double &right)
{
    if (a.y() > b.y())
        std::swap(a, b);
    if (b.y() < low || a.y() > high)
        return;
    const auto at = [&a, &b](double y) {
        if (y <= a.y())
            return a.x();
        if (y >= b.y())
            return b.x();
        return a.x() + (b.x() - a.x()) * (y - a.y()) / (b.y() - a.y());
    };
    left = std::min({left, at(low), at(high)});
    right = std::max({right, at(low), at(high)});
}

Spans::Row RowOf(const QPolygonF &outline, int top, int bottom, int width)
{
    double left = width;
    double right = 0;
    QPointF previous = outline.constLast();
    for (const QPointF &point : outline) {
        WidenByEdge(previous, point, top - kPaintMargin, bottom + kPaintMargin, left, right);
        previous = point;
    }
    const int first = Clamped(std::floor(left) - kPaintMargin, width);
    const int beyond = Clamped(std::ceil(right) + kPaintMargin, width);
    return {static_cast<quint16>(first), static_cast<quint16>(std::max(first, beyond))};
}

// Empty where all rows are.
Spans::Row BoundsOf(const Spans::Row *rows, int count)
{
    Spans::Row bounds {std::numeric_limits<quint16>::max(), 0};
    for (int i = 0; i < count; ++i) {
        if (rows[i].left >= rows[i].right)
            continue;
        bounds.left = std::min(bounds.left, rows[i].left);
        bounds.right = std::max(bounds.right, rows[i].right);
    }
    return bounds;
}

} // namespace

void Spans::Clear(int top)
{
    m_top = top;
    if (m_rows.isDetached())
        m_rows.resize(0);
    else
        m_rows = {};
}

void Spans::AddRow(int left, int right)
{
    m_rows.append({static_cast<quint16>(left), static_cast<quint16>(right)});
}

void Spans::Set(const QPolygonF &outline, const QSize &image)
{
    Clear(0);
    if (outline.isEmpty() || image.isEmpty())
        return;
    const QRectF bounds = outline.boundingRect();
    m_top = Clamped(std::floor(bounds.top()) - kPaintMargin, image.height());
    const int bottom = Clamped(std::ceil(bounds.bottom()) + kPaintMargin, image.height());
    for (int y = m_top; y < bottom; y += kRowsAtOnce) {
        const int count = std::min(kRowsAtOnce, bottom - y);
        m_rows.insert(m_rows.size(), count, RowOf(outline, y, y + count, image.width()));
    }
}

// Bands begin at the same heights in every region, so that few arise when regions are united.
QRegion Spans::Region() const
{
    constexpr int kBandHeight = 16;
    QVarLengthArray<QRect, 128> bands;
    const int end = m_top + Count();
    for (int top = m_top; top < end;) {
        const int next = std::min(end, (top / kBandHeight + 1) * kBandHeight);
        const Row bounds = BoundsOf(m_rows.constData() + top - m_top, next - top);
        if (bounds.left < bounds.right)
            bands.append(QRect(bounds.left, top, bounds.right - bounds.left, next - top));
        top = next;
    }
    QRegion region;
    region.setRects(bands.constData(), static_cast<int>(bands.size()));
    return region;
}

void Spans::Copy(const QImage &source, const QPoint &place, uchar *target, int targetLine) const
{
    const QRect part(place, source.size());
    const qsizetype sourceLine = source.bytesPerLine();
    const int top = std::max(m_top, part.top());
    const int count = std::min(m_top + Count(), part.bottom() + 1) - top;
    const Row *row = m_rows.constData() + (top - m_top);
    const uchar *from = source.constBits() + (top - part.top()) * sourceLine;
    uchar *to = target + qint64(top) * targetLine;
    for (int i = 0; i < count; ++i, ++row, from += sourceLine, to += targetLine) {
        const int left = std::max<int>(row->left, part.left());
        const int right = std::min<int>(row->right, part.right() + 1);
        if (left < right)
            std::memcpy(to + left * kPixelBytes, from + (left - part.left()) * kPixelBytes,
                        static_cast<std::size_t>((right - left) * kPixelBytes));
    }
}

} // namespace Lw::HNodeClock
