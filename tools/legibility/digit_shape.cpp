#include "digit_shape.h"

#include <QPoint>
#include <QRect>
#include <QVector>

namespace ClockTool {

namespace {

/// A picture with a margin of one pixel, so that the outside is one connected area.
class Field
{
public:
    explicit Field(const QImage &picture)
        : m_width(picture.width() + 2), m_height(picture.height() + 2),
          m_ink(m_width * m_height, false), m_seen(m_width * m_height, false)
    {
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                m_ink[At({x + 1, y + 1})] = qAlpha(picture.pixel(x, y)) != 0;
        }
    }

    /// Counts the connected areas of ink, or of background, with more than `speck` pixels.
    int Areas(bool ofInk, int speck)
    {
        int areas = 0;
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                if (m_ink[At({x, y})] != ofInk || m_seen[At({x, y})])
                    continue;
                areas += Fill({x, y}, ofInk) > speck ? 1 : 0;
            }
        }
        return areas;
    }

private:
    int At(const QPoint &point) const { return point.y() * m_width + point.x(); }

    /// The size of an area in pixels. Ink is 8-connected, background 4-connected.
    int Fill(const QPoint &start, bool ofInk)
    {
        int pixels = 0;
        QVector<QPoint> open {start};
        m_seen[At(start)] = true;
        while (!open.isEmpty()) {
            const QPoint point = open.takeLast();
            ++pixels;
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    if (ofInk || dx == 0 || dy == 0)
                        Visit(point + QPoint(dx, dy), ofInk, open);
                }
            }
        }
        return pixels;
    }

    void Visit(const QPoint &point, bool ofInk, QVector<QPoint> &open)
    {
        const bool isInside =
            point.x() >= 0 && point.y() >= 0 && point.x() < m_width && point.y() < m_height;
        if (!isInside || m_ink[At(point)] != ofInk || m_seen[At(point)])
            return;
        m_seen[At(point)] = true;
        open.append(point);
    }

    int m_width;
    int m_height;
    QVector<bool> m_ink;
    QVector<bool> m_seen;
};

} // namespace

DigitShape ShapeOf(const QImage &picture)
{
    constexpr int kSpecks = 400;
    const int height = InkOf(picture).height();
    const int speck = height * height / kSpecks;
    Field field(picture);
    const int strokes = field.Areas(true, speck);
    return {strokes, field.Areas(false, speck) - 1};
}

QImage InkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) != 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    if (ink.isNull())
        return {};
    return picture.copy(ink).convertToFormat(QImage::Format_Alpha8);
}

} // namespace ClockTool
