#include "display/hand_trace.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Lw::HNodeClock {

namespace {

constexpr int kMargin = 2;

// A real coordinate as a whole one between 0 and a limit.
int Clamped(double value, int limit)
{
    return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(limit)));
}

// Widens the range from left to right by the part of an edge that lies between two heights.
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

} // namespace

void HandTrace::Clear()
{
    m_spans.resize(0); // keeps its memory for the next second
}

HandTrace::Span HandTrace::SpanOf(const QPolygonF &outline, int y, int width)
{
    double left = width;
    double right = 0;
    for (int i = 0; i < outline.size(); ++i) {
        WidenByEdge(outline[i], outline[(i + 1) % outline.size()], y - kMargin, y + 1 + kMargin,
                    left, right);
    }
    return {y, Clamped(std::floor(left) - kMargin, width),
            Clamped(std::ceil(right) + kMargin, width)};
}

void HandTrace::Add(const QPolygonF &outline, const QSize &image)
{
    if (outline.isEmpty() || image.isEmpty())
        return;
    const QRectF bounds = outline.boundingRect();
    const int top = Clamped(std::floor(bounds.top()) - kMargin, image.height());
    const int bottom = Clamped(std::ceil(bounds.bottom()) + kMargin, image.height());
    for (int y = top; y < bottom; ++y)
        m_spans.append(SpanOf(outline, y, image.width()));
}

void HandTrace::Copy(const QImage &source, uchar *target) const
{
    const qint64 pixel = source.depth() / 8;
    const qint64 line = source.bytesPerLine();
    for (const Span &span : m_spans) {
        if (span.right <= span.left)
            continue;
        const qint64 first = span.y * line + span.left * pixel;
        std::memcpy(target + first, source.constBits() + first,
                    static_cast<std::size_t>((span.right - span.left) * pixel));
    }
}

bool HandTrace::Contains(const QPoint &pixel) const
{
    return std::any_of(m_spans.begin(), m_spans.end(), [&pixel](const Span &span) {
        return pixel.y() == span.y && pixel.x() >= span.left && pixel.x() < span.right;
    });
}

} // namespace Lw::HNodeClock
