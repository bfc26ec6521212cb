// Text rows on a picture that is kept: painted over what stands there, second after second.
//
// Where a row is translucent each painting makes it a little denser, until nothing changes any
// more. From then on, or at once where rows are opaque, painting the same rows again is left out.
#pragma once

#include <QImage>
#include <QPair>
#include <QPixmap>
#include <QPoint>
#include <QRegion>
#include <QVector>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Lw::HNodeClock {

struct TextRow
{
    QPixmap pixmap;
    QPoint topLeft;

    QRect Box() const { return QRect(topLeft, pixmap.size()); }
};

class TextRows
{
public:
    /// Paints the rows in their order and returns where the picture changed. The painter is not
    /// active, before and after. Null rows and a null picture are left out.
    QRegion Paint(QPainter &painter, QImage &picture, const QVector<TextRow> &rows,
                  bool antialiasing);

private:
    using Painted = QVector<QPair<qint64, QPoint>>; // pixmap key and place

    Painted m_painted;
    qint64 m_settledKey = 0; // of the picture that painting them again would not change
};

} // namespace Lw::HNodeClock
