#include "display/hand_trace.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Lw::HNodeClock {

namespace {

constexpr int kMargin = 2;
// Rows that share their left and right: working out more bands costs more than copying wider ones.
constexpr int kBandRows = 4;

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
    m_bands.resize(0); // keeps its memory for the next second
}

HandTrace::Band HandTrace::BandOf(const QPolygonF &outline, int top, int bottom, int width)
{
    double left = width;
    double right = 0;
    QPointF previous = outline.constLast();
    for (const QPointF &point : outline) {
        WidenByEdge(previous, point, top - kMargin, bottom + kMargin, left, right);
        previous = point;
    }
    return {top, bottom, Clamped(std::floor(left) - kMargin, width),
            Clamped(std::ceil(right) + kMargin, width)};
}

void HandTrace::Add(const QPolygonF &outline, const QSize &image)
{
    if (outline.isEmpty() || image.isEmpty())
        return;
    const QRectF bounds = outline.boundingRect();
    const int top = Clamped(std::floor(bounds.top()) - kMargin, image.height());
    const int bottom = Clamped(std::ceil(bounds.bottom()) + kMargin, image.height());
    for (int y = top; y < bottom; y += kBandRows)
        m_bands.append(BandOf(outline, y, std::min(y + kBandRows, bottom), image.width()));
}

void HandTrace::Copy(const QImage &source, uchar *target) const
{
    const qint64 pixel = source.depth() / 8;
    const qint64 line = source.bytesPerLine();
    const uchar *const from = source.constBits();
    for (const Band &band : m_bands) {
        if (band.right <= band.left)
            continue;
        const auto bytes = static_cast<std::size_t>((band.right - band.left) * pixel);
        qint64 first = band.top * line + band.left * pixel;
        for (int y = band.top; y < band.bottom; ++y, first += line)
            std::memcpy(target + first, from + first, bytes);
    }
}

QRegion HandTrace::Region() const
{
    constexpr int kBandsTogether = 4;
    QRegion region;
    for (int i = 0; i < m_bands.size();) {
        QRect rect;
        for (int last = i + kBandsTogether; i < last && i < m_bands.size(); ++i) {
            const Band &band = m_bands.at(i);
            rect |= QRect(QPoint(band.left, band.top), QPoint(band.right - 1, band.bottom - 1));
        }
        region += rect;
    }
    return region;
}

bool HandTrace::Contains(const QPoint &pixel) const
{
    return std::any_of(m_bands.begin(), m_bands.end(), [&pixel](const Band &band) {
        return pixel.y() >= band.top && pixel.y() < band.bottom && pixel.x() >= band.left
            && pixel.x() < band.right;
    });
}

} // namespace Lw::HNodeClock
