// A shape that is painted again and again at the same place, such as the minute hand: painted once
// into a picture of its own, and from then on only blended.
//
// Blending that picture over opaque pixels gives the same as painting the shape, for a shape of one
// opaque colour, while its antialiasing costs twenty times as much as the blending.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <QRect>

namespace Lw::HNodeClock {

class Stamp
{
public:
    /// All that the pixels of a shape depend on.
    struct Shape
    {
        QPolygonF outline; ///< around all touched pixels, in pixels of the image
        QColor colour;

        bool operator==(const Shape &other) const
        {
            return outline == other.outline && colour == other.colour;
        }
    };

    /// Paints a shape with a painter of a premultiplied image, translated by whole pixels at most.
    /// Where the shape is another one than before it is first painted by
    /// paint(QPainter &, QPoint shift), which paints it that far to the left and up.
    template<typename Paint>
    void Draw(QPainter &painter, const Shape &shape, Paint paint)
    {
        const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
        const QSize image(painter.device()->width(), painter.device()->height());
        if (!(shape == m_shape) || smooth != m_smooth || image != m_image) {
            m_shape = shape;
            m_smooth = smooth;
            m_image = image;
            NewPicture();
            if (!m_picture.isNull()) {
                QPainter own(&m_picture);
                own.setRenderHint(QPainter::Antialiasing, smooth);
                own.setPen(Qt::NoPen);
                own.setBrush(shape.colour);
                paint(own, m_place);
            }
            m_picture = m_picture.copy(); // without the paint engine
            if (m_picture.isNull())
                m_image = QSize(); // outside, or out of memory: tried again with the next frame
        }
        const QTransform &moved = painter.transform();
        painter.drawImage(m_place - QPoint(qRound(moved.dx()), qRound(moved.dy())), m_picture);
    }

private:
    // A transparent picture of what of the shape lies within the image. The shift is whole pixels
    // and changes no coordinate's sign, so rasterising is unchanged.
    void NewPicture()
    {
        constexpr int kMargin = 2;
        const QRect box = m_shape.outline.boundingRect().toAlignedRect().adjusted(
                              -kMargin, -kMargin, kMargin, kMargin)
            & QRect(QPoint(0, 0), m_image);
        m_place = box.topLeft();
        m_picture = QImage(box.size(), QImage::Format_ARGB32_Premultiplied);
        if (!m_picture.isNull())
            m_picture.fill(Qt::transparent);
    }

    Shape m_shape;
    bool m_smooth = false;
    QSize m_image;
    QPoint m_place;
    QImage m_picture; // null where the shape lies outside
};

} // namespace Lw::HNodeClock
